// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DIALOGPROBE_H
#define DIALOGPROBE_H

#include "Pointer.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>
#include <utility>

// A colour dialog under test, and what it should hold and say.

#define COMPARE_COLOR(actual, expected) QCOMPARE(asText(actual), asText(expected))

inline const QLxColor Sample{200.0F, 0.5F, 0.25F};
inline const QLxColor Other{30.0F, 0.75F, 0.5F};

inline const char *const Channels[] = {"hue",  "saturation", "value", "red",  "green",
                                       "blue", "lstar",      "astar", "bstar"};

/// A dialog of its own, and all that it emits.
struct Probe : QLxColorDialog
{
    explicit Probe(const QLxColor &color = Sample)
        : QLxColorDialog(color, nullptr, nullptr)
    {
        log.watch(this, &QLxColorDialog::colorChanged, "colorChanged");
        log.watch(this, &QDialog::accepted, "accepted");
        log.watch(this, &QDialog::rejected, "rejected");
    }
    /// The dialog's own colour, without what the sRGB setting makes of it at the boundary.
    QLxColor linear() const
    {
        const bool setting = std::exchange(QLx::colorUseGamma, true);
        const QLxColor color = getColor();
        QLx::colorUseGamma = setting;
        return color;
    }
    template <typename... Args>
    void call(const char *slot, Args... args)
    {
        QVERIFY2(QMetaObject::invokeMethod(
                     this, slot, QArgument<Args>(QMetaType::typeName(qMetaTypeId<Args>()), args)...),
                 slot);
    }
    QLxColorSlider *slider(int channel) const { return control<QLxColorSlider>(channel, "Slider"); }
    QLxDoubleSpiner *spiner(int channel) const { return control<QLxDoubleSpiner>(channel, "Spiner"); }
    QRadioButton *button(int channel) const { return control<QRadioButton>(channel, "Button"); }
    QWidget *cell(int index) const { return _custom_colors->findChildren<QAbstractButton *>().at(index); }

    SignalLog log;

private:
    template <typename Control>
    Control *control(int channel, const char *kind) const
    {
        return findChild<Control *>(QString::fromLatin1(QByteArray("_") + Channels[channel] + kind));
    }
};

inline LogLine announced(const QLxColor &color)
{
    return QStringLiteral("colorChanged(%1)").arg(asText(color));
}

inline QLxColor encoded(const QLxColor &color)
{
    return Reference::eachChannel(color, Reference::linearToSrgb);
}

inline QLxColor decoded(const QLxColor &color)
{
    return Reference::eachChannel(color, Reference::srgbToLinear);
}

inline QLxColor replaced(const QLxColor &color, int channel, float x)
{
    Reference::Triple space{color.hue, color.saturation, color.value};
    if (channel >= 3)
        space = channel < 6 ? Reference::hsvToRgb(color) : Reference::hsvToLab(color);
    space[size_t(channel % 3)] = x;
    if (channel < 3)
        return {space[0], space[1], space[2]};
    return channel < 6 ? Reference::rgbToHsv(space) : Reference::labToHsv(space);
}

/// What a swatch holds to show the colour: its eight-bit levels.
inline QLxColor swatch(const QLxColor &color, bool encode)
{
    const QColor shown = Reference::display(color, encode);
    const auto channel = [](int level) { return float(Reference::F(float(level)) / Reference::F(255.0F)); };
    return Reference::rgbToHsv({channel(shown.red()), channel(shown.green()), channel(shown.blue())});
}

inline QString number(float x, int decimals)
{
    return QString::number(static_cast<double>(x), 'f', decimals);
}

inline void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton)
{
    Pointer pointer(widget);
    pointer.press({3, 3}, button);
    pointer.release({3, 3}, button);
}

inline void type(QWidget *box, const QString &keys)
{
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, keys);
    QTest::keyClick(box, Qt::Key_Return);
}

inline void settingRows()
{
    QTest::addColumn<bool>("srgb");
    QTest::newRow("with sRGB") << true;
    QTest::newRow("without sRGB") << false;
}

inline void channelRows(int first, int last)
{
    QTest::addColumn<int>("channel");
    for (int channel = first; channel <= last; ++channel)
        QTest::newRow(Channels[channel]) << channel;
}

/// What the action writes to standard output and does not leave in a buffer.
template <typename Action>
QByteArray printed(Action action)
{
    std::fflush(stdout);
    QTemporaryFile file;
    const int before = dup(STDOUT_FILENO);
    if (!file.open() || before < 0)
        return "(not captured)";
    dup2(file.handle(), STDOUT_FILENO);
    action();
    dup2(before, STDOUT_FILENO);
    close(before);
    QFile written(file.fileName());
    return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray("(not captured)");
}

#endif
