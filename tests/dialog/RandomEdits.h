// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef RANDOMEDITS_H
#define RANDOMEDITS_H

#include "ComparedDialog.h"
#include "Pointer.h"

#include <QtTest>

#include <cstdio>
#include <random>

#include <unistd.h>

/// The kinds of edit; those of a channel come nine in a row.
enum Kind : int {
    DragSlider = 0,
    SetSpiner = 9,
    TypeNumber = 18,
    PressModeButton = 27,
    PickFromField = 36,
    DragFieldSlider,
    SetColor,
    SwitchSrgb,
    StoreColor,
    PickCustomColor,
    RestorePrevious,
    ChangeTab,
    KindCount
};

inline QString kindText(int kind)
{
    static const char *const ofChannel[] = {"drag the %1 slider", "set the %1 spin box",
                                            "type into the %1 spin box", "press the %1 mode button"};
    static const char *const others[] = {"pick from the field",
                                         "drag the field slider",
                                         "set a color",
                                         "switch sRGB",
                                         "store a custom color",
                                         "pick a custom color",
                                         "restore the previous color",
                                         "change the tab"};
    return kind < PickFromField
               ? QString::fromLatin1(ofChannel[kind / 9]).arg(QLatin1String(ChannelNames[kind % 9]))
               : QString::fromLatin1(others[kind - PickFromField]);
}

class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }
    int below(int end) { return static_cast<int>(m_engine() % static_cast<unsigned>(end)); }
    bool oneIn(int n) { return below(n) == 0; }
    float unit() { return static_cast<float>(m_engine() >> 8U) * 0x1p-24F; }
    float between(float low, float high) { return low + (high - low) * unit(); }
    float position() { return oneIn(8) ? 0.5F * static_cast<float>(below(3)) : unit(); }
    QLxColor color()
    {
        switch (below(8)) {
        case 0: // a grey that has a hue
            return {between(0, 360), 0, unit()};
        case 1:
            return {60.0F * static_cast<float>(below(6)), 1, 1};
        case 2:
            return {0, 0, static_cast<float>(below(2))};
        case 3: // far out
            return {between(-200, 600), between(0, 1.5F), between(-0.5F, 2)};
        default:
            return {between(0, 360), unit(), unit()};
        }
    }
    /// For a spin box of the channel, also a little outside its range.
    double number(int channel)
    {
        if (channel == OnHue)
            return double(between(-10, 370));
        if (channel == OnSaturation)
            return double(between(-0.1F, 1.1F));
        if (channel == OnLstar)
            return double(between(-5, 105));
        if (channel > OnLstar)
            return double(oneIn(4) ? between(-260, 260) : between(-100, 100));
        return double(oneIn(40) ? between(-200, 200) : between(-0.4F, 1.4F));
    }

    /// One of those done least.
    int leastOf(const std::array<int, KindCount> &done)
    {
        const int least = *std::min_element(done.begin(), done.end());
        int kind = below(KindCount);
        while (done[size_t(kind)] != least)
            kind = (kind + 1) % KindCount;
        return kind;
    }

private:
    std::mt19937 m_engine;
};

/// Sends the process's standard output here while it lives.
class StandardOutput
{
public:
    StandardOutput()
    {
        std::fflush(stdout);
        m_saved = dup(STDOUT_FILENO);
        dup2(fileno(m_file), STDOUT_FILENO);
    }
    ~StandardOutput()
    {
        give();
        std::fclose(m_file);
    }
    StandardOutput(const StandardOutput &) = delete;
    StandardOutput &operator=(const StandardOutput &) = delete;
    /// Ends it, and returns what has arrived unbuffered.
    QByteArray give()
    {
        if (m_saved < 0)
            return {};
        dup2(m_saved, STDOUT_FILENO);
        close(m_saved);
        m_saved = -1;
        char text[200];
        const ssize_t size = pread(fileno(m_file), text, sizeof text, 0);
        return {text, static_cast<int>(size)};
    }

private:
    std::FILE *const m_file = std::tmpfile();
    int m_saved = -1;
};

/// Does the same random edit to a dialog and to what is expected of it.
class RandomEditor
{
public:
    RandomEditor(ComparedDialog &compared, unsigned seed)
        : m_dialog(compared.dialog)
        , m_oracle(compared.oracle)
        , m_compared(compared)
        , m_random(seed)
    {
    }
    /// Returns what was done, in words.
    QString edit(int kind);

private:
    QString drag(QLxColorSlider *slider, ExpectedSlider &expected);
    QString setSpiner(int channel);
    QString type(int channel);
    QString pick();
    QString pickCustomColor();
    QString restorePrevious();
    QString changeTab();

    QLxColorDialog &m_dialog;
    DialogOracle &m_oracle;
    ComparedDialog &m_compared;
    Random m_random;
};

inline QString RandomEditor::drag(QLxColorSlider *slider, ExpectedSlider &expected)
{
    if (!m_random.oneIn(4)) {
        const float x = m_random.oneIn(10) ? expected.position : m_random.position();
        slider->setValue(x, true, false);
        m_oracle.drag(expected, x);
        return QStringLiteral("to ") + exactText(x);
    }
    const int width = slider->width();
    const int from = m_random.below(width + 10) - 5;
    const int to = m_random.below(width + 10) - 5;
    const auto positionAt = [&](int x) {
        const Reference::F t = Reference::F(static_cast<float>(x)) / static_cast<float>(width);
        return std::min(std::max(float(t), 0.0F), 1.0F);
    };
    Pointer pointer(slider);
    pointer.press({from, 3});
    m_oracle.log << emission(expected.name, "sliderPressed");
    m_oracle.drag(expected, positionAt(from));
    pointer.move({to, 3});
    m_oracle.drag(expected, positionAt(to));
    m_oracle.log << emission(expected.name, "sliderMoved", expected.position);
    pointer.release({to, 3});
    m_oracle.log << emission(expected.name, "sliderReleased");
    return QStringLiteral("by the pointer from %1 to %2 of %3").arg(from).arg(to).arg(width);
}

inline QString RandomEditor::setSpiner(int channel)
{
    const double x = m_random.number(channel);
    m_compared.spiners[size_t(channel)]->setValue(x);
    m_oracle.commit(channel, m_oracle.spiners[size_t(channel)].rounded(x));
    return QStringLiteral("to ") + exactText(x);
}

inline QString RandomEditor::type(int channel)
{
    QLxDoubleSpiner *const spiner = m_compared.spiners[size_t(channel)];
    const ExpectedSpiner &expected = m_oracle.spiners[size_t(channel)];
    QString text;
    double number = 0.0;
    // What is typed has few digits; the number is what it says.
    const auto typed = [&](double x, int decimals) {
        const QString digits = QString::number(x, 'f', decimals);
        text += digits;
        return digits.toDouble();
    };
    const auto part = [&] { return std::fabs(m_random.number(channel)); };
    switch (m_random.below(12)) { // mostly plain numbers: each key of an expression is evaluated
    case 0: {                     // (a+b)/3-c
        text += QLatin1Char('(');
        number = typed(part(), 2);
        text += QLatin1Char('+');
        number = (number + typed(part(), 3)) / 3.0;
        text += QLatin1String(")/3-");
        number -= typed(part() / 4.0, 1);
        break;
    }
    case 1:
    case 2: {
        static const char *const operators[] = {"+=", "-=", "*=", "/="};
        const int op = m_random.below(4);
        text = QLatin1String(operators[op]);
        const double operand = m_random.oneIn(10) ? typed(0.0, 0) : typed(op < 2 ? part() / 4.0 : 1.25, 2);
        number = expected.value;
        if (op == 0)
            number += operand;
        else if (op == 1)
            number -= operand;
        else if (op == 2)
            number *= operand;
        else if (operand != 0.0)
            number /= operand;
        break;
    }
    default: {
        const double x = expected.bound(m_random.number(channel));
        number = typed(channel == OnHue ? std::min(x, 359.9) : x, 1 + m_random.below(4)); // 360.0 is refused
    }
    }
    spiner->selectAll();
    QTest::keyClicks(spiner, text);
    QTest::keyClick(spiner, Qt::Key_Return);
    m_oracle.commit(channel, expected.bound(number));
    return QStringLiteral("\"%1\", which is %2").arg(text, exactText(number));
}

inline QString RandomEditor::pick()
{
    QLxColorField *const field = m_dialog._colorField;
    const int width = field->width();
    const int height = field->height();
    Pointer pointer(field);
    QString text;
    const int count = m_random.oneIn(4) ? 2 : 1;
    QPoint at;
    for (int i = 0; i < count; ++i) {
        at = {m_random.below(width + 10) - 5, m_random.below(height + 10) - 5};
        i == 0 ? pointer.press(at) : pointer.move(at);
        m_oracle.pick(at.x(), at.y(), width, height);
        text += QStringLiteral("at %1 %2 of %3 x %4 ").arg(at.x()).arg(at.y()).arg(width).arg(height);
    }
    pointer.release(at);
    return text.trimmed();
}

inline QString RandomEditor::pickCustomColor()
{
    QLxColorArray *const array = m_dialog._custom_colors;
    if (m_random.oneIn(5)) {
        QTest::keyClick(array, Qt::Key_Right);
        QTest::keyClick(array, Qt::Key_Return);
        m_oracle.currentCell = std::min(m_oracle.currentCell + 1, 10);
        m_oracle.selectCurrentCell();
        return QStringLiteral("by Right and Return, of cell %1").arg(m_oracle.currentCell);
    }
    const int index = m_random.below(11);
    const bool left = !m_random.oneIn(5);
    const auto cells = array->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    Pointer pointer(cells.at(index));
    const Qt::MouseButton button = left ? Qt::LeftButton : Qt::RightButton;
    pointer.press({8, 8}, button);
    pointer.release({8, 8}, button);
    m_oracle.currentCell = index;
    if (left)
        m_oracle.selectCurrentCell();
    return QStringLiteral("with the %1 button, of cell %2")
        .arg(left ? QStringLiteral("left") : QStringLiteral("right"))
        .arg(index);
}

inline QString RandomEditor::restorePrevious()
{
    StandardOutput output;
    Pointer pointer(m_dialog._previous_color);
    pointer.press({3, 3});
    pointer.release({3, 3});
    m_oracle.restorePrevious();
    if (output.give() != "Called Restore Previous Color\n")
        m_oracle.log << QStringLiteral("the line on standard output");
    return {};
}

inline QString RandomEditor::changeTab()
{
    // Disturbs a channel's controls first, so that it shows which tab brings them in step.
    const auto channel = size_t(m_random.below(9));
    const float position = m_random.unit();
    const QSignalBlocker blockers[] = {QSignalBlocker(m_compared.sliders[channel]),
                                       QSignalBlocker(m_compared.spiners[channel])};
    m_compared.sliders[channel]->setValue(position);
    m_oracle.sliders[channel].moveTo(position);
    m_compared.spiners[channel]->setValue(double(position));
    m_oracle.spiners[channel].value = m_oracle.spiners[channel].rounded(double(position));
    m_oracle.labels[channel] = QStringLiteral("?");
    m_compared.labels[channel]->setText(m_oracle.labels[channel]);

    const int index = m_random.oneIn(4) ? 2 * m_random.below(2) - 1 : 0;
    if (!QMetaObject::invokeMethod(&m_dialog, "tabChanged", Q_ARG(int, index)))
        m_oracle.log << QStringLiteral("the slot");
    if (index == 0)
        m_oracle.refresh();
    return QStringLiteral("to %1").arg(index);
}

inline QString RandomEditor::edit(int kind)
{
    if (kind < SetSpiner)
        return drag(m_compared.sliders[size_t(kind)], m_oracle.sliders[size_t(kind)]);
    if (kind < TypeNumber)
        return setSpiner(kind - SetSpiner);
    if (kind < PressModeButton)
        return type(kind - TypeNumber);
    switch (kind) {
    case PickFromField:
        return pick();
    case DragFieldSlider:
        return drag(m_dialog._colorFieldSlider, m_oracle.fieldSlider);
    case SetColor: {
        const QLxColor color = m_random.oneIn(8) ? m_oracle.boundary() : m_random.color();
        m_dialog.setColor(color);
        m_oracle.setColor(color);
        return QStringLiteral("to ") + exactText(color);
    }
    case SwitchSrgb:
        m_dialog._useGamma->click();
        m_oracle.setUseGamma(!m_oracle.useGamma);
        return {};
    case StoreColor:
        m_dialog._store_custom_color->click();
        m_oracle.storeColor();
        return {};
    case PickCustomColor:
        return pickCustomColor();
    case RestorePrevious:
        return restorePrevious();
    case ChangeTab:
        return changeTab();
    default:
        m_compared.buttons[size_t(kind - PressModeButton)]->click();
        m_oracle.enterMode(kind - PressModeButton);
        return {};
    }
}

#endif
