// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SwatchParts.h"

#include "QLxColorButton.h"
#include "QLxColorManipulator.h"
#include "QLxColorSpaces.h"
#include "SignalLog.h"
#include "SignalText.h"

#include <QSignalBlocker>

QLxColor fromEncoded(QRgb rgb)
{
    const auto channel = [](int level) { return QLx::srgbToLinear(static_cast<float>(level) / 255.0F); };
    return QLx::rgbToHsv(channel(qRed(rgb)), channel(qGreen(rgb)), channel(qBlue(rgb)));
}

void watch(QLxColorButton *button, SignalLog *log)
{
    watch(button, &QLxColorButton::colorButtonClicked, "colorButtonClicked", log);
    watch(button, &QLxColorButton::temporaryColorChosen, "temporaryColorChosen", log);
    watch(button, &QLxColorButton::finalColorChosen, "finalColorChosen", log);
    watch(button, &QLxColorButton::userSkipped, "userSkipped", log);
    watch(button, &QLxColorButton::userAccepted, "userAccepted", log);
}

void watch(QLxColorManipulator *manipulator, SignalLog *log)
{
    using M = QLxColorManipulator;
    watch(manipulator, &M::buttonPressed, "buttonPressed", log);
    watch(manipulator, &M::sliderPressed, "sliderPressed", log);
    watch(manipulator, &M::sliderReleased, "sliderReleased", log);
    watch(manipulator, &M::sliderColorChanged, "sliderColorChanged", log);
    watch(manipulator, QOverload<>::of(&M::colorChanged), "colorChanged", log);
    watch(manipulator, QOverload<QLxColor>::of(&M::colorChanged), "colorChanged", log);
    watch(manipulator, QOverload<int, int, int>::of(&M::colorChanged), "colorChanged", log);
    watch(manipulator, QOverload<float, float, float>::of(&M::colorChanged), "colorChanged", log);
    watch(manipulator, QOverload<>::of(&M::dialogColorChanged), "dialogColorChanged", log);
    watch(manipulator, QOverload<QLxColor>::of(&M::dialogColorChanged), "dialogColorChanged", log);
    watch(manipulator, QOverload<int, int, int>::of(&M::dialogColorChanged), "dialogColorChanged", log);
    watch(manipulator, QOverload<float, float, float>::of(&M::dialogColorChanged), "dialogColorChanged", log);
    watch(manipulator, &M::finalColorSet, "finalColorSet", log);
    watch(manipulator, &M::cancelled, "cancelled", log);
}

QLxColorManipulator *makeManipulator(const char *name, SignalLog *log)
{
    auto *const manipulator = new QLxColorManipulator(nullptr, name);
    manipulator->setFixedHeight(manipulator->sizeHint().height());
    watch(manipulator, log);
    return manipulator;
}

QLxColorManipulator *makeManipulator(const char *name, QRgb color, SignalLog *log)
{
    QLxColorManipulator *const manipulator = makeManipulator(name, log);
    // As a drop on its button does, but for the signals.
    const QSignalBlocker blocker(manipulator);
    manipulator->findChild<QLxColorButton *>()->setColor(fromEncoded(color));
    manipulator->finalColorChanged(fromEncoded(color));
    return manipulator;
}
