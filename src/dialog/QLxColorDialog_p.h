// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORDIALOG_P_H
#define QLXCOLORDIALOG_P_H

#include "QLxColorSlider.h"
#include "SharedColorDialog_p.h"
#include "ui_QLxColorDialogGUI.h"

#include <QTimer>

#include <array>
#include <optional>

/// The colour dialog that all colour buttons of the process share. It holds one colour, linear HSV; every
/// control is a view of it, and every edit goes one way: change the colour, refresh all controls with their
/// signals blocked, emit colorChanged().
///
/// Colours that cross its boundary (setColor(), getColor(), colorChanged()) are linear while colorUseGamma
/// is set and HSV of sRGB-encoded RGB otherwise, but for the colour that colorChanged() carries when the
/// dialog is cancelled or closed: that one is always linear.
///
/// Receivers may delete the dialog or its parent inside its signals; not, as ever, inside what a spin box or
/// the check box sets off.
class QLxColorDialog : public SharedColorDialog, public Ui::QLxColorDialogGUI
{
    Q_OBJECT

public:
    /// Starts with the colour, given in boundary form, as the current and the previous one.
    QLxColorDialog(const QLxColor &color, QWidget *parent, const char *name);
    ~QLxColorDialog() override;

    QLxColor getColor() const override;
    /// The colour button's notice that it opens or closes the dialog; nothing depends on it.
    void setDialogFlag(bool /*flag*/) override {}

Q_SIGNALS:
    /// The colour is another one, or an edit set it anew; in the end, that the dialog was cancelled.
    void colorChanged(QLxColor color);

    // The order of the methods is part of the interface.
private Q_SLOTS:
    void hueSliderChanged(float x);
    void saturationSliderChanged(float x);
    void valueSliderChanged(float x);
    void redSliderChanged(float x);
    void greenSliderChanged(float x);
    void blueSliderChanged(float x);
    void lstarSliderChanged(float x);
    void astarSliderChanged(float x);
    void bstarSliderChanged(float x);
    void colorFieldChanged(QLxColor color);
    void colorFieldSliderChanged(float x);
    void setHueMode(bool on);
    void setSaturationMode(bool on);
    void setValueMode(bool on);
    void setRedMode(bool on);
    void setGreenMode(bool on);
    void setBlueMode(bool on);
    void setLstarMode(bool on);
    void setAstarMode(bool on);
    void setBstarMode(bool on);
    void hueSpinerChanged(double x);
    void saturationSpinerChanged(double x);
    void valueSpinerChanged(double x);
    void redSpinerChanged(double x);
    void greenSpinerChanged(double x);
    void blueSpinerChanged(double x);
    void lstarSpinerChanged(double x);
    void astarSpinerChanged(double x);
    void bstarSpinerChanged(double x);
    void addCustomColor();
    void getCustomColor(int index);
    void toggleColorPipette(bool enable);
    /// Also says so on standard output.
    void restorePreviousColor();
    /// Sets colorUseGamma for the whole process.
    void setUseGamma(bool on);
    void setGammaValue(double value);
    void tabChanged(int index);
    // The spectrum page is laid out, but works on nothing: the slots without a comment do nothing.
    void setUseSpectrum(bool on);
    void saveSpectrumButtonClicked();
    void loadSpectrumLineChanged();
    void loadSpectrumButtonClicked();
    void addSpectrumButtonClicked();
    void loadSpectrumFile(const char *path);
    void addSpectrumFile(const char *path);
    void reject() override; // cancels the dialog
    void rejectSpectrum();
    void setUniformMode(bool on);
    void setNonUniformMode(bool on);
    void updateSpectrum();
    void resetSpectrum();
    void setSamplingPreset(int preset);
    void resampleSpectrum();
    /// Shows the parameters of the analytic function at this place of the list, and hides the others'.
    void analyticFunctionChanged(int index);
    void setAnalyticFunction();
    void addAnalyticFunction();
    void rgbSpectrumSliderChanged(float value);
    void scaleSpectrumSliderChanged(float value);
    void toggleSamplingEditor(bool on);
    void preGrabScreenColor();

public Q_SLOTS:
    void setSpectrumInfo(QLxColor color);
    /// Takes a colour in boundary form and emits colorChanged(), unless it is the one that is there.
    void setColor(QLxColor color) override;
    /// Writes the labels: red, green, blue, hue, saturation and value of the given linear colour, L*, a*
    /// and b* of the dialog's own.
    void setColorInfo(QLxColor color);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    using Channel = QLxColorSlider::Mode;
    struct ChannelControls // of one channel on the colour page, and the slots that hear them
    {
        QLxColorSlider *slider;
        QLxDoubleSpiner *spiner;
        QRadioButton *button;
        const char *sliderSlot;
        const char *spinerSlot;
        const char *modeSlot;
    };

    const ChannelControls &controls(Channel channel) const
    {
        return m_controls[static_cast<std::size_t>(channel)];
    }
    void setUpControls();
    void connectControls();
    void fixSizes();
    void setInitialColor(const QLxColor &color);
    static QLxColor fromBoundary(const QLxColor &color);

    /// The funnel: the colour is now this one, whether or not it was before. A receiver may delete the
    /// dialog: whatever follows the call needs whileAlive().
    void takeColor(const QLxColor &color);
    /// Drops what is half typed and emits the previous colour.
    void giveUp();
    void takePosition(Channel channel, float x);
    void takeNumber(Channel channel, double x);
    void switchMode(void (QLxColorField::*fieldMode)(bool), void (QLxColorSlider::*sliderMode)(bool),
                    bool on);
    void updateControls();
    void updateField();
    void updateSpiners();

    void setUpPipette();
    bool isPicking() const { return m_pipetteTimer->isActive(); }
    void startPicking();
    void stopPicking();
    void releaseOverDesktop(const QMouseEvent *event);
    /// The colour of one pixel of the primary screen, in boundary form; nothing if it can't be read.
    static std::optional<QLxColor> sampleScreenColor(QPoint globalPos);

    std::array<ChannelControls, 9> m_controls; // in the order of the slider's modes
    QLxColor m_color;                          // linear HSV
    QLxColor m_previousColor;
    QTimer *m_pipetteTimer = nullptr;
    QWidget m_pipetteOverlay;
};

#endif
