// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorManipulator.h"

#include "ColorMath_p.h"
#include "QLxColorButton.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"
#include "WhileAlive_p.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

QLxColorManipulator::QLxColorManipulator(QWidget *parent, const char *name)
    : QWidget(parent)
    , m_slider(new QLxColorSlider(Qt::Horizontal, this))
    , m_button(new QLxColorButton(this))
{
    if (name)
        setObjectName(QString::fromUtf8(name));
    m_slider->setMinColor({0.0F, 0.0F, 0.0F});
    m_slider->setMaxColor({0.0F, 0.0F, 1.0F});
    m_slider->setValueMode(true);
    m_slider->setMinimumHeight(16);
    m_slider->setFocusPolicy(Qt::ClickFocus);
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setFixedSize(62, 16);
    connect(m_button, SIGNAL(colorButtonClicked()), this, SLOT(colorButtonPressed()));

    auto *const layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_slider);
    layout->addWidget(m_button);
    setLayout(layout);

    connect(m_slider, SIGNAL(sliderPressed()), this, SLOT(sliderValuePressed()));
    connect(m_slider, SIGNAL(sliderReleased()), this, SLOT(sliderValueReleased()));
    connect(m_slider, SIGNAL(valueChanged(float)), this, SLOT(sliderValueChanged(float)));
    // The spelling of these signatures is part of the contract. clazy:excludeall=connect-not-normalized
    // clang-format off
    connect(m_button, SIGNAL(temporaryColorChosen( const QLxColor & )),
            this, SLOT(temporaryColorChanged(const QLxColor &)));
    connect(m_button, SIGNAL(finalColorChosen( const QLxColor & )),
            this, SLOT(finalColorChanged(const QLxColor &)));
    connect(m_button, SIGNAL(userSkipped(void)), this, SLOT(cancelledPressed(void)));
    // clang-format on
}

void QLxColorManipulator::setSliderFocusPolicy(Qt::FocusPolicy policy)
{
    m_slider->setFocusPolicy(policy);
}

QSize QLxColorManipulator::sizeHint() const
{
    return {130, 16};
}

/// Returns false if a receiver has deleted the manipulator.
bool QLxColorManipulator::emitColorChanged(QLxColor color)
{
    const QLx::Rgb c = QLx::hsvToRgb(color);
    return whileAlive(
        this, [this] { Q_EMIT colorChanged(); }, [&] { Q_EMIT colorChanged(color); },
        [&] { Q_EMIT colorChanged(c.red, c.green, c.blue); },
        [&] {
            Q_EMIT colorChanged(QLx::quantizeLinear(c.red), QLx::quantizeLinear(c.green),
                                QLx::quantizeLinear(c.blue));
        });
}

void QLxColorManipulator::colorButtonPressed()
{
    Q_EMIT buttonPressed();
}

void QLxColorManipulator::sliderValuePressed()
{
    Q_EMIT sliderPressed();
}

void QLxColorManipulator::sliderValueReleased()
{
    whileAlive(
        this, [this] { Q_EMIT sliderReleased(); }, [this] { Q_EMIT finalColorSet(m_button->getColor()); });
}

void QLxColorManipulator::sliderValueChanged(float /*value*/)
{
    // The slider works in encoded brightness, the colour is linear.
    const QLxColor color = QLx::fromSrgbColor(m_slider->getColor());
    {
        const QSignalBlocker blocker(m_button);
        m_button->setColor(color);
    }
    if (!emitColorChanged(color))
        return;
    const QLx::Rgb c = QLx::hsvToRgb(color);
    Q_EMIT sliderColorChanged(c.red, c.green, c.blue);
}

void QLxColorManipulator::temporaryColorChanged(QLxColor color)
{
    const QLx::Rgb c = QLx::hsvToRgb(color);
    whileAlive(
        this, [this] { Q_EMIT dialogColorChanged(); }, [&] { Q_EMIT dialogColorChanged(color); },
        [&] { Q_EMIT dialogColorChanged(c.red, c.green, c.blue); },
        [&] {
            Q_EMIT dialogColorChanged(QLx::quantizeLinear(c.red), QLx::quantizeLinear(c.green),
                                      QLx::quantizeLinear(c.blue));
        },
        [&] { emitColorChanged(color); });
}

void QLxColorManipulator::finalColorChanged(QLxColor color)
{
    const QLxColor encoded = QLx::toSrgbColor(color);
    {
        const QSignalBlocker blocker(m_slider);
        m_slider->setValue(encoded.value, true, false);
        m_slider->setMaxColor({encoded.hue, encoded.saturation, 1.0F});
    }
    if (emitColorChanged(color))
        Q_EMIT finalColorSet(color);
}

void QLxColorManipulator::cancelledPressed()
{
    Q_EMIT cancelled();
}
