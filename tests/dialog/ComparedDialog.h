// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef COMPAREDDIALOG_H
#define COMPAREDDIALOG_H

#include "DialogOracle.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"

#include <QSignalBlocker>

#include <cstring>

inline bool same(float a, float b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}
inline bool same(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}
inline bool same(const QLxColor &a, const QLxColor &b)
{
    return same(a.hue, b.hue) && same(a.saturation, b.saturation) && same(a.value, b.value);
}
inline bool same(const QString &a, const QString &b)
{
    return a == b;
}
inline bool same(bool a, bool b)
{
    return a == b;
}
inline bool same(int a, int b)
{
    return a == b;
}

inline std::vector<ExpectedCell> customColors(const QLxColorArray *array)
{
    std::vector<ExpectedCell> cells;
    for (int i = 0; i < 11; ++i)
        cells.push_back({array->getColor(i), array->isFreeCell(i)});
    return cells;
}

/// A dialog beside what it should be. Whoever edits the one tells the other.
class ComparedDialog
{
public:
    /// Opened with the present setting of colorUseGamma.
    explicit ComparedDialog(const QLxColor &initial);

    /// Where the dialog, or what was emitted since the last look, is not as it should be; bit for bit.
    QStringList differences();

    QLxColorDialog dialog;
    const std::array<QLxColorSlider *, 9> sliders;
    const std::array<QLxDoubleSpiner *, 9> spiners;
    const std::array<QRadioButton *, 9> buttons;
    const std::array<QLabel *, 9> labels;
    DialogOracle oracle;

private:
    template <typename Sender, typename Class, typename... Args>
    void watch(Sender *sender, const QString &who, void (Class::*signal)(Args...), const char *name)
    {
        QObject::connect(sender, signal, m_log.context(),
                         [=](Args... args) { m_log.note(emission(who, name, args...)); });
    }
    void watch(QLxColorSlider *slider);
    QString shown() const;
    template <typename T>
    void compare(const QString &who, const char *what, const T &is, const T &should)
    {
        if (!same(is, should))
            m_differences << QStringLiteral("%1 %2 is %3, should be %4")
                                 .arg(who, QLatin1String(what), exactText(is), exactText(should));
    }
    void compare(const QLxColorSlider *slider, const ExpectedSlider &expected);
    void compare(const QString &who, const QLxColorButton *swatch, const ExpectedSwatch &expected);

    SignalLog m_log;
    QStringList m_differences;
};

inline ComparedDialog::ComparedDialog(const QLxColor &initial)
    : dialog(initial, nullptr, nullptr)
    , sliders{dialog._hueSlider,   dialog._saturationSlider, dialog._valueSlider,
              dialog._redSlider,   dialog._greenSlider,      dialog._blueSlider,
              dialog._lstarSlider, dialog._astarSlider,      dialog._bstarSlider}
    , spiners{dialog._hueSpiner,   dialog._saturationSpiner, dialog._valueSpiner,
              dialog._redSpiner,   dialog._greenSpiner,      dialog._blueSpiner,
              dialog._lstarSpiner, dialog._astarSpiner,      dialog._bstarSpiner}
    , buttons{dialog._hueButton,   dialog._saturationButton, dialog._valueButton,
              dialog._redButton,   dialog._greenButton,      dialog._blueButton,
              dialog._lstarButton, dialog._astarButton,      dialog._bstarButton}
    , labels{dialog._h_label, dialog._s_label,     dialog._v_label,     dialog._r_label,    dialog._g_label,
             dialog._b_label, dialog._Lstar_label, dialog._astar_label, dialog._bstar_label}
    , oracle(initial, QLx::colorUseGamma, customColors(dialog._custom_colors))
{
    QObject::connect(&dialog, &QLxColorDialog::colorChanged, m_log.context(), [this](const QLxColor &color) {
        m_log.note(emission(QStringLiteral("dialog"), "colorChanged", color) + shown());
    });
    watch(&dialog, QStringLiteral("dialog"), &QDialog::finished, "finished");
    for (QLxColorSlider *const slider : sliders)
        watch(slider);
    watch(dialog._colorFieldSlider);
    for (QLxDoubleSpiner *const spiner : spiners)
        watch(spiner, spiner->objectName(), QOverload<double>::of(&QLxDoubleSpiner::valueChanged),
              "valueChanged");
    watch(dialog._colorField, QStringLiteral("_colorField"), &QLxColorField::colorChanged, "colorChanged");
    watch(dialog._colorField, QStringLiteral("_colorField"), &QLxColorField::constantChannelChanged,
          "constantChannelChanged");
    watch(dialog._useGamma, QStringLiteral("_useGamma"), &QCheckBox::toggled, "toggled");
    watch(dialog._custom_colors, QStringLiteral("_custom_colors"), &QLxColorArray::selected, "selected");
    for (QLxColorButton *const swatch : {dialog._previous_color, dialog._current_color}) {
        watch(swatch, swatch->objectName(), &QLxColorButton::colorButtonClicked, "colorButtonClicked");
        watch(swatch, swatch->objectName(), &QLxColorButton::temporaryColorChosen, "temporaryColorChosen");
        watch(swatch, swatch->objectName(), &QLxColorButton::finalColorChosen, "finalColorChosen");
    }
}

inline QString ComparedDialog::shown() const
{
    QString text = QStringLiteral(" showing ") + exactText(dialog._previous_color->getColor());
    for (size_t i = 0; i < 9; ++i)
        text += QLatin1String(", ") + labels[i]->text() + QLatin1String(" / ") + spiners[i]->text();
    return text;
}

inline void ComparedDialog::watch(QLxColorSlider *slider)
{
    using S = QLxColorSlider;
    const QString who = slider->objectName();
    watch(slider, who, &S::minColorChanged, "minColorChanged");
    watch(slider, who, &S::maxColorChanged, "maxColorChanged");
    watch(slider, who, QOverload<float>::of(&S::valueChanged), "valueChanged");
    watch(slider, who, &S::colorChanged, "colorChanged");
    watch(slider, who, QOverload<QString>::of(&S::valueChanged), "valueChanged");
    watch(slider, who, &S::sliderPressed, "sliderPressed");
    watch(slider, who, &S::sliderMoved, "sliderMoved");
    watch(slider, who, &S::sliderReleased, "sliderReleased");
}

inline void ComparedDialog::compare(const QLxColorSlider *slider, const ExpectedSlider &expected)
{
    compare(expected.name, "mode", int(slider->getMode()), expected.mode);
    compare(expected.name, "position", slider->getValue(), expected.position);
    compare(expected.name, "minimum color", slider->getMinColor(), expected.minimum);
    compare(expected.name, "maximum color", slider->getMaxColor(), expected.maximum);
}

inline void ComparedDialog::compare(const QString &who, const QLxColorButton *swatch,
                                    const ExpectedSwatch &expected)
{
    compare(who, "color", swatch->getColor(), expected.color);
    compare(who, "look", swatch->styleSheet(), expected.look);
}

inline QStringList ComparedDialog::differences()
{
    m_differences.clear();
    compare(QStringLiteral("dialog"), "color", dialog.getColor(), oracle.boundary());
    for (size_t i = 0; i < 9; ++i) {
        compare(sliders[i], oracle.sliders[i]);
        compare(oracle.spiners[i].name, "value", spiners[i]->value(), oracle.spiners[i].value);
        compare(oracle.spiners[i].name, "text", spiners[i]->text(), oracle.spiners[i].text());
        compare(labels[i]->objectName(), "text", labels[i]->text(), oracle.labels[i]);
        compare(buttons[i]->objectName(), "checked", buttons[i]->isChecked(), int(i) == oracle.field.mode);
    }
    compare(dialog._colorFieldSlider, oracle.fieldSlider);
    const QString field = QStringLiteral("_colorField");
    compare(field, "mode", int(dialog._colorField->getMode()), oracle.field.mode);
    compare(field, "color", dialog._colorField->getColor(), oracle.field.color);
    compare(field, "constant channel", dialog._colorField->getConstantChannel(), oracle.field.constant);
    compare(QStringLiteral("_current_color"), dialog._current_color, oracle.currentSwatch);
    compare(QStringLiteral("_previous_color"), dialog._previous_color, oracle.previousSwatch);
    compare(QStringLiteral("_useGamma"), "checked", dialog._useGamma->isChecked(), oracle.useGamma);
    compare(QStringLiteral("colorUseGamma"), "", QLx::colorUseGamma, oracle.useGamma);
    const std::vector<ExpectedCell> cells = customColors(dialog._custom_colors);
    for (size_t i = 0; i < cells.size(); ++i) {
        const QString who = QStringLiteral("_custom_colors %1").arg(i);
        compare(who, "free", cells[i].isFree, oracle.cells[i].isFree);
        compare(who, "color", cells[i].color, oracle.cells[i].color);
    }
    const QStringList said = m_log.take();
    if (said != oracle.log)
        m_differences << QStringLiteral("emitted:\n    %1\n  should be:\n    %2")
                             .arg(said.join(QLatin1String("\n    ")),
                                  oracle.log.join(QLatin1String("\n    ")));
    oracle.log.clear();
    return m_differences;
}

#endif
