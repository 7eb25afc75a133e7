// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef FORMTABLE_H
#define FORMTABLE_H

#include "SignalLog.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMetaEnum>
#include <QStyle>
#include <QTabWidget>

// What the colour dialog's form consists of, item by item, and how a form is read in the same words.
namespace FormTable {

struct Item
{
    const char *name;
    const char *className;
    // Where it is: "layout (row, column)" with "+ rows x columns" if it spans more than one cell, "layout
    // [index]", "tabs page index", "on widget" for a widget's own layout, or just "in widget" for any depth
    // below it.
    const char *place;
    const char *settings; // "property=value" and the like, separated by bars
};

constexpr const char *Placeholder = "minimumWidth=100|alignment=left vcenter|wordWrap=false";

const Item items[] = {
    {"gridLayout_5", "QGridLayout", "on QLxColorDialogGUI", "spacing=6|margins=0 0 0 0"},
    {"tabWidget", "QTabWidget", "gridLayout_5 (0, 0)", "currentIndex=0|tabs=Color, Spectrum"},

    // The colour page.
    {"_color_tab", "QWidget", "tabWidget page 0", ""},
    {"gridLayout_4", "QGridLayout", "on _color_tab", "spacing=6|margins=0 0 0 0"},
    {"groupBox_color", "QFrame", "gridLayout_4 (0, 0)", ""},
    {"gridLayout_3", "QGridLayout", "on groupBox_color", "spacing=6"},
    {"VBoxhLayout2", "QVBoxLayout", "gridLayout_3 (0, 0)", "spacing=6|count=2"},
    {"groupBox3", "QGroupBox", "VBoxhLayout2 [0]", "title=Current|maximumWidth=100|flat=true|alignment=left"},
    {"gridLayout_10", "QGridLayout", "on groupBox3", "spacing=6|margins=0 -1 0 -1"},
    {"_current_color", "QLxColorButton", "gridLayout_10 (2, 0)",
     "minimumWidth=64|maximumWidth=64|flat=true|autoDefault=false|showColorDialog=false"},
    {"_previous_color", "QLxColorButton", "gridLayout_10 (3, 0)",
     "minimumWidth=64|maximumWidth=64|flat=true|autoDefault=false|showColorDialog=false"},
    {"groupBox5", "QGroupBox", "VBoxhLayout2 [1]", "title=Output Color|maximumWidth=100|flat=true"},
    {"gridLayout", "QGridLayout", "on groupBox5", "spacing=6|margins=0 0 0 0"},
    {"RGBGrid", "QGridLayout", "gridLayout (0, 0)", "spacing=6|margins=4 4 4 4"},
    {"HSVGrid", "QGridLayout", "gridLayout (1, 0)", "spacing=6|margins=4 4 4 4"},
    {"LABGrid", "QGridLayout", "gridLayout (2, 0)", "spacing=6|margins=4 4 4 4"},
    {"_r_label", "QLabel", "RGBGrid (0, 0)", Placeholder},
    {"_g_label", "QLabel", "RGBGrid (1, 0)", Placeholder},
    {"_b_label", "QLabel", "RGBGrid (2, 0)", Placeholder},
    {"_h_label", "QLabel", "HSVGrid (0, 0)", Placeholder},
    {"_s_label", "QLabel", "HSVGrid (1, 0)", Placeholder},
    {"_v_label", "QLabel", "HSVGrid (2, 0)", Placeholder},
    {"_Lstar_label", "QLabel", "LABGrid (0, 0)", Placeholder},
    {"_astar_label", "QLabel", "LABGrid (1, 0)", Placeholder},
    {"_bstar_label", "QLabel", "LABGrid (2, 0)", Placeholder},
    {"verticalLayout", "QVBoxLayout", "gridLayout_3 (0, 1) + 2 x 1", "spacing=6|count=2"},
    {"frame", "QFrame", "verticalLayout [0]", "minimumSize=256x256|frameShape=WinPanel|horizontalStretch=3"},
    {"gridLayout_color_field", "QGridLayout", "on frame", "spacing=6|margins=0 0 0 0"},
    {"_colorField", "QLxColorField", "gridLayout_color_field (0, 0)",
     "minimumSize=300x300|horizontalStretch=10|verticalStretch=10"},
    {"frame_2", "QFrame", "verticalLayout [1]", "minimumWidth=300|frameShape=WinPanel"},
    {"gridLayout_2", "QGridLayout", "on frame_2", "spacing=0|margins=0 0 0 0"},
    {"_colorFieldSlider", "QLxColorSlider", "gridLayout_2 (0, 0)", "minimumSize=300x20"},
    {"_pick_color", "QToolButton", "gridLayout_3 (1, 0)",
     "text=Pipette|toolButtonStyle=ToolButtonTextUnderIcon|checkable=true|checked=false|maximumWidth=100|"
     "toolTip=The pipette allows picking a color from screen.\n"
     "Activate the Pipette and left-click anywhere on the desktop.\n"
     "To abort picking click again the Pipette button or right-click anywhere."},
    {"_color_slider_group", "QGroupBox", "gridLayout_3 (0, 2)", "title=Color"},
    {"horizontalLayout", "QHBoxLayout", "gridLayout_3 (1, 2)", "spacing=6|count=2"},
    {"_useGamma", "QCheckBox", "horizontalLayout [0]",
     "text=Use sRGB Colors|toolTip=output gamma corrected color"},
    {"HBoxLayout1", "QHBoxLayout", "gridLayout_3 (2, 0) + 1 x 3", "spacing=6|count=5"},
    {"_store_custom_color", "QPushButton", "HBoxLayout1 [0]",
     "text=Store Color|toolTip=add current color to custom colors|minimumWidth=130|autoDefault=false"},
    {"_custom_colors", "QLxColorArray", "HBoxLayout1 [1]", "minimumHeight=16"},
    {"_accept", "QPushButton", "HBoxLayout1 [3]",
     "text=Accept|toolTip=accept the current color|minimumWidth=130|autoDefault=false"},
    {"_reject", "QPushButton", "HBoxLayout1 [4]",
     "text=Cancel|toolTip=close dialog and use the previous color|minimumWidth=130|autoDefault=false"},

    // The channels.
    {"gridLayout_11", "QGridLayout", "on _color_slider_group", "spacing=6"},
    {"_redButton", "QRadioButton", "gridLayout_11 (0, 0)",
     "text=Red|toolTip=set color field to Qt::red mode|checked=false|minimumSize=62x16"},
    {"_redSlider", "QLxColorSlider", "gridLayout_11 (0, 1)", "mode=3|toolTip=change red color component"},
    {"_redSpiner", "QLxDoubleSpiner", "gridLayout_11 (0, 2)",
     "minimum=-1000000|maximum=1000000|singleStep=0.001|buttonSymbols=NoButtons|"
     "toolTip=enter red color component"},
    {"_greenButton", "QRadioButton", "gridLayout_11 (1, 0)",
     "text=Green|toolTip=set color field to Qt::green mode|checked=false|minimumSize=62x16"},
    {"_greenSlider", "QLxColorSlider", "gridLayout_11 (1, 1)", "mode=4|toolTip=change green color component"},
    {"_greenSpiner", "QLxDoubleSpiner", "gridLayout_11 (1, 2)",
     "minimum=-1000000|maximum=1000000|singleStep=0.001|buttonSymbols=NoButtons|"
     "toolTip=enter green color component"},
    {"_blueButton", "QRadioButton", "gridLayout_11 (2, 0)",
     "text=Blue|toolTip=set color field to Qt::blue mode|checked=false|minimumSize=62x16"},
    {"_blueSlider", "QLxColorSlider", "gridLayout_11 (2, 1)", "mode=5|toolTip=change blue color component"},
    {"_blueSpiner", "QLxDoubleSpiner", "gridLayout_11 (2, 2)",
     "minimum=-1000000|maximum=1000000|singleStep=0.001|buttonSymbols=NoButtons|"
     "toolTip=enter blue color component"},
    {"_hueButton", "QRadioButton", "gridLayout_11 (4, 0)",
     "text=Hue|toolTip=set color field to hue mode|checked=true|minimumSize=62x16"},
    {"_hueSlider", "QLxColorSlider", "gridLayout_11 (4, 1)", "mode=0|toolTip=change hue"},
    {"_hueSpiner", "QLxDoubleSpiner", "gridLayout_11 (4, 2)",
     "minimum=0|maximum=359.99|singleStep=0.5|buttonSymbols=NoButtons|toolTip=enter hue"},
    {"_saturationButton", "QRadioButton", "gridLayout_11 (5, 0)",
     "text=Sat|toolTip=set color field to saturation mode|checked=false|minimumSize=62x16"},
    {"_saturationSlider", "QLxColorSlider", "gridLayout_11 (5, 1)", "mode=1|toolTip=change saturation"},
    {"_saturationSpiner", "QLxDoubleSpiner", "gridLayout_11 (5, 2)",
     "minimum=0|maximum=1|singleStep=0.001|buttonSymbols=NoButtons|toolTip=enter saturation"},
    {"_valueButton", "QRadioButton", "gridLayout_11 (6, 0)",
     "text=Value|toolTip=set color field to value mode|checked=false|minimumSize=62x16"},
    {"_valueSlider", "QLxColorSlider", "gridLayout_11 (6, 1)", "mode=2|toolTip=change value"},
    {"_valueSpiner", "QLxDoubleSpiner", "gridLayout_11 (6, 2)",
     "minimum=-1000000|maximum=1000000|singleStep=0.001|buttonSymbols=NoButtons|toolTip=enter value"},
    // The next three buttons' tool tips are those of hue, saturation and value: translations know them so.
    {"_lstarButton", "QRadioButton", "gridLayout_11 (8, 0)",
     "text=L*|toolTip=set color field to hue mode|checked=false|minimumSize=62x16"},
    {"_lstarSlider", "QLxColorSlider", "gridLayout_11 (8, 1)",
     "mode=6|toolTip=change lightness of the color"},
    {"_lstarSpiner", "QLxDoubleSpiner", "gridLayout_11 (8, 2)",
     "minimum=0|maximum=100|singleStep=0.1|buttonSymbols=NoButtons|minimumSize=62x16|"
     "toolTip=enter lightness of the color"},
    {"_astarButton", "QRadioButton", "gridLayout_11 (9, 0)",
     "text=a*|toolTip=set color field to saturation mode|checked=false|minimumSize=62x16"},
    {"_astarSlider", "QLxColorSlider", "gridLayout_11 (9, 1)",
     "mode=7|toolTip=change balance between red/magenta and green"},
    {"_astarSpiner", "QLxDoubleSpiner", "gridLayout_11 (9, 2)",
     "minimum=0|maximum=1|singleStep=0.1|buttonSymbols=NoButtons|minimumSize=62x16|"
     "toolTip=enter balance between red/magenta and green"},
    {"_bstarButton", "QRadioButton", "gridLayout_11 (10, 0)",
     "text=b*|toolTip=set color field to value mode|checked=false|minimumSize=62x16"},
    {"_bstarSlider", "QLxColorSlider", "gridLayout_11 (10, 1)",
     "mode=8|toolTip=change balance between yellow and blue"},
    {"_bstarSpiner", "QLxDoubleSpiner", "gridLayout_11 (10, 2)",
     "minimum=0|maximum=1|singleStep=0.1|buttonSymbols=NoButtons|minimumSize=62x16|"
     "toolTip=enter balance between yellow and blue"},
    {"frame_3", "QFrame", "gridLayout_11 (11, 0) + 1 x 3", "frameShape=NoFrame"},

    // The spectrum page.
    {"_spectrum_tab", "QWidget", "tabWidget page 1", ""},
    {"gridLayout_6", "QGridLayout", "on _spectrum_tab", "spacing=6"},
    {"groupBox_spectrum", "QFrame", "in _spectrum_tab", ""},
    {"gridLayout_7", "QGridLayout", "on groupBox_spectrum", "spacing=6"},
    {"HBoxLayout_accept_cancel", "QHBoxLayout", "in groupBox_spectrum", "spacing=6|count=3"},
    {"_accept_s", "QPushButton", "HBoxLayout_accept_cancel [1]",
     "text=Accept|toolTip=accept the current color"},
    {"_reject_s", "QPushButton", "HBoxLayout_accept_cancel [2]",
     "text=Cancel|toolTip=close dialog and use the previous color"},
    {"VBoxhLayout_spectrum_info", "QVBoxLayout", "in groupBox_spectrum", "spacing=6|count=2"},
    {"groupBox_current_previous", "QGroupBox", "VBoxhLayout_spectrum_info [0]", ""},
    {"_previous_color_s", "QLxColorButton", "in groupBox_current_previous", "showColorDialog=false"},
    {"_current_color_s", "QLxColorButton", "in groupBox_current_previous", "showColorDialog=false"},
    {"groupBox_output", "QGroupBox", "VBoxhLayout_spectrum_info [1]", "title=Output Color"},
    {"HSVGrid_s", "QGridLayout", "in groupBox_output", "spacing=6"},
    {"RGBGrid_s", "QGridLayout", "in groupBox_output", "spacing=6"},
    {"LABGrid_s", "QGridLayout", "in groupBox_output", "spacing=6"},
    {"XYZGrid_s", "QGridLayout", "in groupBox_output", "spacing=6"},
    {"_h_label_s", "QLabel", "HSVGrid_s (0, 0)", "text=H: 0.0"},
    {"_s_label_s", "QLabel", "HSVGrid_s (1, 0)", "text=S: 1.0"},
    {"_v_label_s", "QLabel", "HSVGrid_s (2, 0)", "text=V: 0.0"},
    {"_r_label_s", "QLabel", "RGBGrid_s (0, 0)", "text=R: 1.0"},
    {"_g_label_s", "QLabel", "RGBGrid_s (1, 0)", "text=G: 0.0"},
    {"_b_label_s", "QLabel", "RGBGrid_s (2, 0)", "text=B: 0.0"},
    {"_Lstar_label_s", "QLabel", "LABGrid_s (0, 0)", "text=L*: 0.0"},
    {"_astar_label_s", "QLabel", "LABGrid_s (1, 0)", "text=a*: 1.0"},
    {"_bstar_label_s", "QLabel", "LABGrid_s (2, 0)", "text=b*: 0.0"},
    {"_X_label_s", "QLabel", "XYZGrid_s (0, 0)", "text=X: 0.0"},
    {"_Y_label_s", "QLabel", "XYZGrid_s (1, 0)", "text=Y: 1.0"},
    {"_Z_label_s", "QLabel", "XYZGrid_s (2, 0)", "text=Z: 0.0"},
    {"_spectrumPlot", "QGraphicsView", "in groupBox_spectrum", ""},
    {"_spectrum_input_group", "QGroupBox", "in groupBox_spectrum",
     "title=Spectrum|checkable=true|checked=false"},
    {"_enableSamplingEditor", "QGroupBox", "in groupBox_spectrum",
     "title=Edit Sample Distribution|checkable=true|checked=false|"
     "toolTip=enable advanced tools to edit the sample placement of the current spectral distribution"},
    {"label_presets", "QLabel", "in _enableSamplingEditor", "text=Presets"},
    {"_samplingPresets", "QLxComboBox", "in _enableSamplingEditor",
     "toolTip=select sample distribution from presets"},
    {"_nonUniformSampling", "QCheckBox", "in _enableSamplingEditor",
     "text=Allow Non-Uniform Sample Distribution|toolTip=enable editing of the wavelengths of the samples"},
    {"label_start", "QLabel", "in _enableSamplingEditor", "text=Start"},
    {"_startWavelength", "QLxSpiner", "in _enableSamplingEditor",
     "toolTip=enter the wavelength of the first sample"},
    {"label_delta", "QLabel", "in _enableSamplingEditor", "text=Delta"},
    {"_deltaWavelength", "QLxSpiner", "in _enableSamplingEditor",
     "toolTip=enter the sample spacing in the wavelength domain"},
    {"label_number", "QLabel", "in _enableSamplingEditor", "text=Number"},
    {"_numSamples", "QLxSpiner", "in _enableSamplingEditor", "toolTip=enter the total number of samples"},
    {"_resampleSpectrum", "QPushButton", "in _enableSamplingEditor", "text=Apply"},
    {"spectrum_input_tab", "QTabWidget", "in groupBox_spectrum", "currentIndex=1|tabs=Basic, Analytic"},
    {"tab_input_rgb", "QWidget", "spectrum_input_tab page 0", ""},
    {"label_file", "QLabel", "in tab_input_rgb", "text=File"},
    {"_load_spectrum_line", "QLineEdit", "in tab_input_rgb",
     "text=|toolTip=Enter path to select spectral input file."},
    {"_add_spectrum_button", "QPushButton", "in tab_input_rgb",
     "toolTip=Browse file system to select a spectral input file and add it to the current spectral "
     "distribution."},
    {"_load_spectrum_button", "QPushButton", "in tab_input_rgb",
     "toolTip=Browse file system to select a spectral input file."},
    {"_save_spectrum_button", "QPushButton", "in tab_input_rgb",
     "toolTip=Save current spectral distribution to a file."},
    {"label_red_s", "QLabel", "in tab_input_rgb", "text=Red"},
    {"_redSlider_s", "QLxColorSlider", "in tab_input_rgb", ""},
    {"_spectrumRed", "QLabel", "in tab_input_rgb", "text=0"},
    {"label_green_s", "QLabel", "in tab_input_rgb", "text=Green"},
    {"_greenSlider_s", "QLxColorSlider", "in tab_input_rgb", ""},
    {"_spectrumGreen", "QLabel", "in tab_input_rgb", "text=0"},
    {"label_blue_s", "QLabel", "in tab_input_rgb", "text=Blue"},
    {"_blueSlider_s", "QLxColorSlider", "in tab_input_rgb", ""},
    {"_spectrumBlue", "QLabel", "in tab_input_rgb", "text=0"},
    {"label_scale", "QLabel", "in tab_input_rgb", "text=Scale"},
    {"_scaleSlider", "QLxColorSlider", "in tab_input_rgb",
     "toolTip=scale current spectral distribution preserving the hue"},
    {"_spectrumScale", "QLabel", "in tab_input_rgb", "text=0"},
    {"tab_input_analytic", "QWidget", "spectrum_input_tab page 1", ""},
    {"label_analytic_function", "QLabel", "in tab_input_analytic", "text=Function"},
    {"_analytic_function", "QComboBox", "in tab_input_analytic",
     "items=Blackbody, CIE D, Gauss, Cosine, Bartlett, Blackman, Connes, Hamming, Hanning, Lorentzian, Welch|"
     "toolTip=Choose an analytic function."},
    {"label_analytic_peak_wavelength", "QLabel", "in tab_input_analytic", "text=Peak Wavelength"},
    {"_analytic_peak_wavelength", "QDoubleSpinBox", "in tab_input_analytic",
     "toolTip=enter the wavelength of the peak"},
    {"label_analytic_peak_intensity", "QLabel", "in tab_input_analytic", "text=Peak Intensity"},
    {"_analytic_peak_intensity", "QDoubleSpinBox", "in tab_input_analytic",
     "toolTip=enter the intensity of the peak"},
    {"label_analytic_fwhm", "QLabel", "in tab_input_analytic", "text=FWHM"},
    {"_analytic_fwhm", "QDoubleSpinBox", "in tab_input_analytic",
     "toolTip=enter the Full Width at Half Maximum"},
    {"label_analytic_temperature", "QLabel", "in tab_input_analytic", "text=Temperature"},
    {"_analytic_temperature", "QDoubleSpinBox", "in tab_input_analytic", "suffix= Kelvin"},
    {"_analytic_add", "QPushButton", "in tab_input_analytic",
     "toolTip=Add the analytic function to the current spectral distribution."},
    {"_analytic_set", "QPushButton", "in tab_input_analytic",
     "toolTip=Set the analytic function as new spectral distribution."},
};

/// The labels that the dialog overwrites as soon as it has a colour, and what the form writes first.
const struct
{
    const char *name;
    const char *placeholder;
} liveLabels[] = {
    {"_r_label", "R: 1.0"},      {"_g_label", "G: 0.0"},      {"_b_label", "B: 0.0"},
    {"_h_label", "H: 0.0"},      {"_s_label", "S: 1.0"},      {"_v_label", "V: 0.0"},
    {"_Lstar_label", "L*: 0.0"}, {"_astar_label", "a*: 1.0"}, {"_bstar_label", "b*: 0.0"},
};

const struct
{
    const char *place;
    const char *size;
    const char *grows; // directions in which it takes what room there is
} spacers[] = {
    {"gridLayout_10 (2, 1) + 2 x 1", "40x20", "horizontally"},
    {"gridLayout (3, 0)", "20x4", "vertically"},
    {"gridLayout_11 (3, 0) + 1 x 3", "408x17", nullptr}, // free
    {"gridLayout_11 (7, 0) + 1 x 3", "408x17", nullptr},
    {"horizontalLayout [1]", "20x13", "horizontally"},
    {"HBoxLayout1 [2]", "20x16", "horizontally"},
    {"HBoxLayout_accept_cancel [0]", nullptr, "horizontally"},
};

inline QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

inline QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

/// The position of an item in its layout, as the table writes it.
inline QString position(const QLayout *layout, int index)
{
    const auto *const grid = qobject_cast<const QGridLayout *>(layout);
    if (!grid)
        return QStringLiteral("%1 [%2]").arg(layout->objectName()).arg(index);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    const QString cell = QStringLiteral("%1 (%2, %3)").arg(layout->objectName()).arg(row).arg(column);
    return rows == 1 && columns == 1 ? cell : cell + QStringLiteral(" + %1 x %2").arg(rows).arg(columns);
}

/// All items of all layouts below a widget, with their positions.
inline QHash<QString, QLayoutItem *> layoutItems(const QWidget *top)
{
    QHash<QString, QLayoutItem *> positions;
    const QList<QLayout *> layouts = top->findChildren<QLayout *>();
    for (const QLayout *layout : layouts)
        for (int i = 0; i < layout->count(); ++i)
            positions.insert(position(layout, i), layout->itemAt(i));
    return positions;
}

inline QString placeOf(QObject *object, const QWidget *top)
{
    auto *const widget = qobject_cast<QWidget *>(object);
    const QHash<QString, QLayoutItem *> positions = layoutItems(top);
    for (auto item = positions.begin(); item != positions.end(); ++item)
        if (widget ? item.value()->widget() == widget : item.value()->layout() == object)
            return item.key();
    if (!widget)
        return QStringLiteral("on ") + object->parent()->objectName();
    const QList<QTabWidget *> tabs = top->findChildren<QTabWidget *>();
    for (const QTabWidget *tab : tabs)
        if (tab->indexOf(widget) >= 0)
            return QStringLiteral("%1 page %2").arg(tab->objectName()).arg(tab->indexOf(widget));
    return QStringLiteral("nowhere");
}

inline bool isIn(const QObject *object, const QString &ancestor)
{
    for (; object; object = object->parent())
        if (object->objectName() == ancestor)
            return true;
    return false;
}

/// Horizontally, and vertically too if the table says so: a group box's title has no vertical alignment of
/// its own.
inline QString alignmentText(Qt::Alignment alignment, const QString &expected)
{
    QString words = (alignment & Qt::AlignHorizontal_Mask) == Qt::AlignLeft ? QStringLiteral("left")
                                                                            : QStringLiteral("not left");
    if (expected.contains(QLatin1Char(' ')))
        words += (alignment & Qt::AlignVertical_Mask) == Qt::AlignVCenter ? QStringLiteral(" vcenter")
                                                                          : QStringLiteral(" not vcenter");
    return words;
}

/// A margin of -1 is the style's own.
inline QString marginsText(const QLayout *layout, const QStringList &expected)
{
    const QMargins margins = layout->contentsMargins();
    const int actual[] = {margins.left(), margins.top(), margins.right(), margins.bottom()};
    const QStyle::PixelMetric metrics[] = {QStyle::PM_LayoutLeftMargin, QStyle::PM_LayoutTopMargin,
                                           QStyle::PM_LayoutRightMargin, QStyle::PM_LayoutBottomMargin};
    QStringList words;
    for (int i = 0; i < 4; ++i) {
        const bool own =
            expected.value(i) == QLatin1String("-1") &&
            actual[i] == QApplication::style()->pixelMetric(metrics[i], nullptr, layout->parentWidget());
        words.append(own ? QStringLiteral("-1") : asText(actual[i]));
    }
    return words.join(QLatin1Char(' '));
}

inline QStringList tabTexts(const QTabWidget *tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts.append(tabs->tabText(i));
    return texts;
}

inline QStringList itemTexts(const QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

inline QString propertyText(const QObject *object, const QString &name)
{
    const QMetaObject *const meta = object->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1().constData()));
    const QVariant value = property.read(object);
    if (name == QLatin1String("mode"))
        return asText(value.toInt());
    if (property.isEnumType())
        return text(property.enumerator().valueToKey(value.toInt()));
    if (value.type() == QVariant::Size)
        return sizeText(value.toSize());
    if (value.type() == QVariant::Double)
        return QString::number(value.toDouble(), 'g', 12);
    return value.isValid() ? value.toString() : QStringLiteral("(no such property)");
}

inline QString settingText(QObject *object, const QString &name, const QString &expected)
{
    auto *const widget = qobject_cast<QWidget *>(object);
    if (name == QLatin1String("margins"))
        return marginsText(qobject_cast<QLayout *>(object), expected.split(QLatin1Char(' ')));
    if (name == QLatin1String("count"))
        return asText(qobject_cast<QLayout *>(object)->count());
    if (name == QLatin1String("horizontalStretch"))
        return asText(widget->sizePolicy().horizontalStretch());
    if (name == QLatin1String("verticalStretch"))
        return asText(widget->sizePolicy().verticalStretch());
    if (name == QLatin1String("alignment"))
        return alignmentText(Qt::Alignment(widget->property("alignment").toInt()), expected);
    if (name == QLatin1String("tabs"))
        return tabTexts(qobject_cast<QTabWidget *>(widget)).join(QStringLiteral(", "));
    if (name == QLatin1String("items"))
        return itemTexts(qobject_cast<QComboBox *>(widget)).join(QStringLiteral(", "));
    return propertyText(object, name);
}

struct Setting
{
    QString name;
    QString value;
};

inline QVector<Setting> settings(const Item &item)
{
    QVector<Setting> result;
    const QStringList pairs = text(item.settings).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    for (const QString &pair : pairs)
        result.append({pair.section(QLatin1Char('='), 0, 0), pair.section(QLatin1Char('='), 1)});
    return result;
}

/// What the dialog itself sets to other than the form's value.
inline QString inDialog(const char *item, const Setting &setting)
{
    const bool chroma = qstrcmp(item, "_astarSpiner") == 0 || qstrcmp(item, "_bstarSpiner") == 0;
    if (chroma && setting.name == QLatin1String("minimum"))
        return QStringLiteral("-256");
    if (chroma && setting.name == QLatin1String("maximum"))
        return QStringLiteral("256");
    return setting.value;
}

/// All texts of the form that the table lists, but for the placeholders.
inline QStringList listedTexts()
{
    QStringList texts{QStringLiteral("Choose a Color")};
    for (const Item &item : items) {
        const QVector<Setting> all = settings(item);
        for (const Setting &setting : all) {
            if (QStringList{QStringLiteral("tabs"), QStringLiteral("items")}.contains(setting.name))
                texts += setting.value.split(QStringLiteral(", "));
            else if (QStringList{QStringLiteral("text"), QStringLiteral("title"), QStringLiteral("toolTip"),
                                 QStringLiteral("suffix")}
                         .contains(setting.name))
                texts.append(setting.value);
        }
    }
    texts.removeAll(QString());
    return texts;
}

/// All texts that a user of these widgets sees or is told.
inline QStringList shownTexts(const QWidget *top)
{
    QStringList texts{top->windowTitle()};
    const QList<QWidget *> widgets = top->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        texts.append(widget->toolTip());
        const bool input =
            qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget);
        if (!input)
            texts.append(widget->property("text").toString());
        texts.append(widget->property("title").toString());
        texts.append(widget->property("suffix").toString());
        if (const auto *const tabs = qobject_cast<const QTabWidget *>(widget))
            texts += tabTexts(tabs);
        if (const auto *const box = qobject_cast<const QComboBox *>(widget))
            texts += itemTexts(box);
    }
    texts.removeAll(QString());
    return texts;
}

} // namespace FormTable

#endif
