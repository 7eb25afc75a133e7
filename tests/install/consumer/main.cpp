// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SignalLog.h"
#include "ui_form.h"

#include <QApplication>
#include <QLxColorSlider.h>
#include <QLxColorSpaces.h>
#include <QWindow>
#include <QtTest>

#include <cstdio>

namespace {

/// Prints a difference between the log and what is expected.
bool logged(SignalLog &log, std::initializer_list<LogLine> expected)
{
    const QString actual = log.take().join(QLatin1Char('\n'));
    if (actual == logText(expected))
        return true;
    std::printf("logged:\n%s\nexpected:\n%s\n", qPrintable(actual), qPrintable(logText(expected)));
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;

    using M = QLxColorManipulator;
    M *const tint = form.qLxColorManipulator;
    SignalLog log;
    log.watch(tint, &M::sliderPressed, "sliderPressed");
    log.watch(tint, QOverload<>::of(&M::colorChanged), "colorChanged");
    log.watch(tint, QOverload<QLxColor>::of(&M::colorChanged), "colorChanged");
    log.watch(tint, QOverload<float, float, float>::of(&M::colorChanged), "colorChanged");
    log.watch(tint, QOverload<int, int, int>::of(&M::colorChanged), "colorChanged");
    log.watch(tint, &M::sliderColorChanged, "sliderColorChanged");
    log.watch(tint, &M::sliderReleased, "sliderReleased");
    log.watch(tint, &M::finalColorSet, "finalColorSet");

    // A drag by events of the window, from a quarter of the slider to its right end.
    auto *const slider = tint->findChild<QLxColorSlider *>();
    slider->resize(100, slider->height());
    const QPoint origin = slider->mapTo(&window, QPoint(0, 5));
    QWindow *const handle = window.windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, origin + QPoint(25, 0));
    const QString quarter = asText(QLx::srgbToLinear(0.25F));
    const QString grey = QStringLiteral("(%1, %1, %1)").arg(quarter);
    if (!logged(log,
                {"sliderPressed()", "colorChanged()", QStringLiteral("colorChanged(hsv 0 0 %1)").arg(quarter),
                 QStringLiteral("colorChanged") + grey, "colorChanged(12, 12, 12)",
                 QStringLiteral("sliderColorChanged") + grey}))
        return 1;
    QTest::mouseMove(handle, origin + QPoint(500, 0));
    if (!logged(log, {"colorChanged()", "colorChanged(hsv 0 0 1)", "colorChanged(1, 1, 1)",
                      "colorChanged(255, 255, 255)", "sliderColorChanged(1, 1, 1)"}))
        return 1;
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, origin + QPoint(500, 0));
    if (!logged(log, {"sliderReleased()", "finalColorSet(hsv 0 0 1)"}))
        return 1;
    std::puts("the form reacts to the drag");
    return 0;
}
