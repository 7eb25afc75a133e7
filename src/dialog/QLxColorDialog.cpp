// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// The dialog's construction, connections and end.
#include "QLxColorDialog_p.h"

#include "DialogChannel_p.h"
#include "PipetteImage_p.h"
#include "QLxColorSpaces.h"
#include "WhileAlive_p.h"

#include <QCloseEvent>
#include <QSignalBlocker>

namespace {

// Registered as the library is loaded: the buttons, which the dialog is built of, know it only through this.
const SharedColorDialog::Factory noDialogUntilNow =
    SharedColorDialog::setFactory([](const QLxColor &color, QWidget *parent) -> SharedColorDialog * {
        return new QLxColorDialog(color, parent, nullptr);
    });

} // namespace

QLxColorDialog::QLxColorDialog(const QLxColor &color, QWidget *parent, const char *name)
    : SharedColorDialog(parent)
{
    if (name)
        setObjectName(QString::fromUtf8(name));
    setupUi(this);
    m_controls = {{
        {_hueSlider, _hueSpiner, _hueButton, SLOT(hueSliderChanged(float)), SLOT(hueSpinerChanged(double)),
         SLOT(setHueMode(bool))},
        {_saturationSlider, _saturationSpiner, _saturationButton, SLOT(saturationSliderChanged(float)),
         SLOT(saturationSpinerChanged(double)), SLOT(setSaturationMode(bool))},
        {_valueSlider, _valueSpiner, _valueButton, SLOT(valueSliderChanged(float)),
         SLOT(valueSpinerChanged(double)), SLOT(setValueMode(bool))},
        {_redSlider, _redSpiner, _redButton, SLOT(redSliderChanged(float)), SLOT(redSpinerChanged(double)),
         SLOT(setRedMode(bool))},
        {_greenSlider, _greenSpiner, _greenButton, SLOT(greenSliderChanged(float)),
         SLOT(greenSpinerChanged(double)), SLOT(setGreenMode(bool))},
        {_blueSlider, _blueSpiner, _blueButton, SLOT(blueSliderChanged(float)),
         SLOT(blueSpinerChanged(double)), SLOT(setBlueMode(bool))},
        {_lstarSlider, _lstarSpiner, _lstarButton, SLOT(lstarSliderChanged(float)),
         SLOT(lstarSpinerChanged(double)), SLOT(setLstarMode(bool))},
        {_astarSlider, _astarSpiner, _astarButton, SLOT(astarSliderChanged(float)),
         SLOT(astarSpinerChanged(double)), SLOT(setAstarMode(bool))},
        {_bstarSlider, _bstarSpiner, _bstarButton, SLOT(bstarSliderChanged(float)),
         SLOT(bstarSpinerChanged(double)), SLOT(setBstarMode(bool))},
    }};
    setUpControls();
    connectControls();
    setInitialColor(color);
}

QLxColorDialog::~QLxColorDialog()
{
    if (isPicking())
        stopPicking();
}

void QLxColorDialog::setUpControls()
{
    _pick_color->setIcon(QIcon(QLx::pipettePixmap()));
    setUpPipette();

    const QLxColor black;
    for (const Channel primary : {QLxColorSlider::Red, QLxColorSlider::Green, QLxColorSlider::Blue}) {
        QLxColorSlider *const slider = controls(primary).slider;
        slider->setMinColor(black);
        slider->setMaxColor({120.0F * static_cast<float>(primary - QLxColorSlider::Red), 1.0F, 1.0F});
    }
    for (const ChannelControls &channel : m_controls) {
        channel.spiner->setDisplayDecimals(3);
        channel.spiner->setUseExactDisplayDecimals(true);
    }
    fixSizes();
    const auto chroma = static_cast<double>(QLx::labChromaRange);
    _astarSpiner->setRange(-chroma, chroma);
    _bstarSpiner->setRange(-chroma, chroma);
}

void QLxColorDialog::fixSizes()
{
    // What has a fixed size can show something else without the whole dialog being laid out and painted anew.
    for (QLabel *const label : {_r_label, _g_label, _b_label, _h_label, _s_label, _v_label, _Lstar_label,
                                _astar_label, _bstar_label})
        label->setFixedSize(label->minimumWidth(), label->sizeHint().height());
    _current_color->setFixedSize(_current_color->minimumSize());
}

void QLxColorDialog::changeEvent(QEvent *event)
{
    SharedColorDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fixSizes();
}

void QLxColorDialog::connectControls()
{
    connect(_custom_colors, SIGNAL(selected(int)), SLOT(getCustomColor(int)));
    connect(_store_custom_color, SIGNAL(clicked()), SLOT(addCustomColor()));
    connect(_pick_color, SIGNAL(toggled(bool)), SLOT(toggleColorPipette(bool)));
    m_pipetteTimer = new QTimer(this);
    connect(m_pipetteTimer, SIGNAL(timeout()), SLOT(preGrabScreenColor()));
    connect(_previous_color, SIGNAL(clicked()), SLOT(restorePreviousColor()));
    for (const ChannelControls &channel : m_controls) {
        connect(channel.button, SIGNAL(toggled(bool)), channel.modeSlot);
        connect(channel.slider, SIGNAL(valueChanged(float)), channel.sliderSlot);
        connect(channel.spiner, SIGNAL(valueChanged(double)), channel.spinerSlot);
    }
    connect(_colorFieldSlider, SIGNAL(valueChanged(float)), SLOT(colorFieldSliderChanged(float)));
    connect(_colorField, SIGNAL(colorChanged(QLxColor)), SLOT(colorFieldChanged(QLxColor)));
    connect(_useGamma, SIGNAL(toggled(bool)), SLOT(setUseGamma(bool)));
    connect(_accept, SIGNAL(clicked()), SLOT(accept()));
    connect(_reject, SIGNAL(clicked()), SLOT(reject()));
}

void QLxColorDialog::setInitialColor(const QLxColor &color)
{
    takeColor(fromBoundary(color)); // also black, which is the colour that is there
    m_previousColor = m_color;
    _useGamma->setChecked(QLx::colorUseGamma);
    for (QLxColorButton *const swatch : {_previous_color, _current_color}) {
        const QSignalBlocker blocker(swatch);
        swatch->setColor(QLx::linearSwatch(m_previousColor));
    }
    _colorField->setMode(_colorField->getMode()); // repaints
}

void QLxColorDialog::giveUp()
{
    updateSpiners(); // what is half typed would else be committed when the box is hidden, after the
                     // cancelling
    Q_EMIT colorChanged(m_previousColor);
}

void QLxColorDialog::reject()
{
    whileAlive(
        this, [this] { giveUp(); }, [this] { SharedColorDialog::reject(); });
}

void QLxColorDialog::closeEvent(QCloseEvent *event)
{
    whileAlive(
        this, [this] { giveUp(); }, [&] { SharedColorDialog::closeEvent(event); });
}
