// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DIALOGACTS_H
#define DIALOGACTS_H

#include "Pointer.h"
#include "QLxColorButton.h"
#include "QLxColorCell_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QRegularExpression>

#include <functional>
#include <limits>

using Limits = std::numeric_limits<float>;
using Numbers = QVector<float>;

const char *const channels[] = {"hue",  "saturation", "value", "red",  "green",
                                "blue", "lstar",      "astar", "bstar"};
const QLxColor ordinary{210, 0.5F, 0.5F};

QList<QLxColorCellData *> &processCells();
template <auto Cells>
struct Behind
{
    friend QList<QLxColorCellData *> &processCells() { return *Cells; }
};
template struct Behind<&QLxColorArray::s_cellData>; // which last as long as the process

template <typename Widget>
Widget *part(QLxColorDialog *dialog, int channel, const char *kind)
{
    return dialog->findChild<Widget *>(
        QStringLiteral("_%1%2").arg(QString::fromLatin1(channels[channel]), QString::fromLatin1(kind)));
}

inline QLxColorSlider *sliderOf(QLxColorDialog *dialog, int channel)
{
    return part<QLxColorSlider>(dialog, channel, "Slider");
}

inline QLxDoubleSpiner *boxOf(QLxColorDialog *dialog, int channel)
{
    return part<QLxDoubleSpiner>(dialog, channel, "Spiner");
}

inline void setMode(QLxColorDialog *dialog, int channel)
{
    part<QRadioButton>(dialog, channel, "Button")->setChecked(true);
}

inline void press(QWidget *widget, const QPoint &at = {8, 8})
{
    Pointer pointer(widget);
    pointer.press(at);
    pointer.release(at);
}

inline void drag(QWidget *widget)
{
    Pointer pointer(widget);
    pointer.press({37, 8});
    pointer.move({51, 9});
    pointer.release({51, 9});
}

/// Types into a spin box as a user does who selects its text first.
inline void type(QLxColorDialog *dialog, int channel, const QString &text)
{
    QLxDoubleSpiner *const box = boxOf(dialog, channel);
    dialog->activateWindow();
    QApplication::setActiveWindow(dialog);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

// The dialog's colour as its text says, written a second time.

inline QString emitted(const QLxColor &linear)
{
    const QLxColor color =
        QLx::colorUseGamma ? linear : Reference::eachChannel(linear, Reference::linearToSrgb);
    return QStringLiteral("colorChanged(%1)").arg(asText(color));
}

inline QLxColor inward(const QLxColor &color)
{
    return QLx::colorUseGamma ? color : Reference::eachChannel(color, Reference::srgbToLinear);
}

/// The colour with the number from a spin box in one of its channels.
inline QLxColor edited(int channel, const QLxColor &color, double number)
{
    const auto x = static_cast<float>(number);
    const auto limited = [x](float highest) { return x > 0.0F ? std::min(x, highest) : 0.0F; };
    if (channel == 0)
        return {limited(359.999F), color.saturation, color.value};
    if (channel == 1)
        return {color.hue, limited(1.0F), color.value};
    if (channel == 2)
        return {color.hue, color.saturation,
                QLx::colorUseGamma ? Reference::srgbToLinear(limited(1.0F)) : limited(1.0F)};
    Reference::Triple triple = channel < 6 ? Reference::hsvToRgb(color) : Reference::hsvToLab(color);
    triple.at(static_cast<size_t>(channel % 3)) = channel < 6 ? Reference::srgbToLinear(x) : x;
    return channel < 6 ? Reference::rgbToHsv(triple) : Reference::labToHsv(triple);
}

/// What a user sees of the colour.
inline QStringList views(QLxColorDialog *dialog)
{
    QStringList all;
    for (const QLabel *const label :
         {dialog->_r_label, dialog->_g_label, dialog->_b_label, dialog->_h_label, dialog->_s_label,
          dialog->_v_label, dialog->_Lstar_label, dialog->_astar_label, dialog->_bstar_label})
        all.append(label->text());
    for (int channel = 0; channel < 9; ++channel)
        all << boxOf(dialog, channel)->text() << asText(sliderOf(dialog, channel)->getValue());
    all << asText(dialog->_colorFieldSlider->getValue()) << dialog->_current_color->styleSheet();
    Reference::Triple field;
    dialog->_colorField->getRGB(field[0], field[1], field[2]);
    return all << asText(field[0]) << asText(field[1]) << asText(field[2]);
}

/// The boxes whose number is none, or is out of range.
inline QString badBoxes(QLxColorDialog *dialog)
{
    QString bad;
    for (int channel = 0; channel < 9; ++channel) {
        const QLxDoubleSpiner *const box = boxOf(dialog, channel);
        if (!qIsFinite(box->value()) || box->value() < box->minimum() || box->value() > box->maximum())
            bad += QString::fromLatin1(channels[channel]) + QLatin1Char(' ');
    }
    return bad;
}

/// A thing that a user or a host does to the dialog.
struct Act
{
    QString name;
    QString emits; // c: colorChanged, a: accepted, r: rejected
    std::function<void(QLxColorDialog *)> run;
    bool repeats = false; // what another one does with another channel of the same colour space
};

inline std::vector<Act> allActs()
{
    using D = QLxColorDialog;
    std::vector<Act> acts;
    const auto add = [&](const QString &name, const char *emits, const std::function<void(D *)> &run,
                         bool repeats = false) {
        acts.push_back({name, QString::fromLatin1(emits), run, repeats});
    };
    for (int i = 0; i < 9; ++i) {
        const QString name = QString::fromLatin1(channels[i]);
        const bool repeats = i % 3 > 0;
        const auto inField = [i](D *d) {
            setMode(d, i);
            press(d->_colorField, {37, 51});
        };
        const auto inFieldSlider = [i](D *d) {
            setMode(d, i);
            press(d->_colorFieldSlider);
        };
        add(
            name + QStringLiteral(" slider"), "c", [i](D *d) { press(sliderOf(d, i)); }, repeats);
        add(QStringLiteral("field for ") + name, "c", inField, repeats);
        add(QStringLiteral("field slider for ") + name, "c", inFieldSlider, repeats);
        add(QStringLiteral("mode button for ") + name, "",
            [i](D *d) { part<QRadioButton>(d, i, "Button")->click(); });
    }
    add(QStringLiteral("slider dragged"), "cc", [](D *d) { drag(d->_redSlider); });
    add(QStringLiteral("field dragged"), "cc", [](D *d) { drag(d->_colorField); });
    add(QStringLiteral("check box by mouse"), "c", [](D *d) { press(d->_useGamma); });
    add(QStringLiteral("check box by key"), "c", [](D *d) { QTest::keyClick(d->_useGamma, Qt::Key_Space); });
    add(QStringLiteral("check box by program"), "c", [](D *d) { d->_useGamma->setChecked(false); });
    add(QStringLiteral("setting by its slot"), "c",
        [](D *d) { QMetaObject::invokeMethod(d, "setUseGamma", Q_ARG(bool, false)); });
    add(QStringLiteral("store"), "", [](D *d) { press(d->_store_custom_color); });
    add(QStringLiteral("current swatch"), "", [](D *d) { press(d->_current_color); });
    add(QStringLiteral("previous swatch"), "c", [](D *d) { press(d->_previous_color); });
    add(QStringLiteral("previous swatch by key"), "c",
        [](D *d) { QTest::keyClick(d->_previous_color, Qt::Key_Space); });
    const auto cell = [](D *d) { return d->_custom_colors->findChild<QAbstractButton *>(); };
    add(QStringLiteral("custom cell"), "c", [cell](D *d) {
        press(d->_store_custom_color);
        press(cell(d));
    });
    add(QStringLiteral("custom cell by key"), "c", [cell](D *d) {
        Pointer(cell(d)).release({3, 3}, Qt::RightButton); // makes it current
        press(d->_store_custom_color);
        QTest::keyClick(cell(d), Qt::Key_Return);
    });
    add(QStringLiteral("set by program"), "c", [](D *d) { d->setColor({77, 0.25F, 0.75F}); });
    add(QStringLiteral("display gamma"), "c",
        [](D *d) { QMetaObject::invokeMethod(d, "setGammaValue", Q_ARG(double, 1.5)); });
    add(QStringLiteral("accept"), "a", [](D *d) { press(d->_accept); });
    add(QStringLiteral("accept by key"), "a", [](D *d) { QTest::keyClick(d->_accept, Qt::Key_Space); });
    add(QStringLiteral("cancel"), "cr", [](D *d) { press(d->_reject); });
    add(QStringLiteral("Escape"), "cr", [](D *d) { QTest::keyClick(d, Qt::Key_Escape); });
    add(QStringLiteral("window closed"), "ccr", [](D *d) { d->close(); });
    return acts;
}

inline void actRows(const QString &emitting, bool all = true)
{
    QTest::addColumn<int>("index");
    const std::vector<Act> acts = allActs();
    for (size_t i = 0; i < acts.size(); ++i)
        if (acts[i].emits.contains(QRegularExpression(emitting)) && (all || !acts[i].repeats))
            QTest::newRow(qPrintable(acts[i].name)) << int(i);
}

/// A host in a module, with its dialog open, and the log of what the dialog emits.
class DialogTest : public TestCase
{
protected:
    void closeAll()
    {
        delete m_module;
        m_log.take();
        QLx::colorUseGamma = true;
        QLx::colorGammaValue = 2.2F;
        for (QLxColorCellData *const cell : qAsConst(processCells()))
            *cell = QLxColorCellData();
    }
    void open()
    {
        closeAll();
        m_module = new QWidget;
        m_module->setObjectName(QStringLiteral("Module"));
        m_host = new QLxColorButton(m_module);
        m_host->setColor(ordinary);
        press(m_host);
        m_log.watch(dialog(), &QLxColorDialog::colorChanged, "colorChanged");
        m_log.watch(dialog(), &QDialog::accepted, "accepted");
        m_log.watch(dialog(), &QDialog::rejected, "rejected");
    }

    QLxColorDialog *dialog() const { return static_cast<QLxColorDialog *>(sharedColorDialog.data()); }

    QPointer<QWidget> m_module;
    QPointer<QLxColorButton> m_host;
    SignalLog m_log;
};

#endif
