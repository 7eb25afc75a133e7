// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// The spectrum page: laid out, and without effect on the colour.
#include "QLxColorDialog_p.h"

void QLxColorDialog::analyticFunctionChanged(int index)
{
    const bool thermal = index <= 1; // "Blackbody" and "CIE D"
    for (QWidget *const widget : std::initializer_list<QWidget *>{
             label_analytic_peak_wavelength, _analytic_peak_wavelength, label_analytic_peak_intensity,
             _analytic_peak_intensity, label_analytic_fwhm, _analytic_fwhm})
        widget->setVisible(!thermal);
    label_analytic_temperature->setVisible(thermal);
    _analytic_temperature->setVisible(thermal);
}

void QLxColorDialog::resizeEvent(QResizeEvent *event)
{
    SharedColorDialog::resizeEvent(event);
    if (tabWidget->currentIndex() == 1)
        _spectrumPlot->setSceneRect(QRectF(QPointF(), _spectrumPlot->viewport()->size()));
}

// Kept for hosts that call them.

void QLxColorDialog::setUseSpectrum(bool /*on*/) {}
void QLxColorDialog::saveSpectrumButtonClicked() {}
void QLxColorDialog::loadSpectrumLineChanged() {}
void QLxColorDialog::loadSpectrumButtonClicked() {}
void QLxColorDialog::addSpectrumButtonClicked() {}
void QLxColorDialog::loadSpectrumFile(const char * /*path*/) {}
void QLxColorDialog::addSpectrumFile(const char * /*path*/) {}
void QLxColorDialog::rejectSpectrum() {}
void QLxColorDialog::setUniformMode(bool /*on*/) {}
void QLxColorDialog::setNonUniformMode(bool /*on*/) {}
void QLxColorDialog::updateSpectrum() {}
void QLxColorDialog::resetSpectrum() {}
void QLxColorDialog::setSamplingPreset(int /*preset*/) {}
void QLxColorDialog::resampleSpectrum() {}
void QLxColorDialog::setAnalyticFunction() {}
void QLxColorDialog::addAnalyticFunction() {}
void QLxColorDialog::rgbSpectrumSliderChanged(float /*value*/) {}
void QLxColorDialog::scaleSpectrumSliderChanged(float /*value*/) {}
void QLxColorDialog::toggleSamplingEditor(bool /*on*/) {}
void QLxColorDialog::setSpectrumInfo(QLxColor /*color*/) {}
