// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Where the colour dialog surprises, on purpose or because of what its users need.
#include "PaintCounter.h"
#include "Pointer.h"
#include "QLxColorButton.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryFile>

#include <cstdio>
#include <memory>
#include <unistd.h>

#define COMPARE_COLOR(actual, expected) QCOMPARE(asText(actual), asText(expected))

namespace {

const QLxColor Sample{200.0F, 0.5F, 0.25F};
const QLxColor Other{30.0F, 0.75F, 0.5F};

const char *const Channels[] = {"hue",  "saturation", "value", "red",  "green",
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

LogLine announced(const QLxColor &color)
{
    return QStringLiteral("colorChanged(%1)").arg(asText(color));
}

QLxColor encoded(const QLxColor &color)
{
    return Reference::eachChannel(color, Reference::linearToSrgb);
}

QLxColor decoded(const QLxColor &color)
{
    return Reference::eachChannel(color, Reference::srgbToLinear);
}

QLxColor replaced(const QLxColor &color, int channel, float x)
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
QLxColor swatch(const QLxColor &color, bool encode)
{
    const QColor shown = Reference::display(color, encode);
    const auto channel = [](int level) { return float(Reference::F(float(level)) / Reference::F(255.0F)); };
    return Reference::rgbToHsv({channel(shown.red()), channel(shown.green()), channel(shown.blue())});
}

QString number(float x, int decimals)
{
    return QString::number(static_cast<double>(x), 'f', decimals);
}

void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton)
{
    Pointer pointer(widget);
    pointer.press({3, 3}, button);
    pointer.release({3, 3}, button);
}

void type(QWidget *box, const QString &keys)
{
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, keys);
    QTest::keyClick(box, Qt::Key_Return);
}

void settingRows()
{
    QTest::addColumn<bool>("srgb");
    QTest::newRow("with sRGB") << true;
    QTest::newRow("without sRGB") << false;
}

void channelRows(int first, int last)
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

} // namespace

class TestDialogBehaviour : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    // Opening, cancelling, accepting
    void firstOpeningWithBlackShowsNumbers_data() { settingRows(); }
    void firstOpeningWithBlackShowsNumbers();
    void cancelEmitsTheLinearColorAlsoWithoutSrgb_data();
    void cancelEmitsTheLinearColorAlsoWithoutSrgb();
    void closingByTheWindowButtonEmitsThePreviousColorTwice();
    void acceptEmitsNothingOfItsOwn();
    void previousColorSurvivesLaterOpenings();

    // The colour and its boundary
    void equalColorIsNoChange_data() { settingRows(); }
    void equalColorIsNoChange();
    void switchingSrgbKeepsTheColorAndAnnouncesItsOtherForm();
    void controlsAreInStepWhenTheColorIsAnnounced();
    void hostsOwnBlockingStays();
    void gammaValueTellsOnlyOfAnotherFloat();

    // Sliders and spin boxes
    void redGreenAndBlueAreEncodedWhateverTheSetting_data() { channelRows(3, 5); }
    void redGreenAndBlueAreEncodedWhateverTheSetting();
    void valueIsEncodedOnlyWithSrgb_data() { settingRows(); }
    void valueIsEncodedOnlyWithSrgb();
    void hueTypedReaches359999SliderOnly35999();
    void hueBoxLimitsWhatIsTyped_data();
    void hueBoxLimitsWhatIsTyped();
    void onlyHueSaturationAndValueAreLimited_data();
    void onlyHueSaturationAndValueAreLimited();
    void negativeRedIsKeptButShownAsZero();
    void spinBoxesShowTheSlidersNumbers();
    void bStarSliderWearsTheGradientOfValue();

    // The field
    void modeSwitchEmitsNothing_data() { channelRows(0, 8); }
    void modeSwitchEmitsNothing();
    void uncheckedModeButtonDoesNothing_data() { channelRows(0, 8); }
    void uncheckedModeButtonDoesNothing();
    void greyKeepsItsHueInTheField_data() { channelRows(0, 8); }
    void greyKeepsItsHueInTheField();
    void fieldSliderKeepsItsEndsInHueAndRgbModes_data();
    void fieldSliderKeepsItsEndsInHueAndRgbModes();
    void fieldIsDecodedButInLabModes_data() { channelRows(0, 8); }
    void fieldIsDecodedButInLabModes();
    void fieldSliderInNoModeChangesNothing();

    // Labels and swatches
    void labelsOfLabReadTheDialogsOwnColor();
    void labelsOfRgbAreEncodedOnlyWithoutSrgb_data() { settingRows(); }
    void labelsOfRgbAreEncodedOnlyWithoutSrgb();
    void labelsAreRepaintedAtOnce();
    void swatchesStartAlike_data() { settingRows(); }
    void swatchesStartAlike();
    void previousSwatchIsEncodedCurrentSwatchIsNot_data() { settingRows(); }
    void previousSwatchIsEncodedCurrentSwatchIsNot();
    void currentSwatchIsOnlyThereToSee();
    void previousSwatchRestoresAndSaysSo();

    // Custom colours
    void customColorIsTheSameWhateverTheSetting_data();
    void customColorIsTheSameWhateverTheSetting();
    void greyLosesItsHueAsACustomColor();
    void freeCellDoesNothing();
    void chosenCellIsStoredIntoAgainAndAgain();

    // Pages
    void tabChangedRefreshesForTheColorPage();
    void spectrumSlotDoesNothing_data();
    void spectrumSlotDoesNothing();
    void spectrumControlChangesNoColor_data();
    void spectrumControlChangesNoColor();
    void analyticFunctionShowsItsParameters_data();
    void analyticFunctionShowsItsParameters();
    void resizingTheSpectrumPageSetsTheScene();
};

void TestDialogBehaviour::cleanup()
{
    QLx::colorUseGamma = true;
    QLx::colorGammaValue = 2.2F;
    delete sharedColorDialog.data();
    TestCase::cleanup();
}

void TestDialogBehaviour::firstOpeningWithBlackShowsNumbers()
{
    QFETCH(bool, srgb);
    QLx::colorUseGamma = srgb;
    const Probe dialog(QLxColor{}); // the colour that a dialog has before it is given one
    for (const QLabel *label : {dialog._r_label, dialog._g_label, dialog._b_label, dialog._h_label,
                                dialog._s_label, dialog._v_label})
        QCOMPARE(label->text().section(QLatin1Char(' '), 1), QStringLiteral("0.0000"));
    const Reference::Triple lab = Reference::hsvToLab({});
    QCOMPARE(dialog._Lstar_label->text(), QStringLiteral("L*: ") + number(lab[0], 3));
    QCOMPARE(dialog._astar_label->text(), QStringLiteral("a*: ") + number(lab[1], 3));
    QCOMPARE(dialog._bstar_label->text(), QStringLiteral("b*: ") + number(lab[2], 3));
    for (int channel = 0; channel < 6; ++channel) {
        QCOMPARE(dialog.slider(channel)->getValue(), 0.0F); // not the 0.5 of a new slider
        QCOMPARE(dialog.spiner(channel)->text(), QStringLiteral("0.000"));
    }
    COMPARE_COLOR(dialog._current_color->getColor(), QLxColor());
}

void TestDialogBehaviour::cancelEmitsTheLinearColorAlsoWithoutSrgb_data()
{
    QTest::addColumn<bool>("srgb");
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel, with sRGB") << true << false;
    QTest::newRow("Cancel, without sRGB") << false << false;
    QTest::newRow("Escape, with sRGB") << true << true;
    QTest::newRow("Escape, without sRGB") << false << true;
}

void TestDialogBehaviour::cancelEmitsTheLinearColorAlsoWithoutSrgb()
{
    QFETCH(bool, srgb);
    QFETCH(bool, escape);
    Probe dialog;
    dialog.show();
    QLx::colorUseGamma = srgb;
    dialog.setColor(Other);
    COMPARE_LOG(dialog.log, {announced(dialog.getColor())});
    if (escape)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        QTest::mouseClick(dialog._reject, Qt::LeftButton);
    COMPARE_LOG(dialog.log, {announced(Sample), "rejected()"});
    QVERIFY(!dialog.isVisible());
    COMPARE_COLOR(dialog.getColor(), srgb ? Other : encoded(decoded(Other))); // cancelling restores nothing
}

void TestDialogBehaviour::closingByTheWindowButtonEmitsThePreviousColorTwice()
{
    Probe dialog;
    dialog.setColor(Other);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.log.take();
    QCloseEvent event;
    QCoreApplication::sendEvent(dialog.windowHandle(), &event); // as the window system does
    COMPARE_LOG(dialog.log, {announced(Sample), announced(Sample), "rejected()"});
    QVERIFY(!dialog.isVisible());
    dialog.close(); // which is hidden already: the base class does not reject it again
    COMPARE_LOG(dialog.log, {announced(Sample)});
}

void TestDialogBehaviour::acceptEmitsNothingOfItsOwn()
{
    Probe dialog;
    dialog.show();
    dialog.setColor(Other);
    COMPARE_LOG(dialog.log, {announced(Other)});
    QTest::mouseClick(dialog._accept, Qt::LeftButton);
    COMPARE_LOG(dialog.log, {"accepted()"});
    QVERIFY(!dialog.isVisible());
    COMPARE_COLOR(dialog.getColor(), Other);
}

void TestDialogBehaviour::previousColorSurvivesLaterOpenings()
{
    QLxColorButton first;
    QLxColorButton second;
    first.setColor({120.0F, 1.0F, 1.0F});
    second.setColor({240.0F, 1.0F, 1.0F});
    click(&first);
    auto *const dialog = dynamic_cast<QLxColorDialog *>(sharedColorDialog.data());
    QVERIFY(dialog);
    QTest::mouseClick(dialog->_accept, Qt::LeftButton);
    SignalLog log;
    log.watch(&second, &QLxColorButton::temporaryColorChosen, "temporary");
    log.watch(&second, &QLxColorButton::finalColorChosen, "final");
    click(&second);
    COMPARE_LOG(log, {}); // opening is no edit
    QCOMPARE(sharedColorDialog.data(), dialog);
    COMPARE_COLOR(dialog->getColor(), second.getColor());
    COMPARE_COLOR(dialog->_current_color->getColor(), second.getColor());
    COMPARE_COLOR(dialog->_previous_color->getColor(), first.getColor());
    printed([&] { click(dialog->_previous_color); });
    COMPARE_LOG(log, {QStringLiteral("temporary(%1)").arg(asText(first.getColor()))});
    QTest::mouseClick(dialog->_reject, Qt::LeftButton); // for the button it was its own colour all the time
    COMPARE_LOG(log, {QStringLiteral("temporary(%1)").arg(asText(first.getColor())),
                      QStringLiteral("final(%1)").arg(asText(second.getColor()))});
}

void TestDialogBehaviour::equalColorIsNoChange()
{
    QFETCH(bool, srgb);
    Probe dialog;
    QLx::colorUseGamma = srgb;
    dialog.setColor(Other);
    COMPARE_COLOR(dialog.linear(), srgb ? Other : decoded(Other));
    COMPARE_LOG(dialog.log, {announced(srgb ? Other : encoded(decoded(Other)))});
    dialog.setColor(Other);
    COMPARE_LOG(dialog.log, {});
    QLxColor next = Other;
    next.value = std::nextafterf(next.value, 1.0F); // any difference counts
    dialog.setColor(next);
    QCOMPARE(dialog.log.take().size(), 1);
}

void TestDialogBehaviour::switchingSrgbKeepsTheColorAndAnnouncesItsOtherForm()
{
    Probe dialog;
    QVERIFY(dialog._useGamma->isChecked());
    QTest::mouseClick(dialog._useGamma, Qt::LeftButton, {}, {8, dialog._useGamma->height() / 2});
    QVERIFY(!QLx::colorUseGamma);
    COMPARE_LOG(dialog.log, {announced(encoded(Sample))});
    COMPARE_COLOR(dialog.linear(), Sample);
    dialog._useGamma->click();
    QVERIFY(QLx::colorUseGamma);
    COMPARE_LOG(dialog.log, {announced(Sample)});
    QLx::colorUseGamma = false;
    QVERIFY(!Probe()._useGamma->isChecked()); // it starts as the setting is
    QVERIFY(!QLx::colorUseGamma);
}

void TestDialogBehaviour::controlsAreInStepWhenTheColorIsAnnounced()
{
    Probe dialog;
    QObject::connect(&dialog, &QLxColorDialog::colorChanged, dialog.log.context(), [&](QLxColor color) {
        dialog.log.note(QStringLiteral("%1, %2, %3, %4")
                            .arg(dialog._h_label->text(), dialog._hueSpiner->text(),
                                 asText(dialog._hueSlider->getValue()),
                                 asText(dialog._current_color->getColor() == swatch(color, false))));
    });
    dialog._hueSlider->setValue(0.5F);
    COMPARE_LOG(dialog.log,
                {announced({179.995F, Sample.saturation, Sample.value}), "H: 179.9950, 179.995, 0.5, true"});
}

void TestDialogBehaviour::hostsOwnBlockingStays()
{
    Probe dialog;
    QWidget *const written[] = {dialog._redSlider, dialog._bstarSpiner, dialog._colorField,
                                dialog._colorFieldSlider, dialog._previous_color};
    for (QWidget *const widget : written)
        widget->blockSignals(true);
    dialog.setColor(Other);
    dialog._useGamma->click();
    for (QWidget *const widget : written)
        QVERIFY2(widget->signalsBlocked(), qPrintable(widget->objectName()));
    QVERIFY(!dialog._greenSlider->signalsBlocked());
    QVERIFY(!dialog._redSpiner->signalsBlocked());
}

namespace {

/// Counts the paints of a whole widget: children repaint parts of what is below them.
class WholePaints : public QObject
{
public:
    explicit WholePaints(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_count += static_cast<const QPaintEvent *>(event)->region().boundingRect() ==
                       static_cast<const QWidget *>(watched)->rect();
        return false;
    }
    int takeScheduled()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return std::exchange(m_count, 0);
    }

private:
    int m_count = 0;
};

} // namespace

void TestDialogBehaviour::gammaValueTellsOnlyOfAnotherFloat()
{
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    WholePaints paints(&dialog);
    for (int quiet = 0; quiet < 3;) // the first paint sets off others
        quiet = paints.takeScheduled() == 0 ? quiet + 1 : 0;
    dialog.call("setGammaValue", 2.2); // which is no float
    COMPARE_LOG(dialog.log, {});
    QCOMPARE(paints.takeScheduled(), 0);
    dialog.call("setGammaValue", 1.8);
    QCOMPARE(QLx::colorGammaValue, 1.8F);
    COMPARE_LOG(dialog.log, {announced(Sample)});
    QCOMPARE(paints.takeScheduled(), 1);
    dialog.call("setGammaValue", 1.8 + 1e-12);
    COMPARE_LOG(dialog.log, {});
    QLx::colorUseGamma = false;
    dialog.call("setGammaValue", 2.2);
    COMPARE_LOG(dialog.log, {announced(encoded(Sample))});
    QCOMPARE(paints.takeScheduled(), 1);
    dialog.call("setUseGamma", true); // the other setting repaints too
    QCOMPARE(paints.takeScheduled(), 1);
}

void TestDialogBehaviour::redGreenAndBlueAreEncodedWhateverTheSetting()
{
    QFETCH(int, channel);
    for (const bool srgb : {true, false}) {
        Probe dialog;
        QLx::colorUseGamma = srgb;
        Reference::Triple rgb = Reference::hsvToRgb(Sample);
        rgb[size_t(channel - 3)] = 0.21404114F;
        dialog.slider(channel)->setValue(0.5F);
        COMPARE_COLOR(dialog.linear(), Reference::rgbToHsv(rgb));
        QCOMPARE(dialog.log.take().size(), 1);
        QCOMPARE(asText(dialog.slider(channel)->getValue()),
                 asText(Reference::linearToSrgb(Reference::hsvToRgb(dialog.linear())[size_t(channel - 3)])));
        dialog.spiner(channel)->setValue(0.25);
        rgb = Reference::hsvToRgb(dialog.linear());
        QCOMPARE(asText(dialog.slider(channel)->getValue()),
                 asText(Reference::linearToSrgb(rgb[size_t(channel - 3)])));
        QVERIFY(qAbs(rgb[size_t(channel - 3)] - Reference::srgbToLinear(0.25F)) < 1e-7F);
    }
}

void TestDialogBehaviour::valueIsEncodedOnlyWithSrgb()
{
    QFETCH(bool, srgb);
    Probe dialog;
    QLx::colorUseGamma = srgb;
    dialog._valueSlider->setValue(0.5F);
    COMPARE_COLOR(dialog.linear(), (QLxColor{Sample.hue, Sample.saturation, srgb ? 0.21404114F : 0.5F}));
    dialog._valueSpiner->setValue(0.25);
    const float value = srgb ? Reference::srgbToLinear(0.25F) : 0.25F;
    COMPARE_COLOR(dialog.linear(), (QLxColor{Sample.hue, Sample.saturation, value}));
    QCOMPARE(asText(dialog._valueSlider->getValue()), asText(srgb ? Reference::linearToSrgb(value) : value));
}

void TestDialogBehaviour::hueTypedReaches359999SliderOnly35999()
{
    Probe dialog;
    dialog.call("hueSpinerChanged", 400.0);
    COMPARE_LOG(dialog.log, {announced({359.999F, Sample.saturation, Sample.value})});
    QCOMPARE(dialog._h_label->text(), QStringLiteral("H: 359.9990"));
    QCOMPARE(dialog._hueSpiner->text(), QStringLiteral("359.990")); // its own limit
    dialog._hueSlider->setValue(1.0F);
    COMPARE_LOG(dialog.log, {announced({359.99F, Sample.saturation, Sample.value})});
    dialog.call("hueSpinerChanged", -1.0);
    COMPARE_LOG(dialog.log, {announced({0.0F, Sample.saturation, Sample.value})});
}

void TestDialogBehaviour::hueBoxLimitsWhatIsTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<bool>("pasted");
    QTest::addColumn<float>("hue");
    QTest::newRow("400 loses its last digit") << QStringLiteral("400") << false << 40.0F;
    QTest::newRow("400+0 does too") << QStringLiteral("400+0") << false << 40.0F;
    QTest::newRow("400+0 pasted is clamped") << QStringLiteral("400+0") << true << 359.99F;
    QTest::newRow("200*2 is clamped") << QStringLiteral("200*2") << false << 359.99F;
    QTest::newRow("-1 is refused") << QStringLiteral("-1") << false << Sample.hue;
}

void TestDialogBehaviour::hueBoxLimitsWhatIsTyped()
{
    QFETCH(QString, keys);
    QFETCH(bool, pasted);
    QFETCH(float, hue);
    Probe dialog;
    dialog.show();
    if (pasted) {
        QGuiApplication::clipboard()->setText(keys);
        QTest::keyClick(dialog._hueSpiner, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(dialog._hueSpiner, Qt::Key_V, Qt::ControlModifier);
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(dialog._hueSpiner, Qt::Key_Return);
    } else {
        type(dialog._hueSpiner, keys);
    }
    COMPARE_COLOR(dialog.getColor(), (QLxColor{hue, Sample.saturation, Sample.value}));
    QCOMPARE(dialog.log.take().size(), hue == Sample.hue ? 0 : 1);
    QVERIFY(dialog.isVisible());
}

void TestDialogBehaviour::onlyHueSaturationAndValueAreLimited_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("channel");
    QTest::addColumn<float>("stored");
    const auto row = [](const char *slot, double x, int channel, float stored) {
        QTest::addRow("%s %g", slot, x) << QString::fromLatin1(slot) << x << channel << stored;
    };
    row("saturationSpinerChanged", 1.5, 1, 1.0F);
    row("saturationSpinerChanged", -0.5, 1, 0.0F);
    row("valueSpinerChanged", 1.5, 2, 1.0F);
    row("valueSpinerChanged", -0.5, 2, 0.0F);
    row("redSpinerChanged", 2.0, 3, Reference::srgbToLinear(2.0F));
    row("greenSpinerChanged", -0.5, 4, Reference::srgbToLinear(-0.5F));
    row("blueSpinerChanged", 1e3, 5, Reference::srgbToLinear(1e3F));
    row("lstarSpinerChanged", 150.0, 6, 150.0F);
    row("astarSpinerChanged", 300.0, 7, 300.0F);
    row("bstarSpinerChanged", -300.0, 8, -300.0F);
}

void TestDialogBehaviour::onlyHueSaturationAndValueAreLimited()
{
    QFETCH(QString, slot);
    QFETCH(double, number);
    QFETCH(int, channel);
    QFETCH(float, stored);
    Probe dialog;
    dialog.call(slot.toLatin1().constData(), number);
    COMPARE_COLOR(dialog.linear(), replaced(Sample, channel, stored));
    COMPARE_LOG(dialog.log, {announced(replaced(Sample, channel, stored))});
}

void TestDialogBehaviour::negativeRedIsKeptButShownAsZero()
{
    Probe dialog;
    dialog.show();
    type(dialog._redSpiner, QStringLiteral("-0.5"));
    COMPARE_COLOR(dialog.getColor(), replaced(Sample, 3, Reference::srgbToLinear(-0.5F)));
    QVERIFY(Reference::hsvToRgb(dialog.getColor())[0] < 0.0F);
    QCOMPARE(dialog._redSlider->getValue(), 0.0F);
    QCOMPARE(dialog._redSpiner->text(), QStringLiteral("0.000"));
    QVERIFY(dialog._r_label->text().startsWith(QLatin1String("R: -0.03")));
}

void TestDialogBehaviour::spinBoxesShowTheSlidersNumbers()
{
    Probe dialog;
    for (const QLxColor &color :
         {Sample, Other, QLxColor{359.999F, 1.0F, 3.0F}, QLxColor{300.0F, 1.5F, 0.5F}}) {
        dialog.setColor(color);
        for (int channel = 0; channel < 9; ++channel) {
            const QLxDoubleSpiner *const box = dialog.spiner(channel);
            const auto real = static_cast<double>(dialog.slider(channel)->getRealValue());
            QVERIFY(qAbs(box->value() - qBound(box->minimum(), real, box->maximum())) < 1e-9);
        }
    }
    // Whatever the slider makes of its position: 100 times less here.
    dialog._lstarSlider->setMode(QLxColorSlider::Saturation);
    dialog.setColor(Sample);
    QVERIFY(qAbs(dialog._lstarSpiner->value() - static_cast<double>(Reference::hsvToLab(Sample)[0]) / 100.0) <
            1e-6);
}

void TestDialogBehaviour::bStarSliderWearsTheGradientOfValue()
{
    Probe dialog;
    dialog._bstarButton->setChecked(true);
    dialog.setColor(Other);
    COMPARE_COLOR(dialog._bstarSlider->getMinColor(), QLxColor());
    COMPARE_COLOR(dialog._bstarSlider->getMaxColor(), (QLxColor{Other.hue, Other.saturation, 1.0F}));
    COMPARE_COLOR(dialog._valueSlider->getMinColor(), QLxColor());
    COMPARE_COLOR(dialog._valueSlider->getMaxColor(), (QLxColor{Other.hue, Other.saturation, 1.0F}));
    // The field's own slider has the real one.
    const Reference::Triple lab = Reference::hsvToLab(Other);
    COMPARE_COLOR(dialog._colorFieldSlider->getMinColor(), Reference::labToHsv({lab[0], lab[1], -256.0F}));
    COMPARE_COLOR(dialog._colorFieldSlider->getMaxColor(), Reference::labToHsv({lab[0], lab[1], 256.0F}));
    COMPARE_COLOR(dialog._astarSlider->getMinColor(), Reference::labToHsv({lab[0], -256.0F, lab[2]}));
    COMPARE_COLOR(dialog._astarSlider->getMaxColor(), Reference::labToHsv({lab[0], 256.0F, lab[2]}));
}

void TestDialogBehaviour::modeSwitchEmitsNothing()
{
    QFETCH(int, channel);
    Probe dialog;
    dialog.show();
    dialog.button(channel == 0 ? 1 : 0)->setChecked(true);
    dialog._greenSlider->blockSignals(true);
    dialog._greenSlider->setValue(0.125F); // out of step, until the switch
    QTest::mouseClick(dialog.button(channel), Qt::LeftButton, {}, {8, dialog.button(channel)->height() / 2});
    COMPARE_LOG(dialog.log, {});
    QCOMPARE(int(dialog._colorField->getMode()), channel);
    QCOMPARE(int(dialog._colorFieldSlider->getMode()), channel);
    QCOMPARE(asText(dialog._colorFieldSlider->getValue()), asText(dialog.slider(channel)->getValue()));
    QVERIFY(dialog._greenSlider->getValue() != 0.125F);
    COMPARE_COLOR(dialog.getColor(), Sample);
}

void TestDialogBehaviour::uncheckedModeButtonDoesNothing()
{
    QFETCH(int, channel);
    Probe dialog;
    const int mode = channel == 0 ? 1 : 0;
    dialog.button(mode)->setChecked(true);
    dialog._greenSlider->blockSignals(true);
    dialog._greenSlider->setValue(0.125F);
    QByteArray slot(Channels[channel]);
    slot[0] = slot.left(1).toUpper().at(0);
    dialog.call(("set" + slot + "Mode").constData(), false);
    QCOMPARE(int(dialog._colorField->getMode()), mode);
    QCOMPARE(int(dialog._colorFieldSlider->getMode()), mode);
    QCOMPARE(dialog._greenSlider->getValue(), 0.125F); // nothing was brought in step
    COMPARE_LOG(dialog.log, {});
}

void TestDialogBehaviour::greyKeepsItsHueInTheField()
{
    QFETCH(int, channel);
    Probe dialog;
    dialog.button(channel)->setChecked(true);
    dialog.setColor({200.0F, 0.0F, 0.5F});
    if (channel == 0)
        QCOMPARE(dialog._colorField->getHue(), 200.0F);
    else
        QVERIFY(dialog._colorField->getHue() != 200.0F);
    QCOMPARE(dialog._h_label->text(), QStringLiteral("H: 200.0000"));
    QCOMPARE(dialog._hueSpiner->text(), QStringLiteral("200.000"));
}

void TestDialogBehaviour::fieldSliderKeepsItsEndsInHueAndRgbModes_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<float>("hue"); // of the brighter end
    QTest::newRow("hue") << 0 << 0.0F;
    QTest::newRow("red") << 3 << 0.0F;
    QTest::newRow("green") << 4 << 120.0F;
    QTest::newRow("blue") << 5 << 240.0F;
}

void TestDialogBehaviour::fieldSliderKeepsItsEndsInHueAndRgbModes()
{
    QFETCH(int, channel);
    QFETCH(float, hue);
    Probe dialog;
    COMPARE_COLOR(dialog._colorFieldSlider->getMaxColor(), (QLxColor{0.0F, 0.0F, 1.0F})); // a new slider's
    dialog._saturationButton->setChecked(true);
    dialog.button(channel)->setChecked(true);
    // Hue leaves the ends of the mode before, the primaries bring their own.
    const QLxColor low = channel == 0 ? QLxColor{Sample.hue, 0.0F, Sample.value} : QLxColor();
    const QLxColor high = channel == 0 ? QLxColor{Sample.hue, 1.0F, Sample.value} : QLxColor{hue, 1.0F, 1.0F};
    for (const QLxColor &color : {Sample, Other, QLxColor{90.0F, 1.0F, 1.0F}}) {
        dialog.setColor(color);
        COMPARE_COLOR(dialog._colorFieldSlider->getMinColor(), low);
        COMPARE_COLOR(dialog._colorFieldSlider->getMaxColor(), high);
    }
    dialog._valueButton->setChecked(true); // which does follow
    COMPARE_COLOR(dialog._colorFieldSlider->getMaxColor(), (QLxColor{90.0F, 1.0F, 1.0F}));
}

void TestDialogBehaviour::fieldIsDecodedButInLabModes()
{
    QFETCH(int, channel);
    Probe dialog;
    dialog.show();
    dialog.button(channel)->setChecked(true);
    QLxColor picked;
    QObject::connect(dialog._colorField, &QLxColorField::colorChanged, dialog.log.context(),
                     [&](QLxColor color) { picked = color; });
    const bool lab = channel >= 6;
    const QLxColor shown = dialog._colorField->getColor();
    const QLxColor expected = lab ? Reference::labToHsv(Reference::hsvToLab(Sample)) : encoded(Sample);
    QVERIFY(qAbs(shown.value - expected.value) < 1e-5F);
    Pointer(dialog._colorField).press({120, 90});
    QVERIFY(picked != QLxColor());
    COMPARE_COLOR(dialog.getColor(), lab ? picked : decoded(picked));
    COMPARE_LOG(dialog.log, {announced(lab ? picked : decoded(picked))});
}

void TestDialogBehaviour::fieldSliderInNoModeChangesNothing()
{
    Probe dialog;
    dialog._colorFieldSlider->setMode(static_cast<QLxColorSlider::Mode>(9));
    dialog.call("colorFieldSliderChanged", 0.75F);
    COMPARE_LOG(dialog.log, {announced(Sample)}); // but says so, as after every edit
    COMPARE_COLOR(dialog.getColor(), Sample);
}

void TestDialogBehaviour::labelsOfLabReadTheDialogsOwnColor()
{
    Probe dialog;
    dialog.setColorInfo(Other);
    const Reference::Triple rgb = Reference::hsvToRgb(Other);
    const Reference::Triple lab = Reference::hsvToLab(Sample);
    QCOMPARE(dialog._h_label->text(), QStringLiteral("H: 30.0000"));
    QCOMPARE(dialog._s_label->text(), QStringLiteral("S: 0.7500"));
    QCOMPARE(dialog._v_label->text(), QStringLiteral("V: 0.5000"));
    QCOMPARE(dialog._r_label->text(), QStringLiteral("R: ") + number(rgb[0], 4));
    QCOMPARE(dialog._g_label->text(), QStringLiteral("G: ") + number(rgb[1], 4));
    QCOMPARE(dialog._b_label->text(), QStringLiteral("B: ") + number(rgb[2], 4));
    QCOMPARE(dialog._Lstar_label->text(), QStringLiteral("L*: ") + number(lab[0], 3));
    QCOMPARE(dialog._astar_label->text(), QStringLiteral("a*: ") + number(lab[1], 3));
    QCOMPARE(dialog._bstar_label->text(), QStringLiteral("b*: ") + number(lab[2], 3));
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
}

void TestDialogBehaviour::labelsOfRgbAreEncodedOnlyWithoutSrgb()
{
    QFETCH(bool, srgb);
    Probe dialog;
    QLx::colorUseGamma = srgb;
    dialog.setColorInfo(Other);
    const Reference::Triple rgb = Reference::hsvToRgb(Other);
    const auto shown = [&](float linear) {
        return number(srgb ? linear : Reference::linearToSrgb(linear), 4);
    };
    QCOMPARE(dialog._r_label->text(), QStringLiteral("R: ") + shown(rgb[0]));
    QCOMPARE(dialog._g_label->text(), QStringLiteral("G: ") + shown(rgb[1]));
    QCOMPARE(dialog._b_label->text(), QStringLiteral("B: ") + shown(rgb[2]));
    QCOMPARE(dialog._v_label->text(), QStringLiteral("V: 0.5000"));
}

void TestDialogBehaviour::labelsAreRepaintedAtOnce()
{
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    PaintCounter first(dialog._r_label);
    PaintCounter last(dialog._bstar_label);
    dialog.setColorInfo(Other);
    QVERIFY(first.take() > 0);
    QVERIFY(last.take() > 0);
}

void TestDialogBehaviour::swatchesStartAlike()
{
    QFETCH(bool, srgb);
    QLx::colorUseGamma = srgb;
    const Probe dialog; // its colour is given in the form that the setting asks for
    const QLxColor color = srgb ? Sample : decoded(Sample);
    COMPARE_COLOR(dialog._previous_color->getColor(), swatch(color, false));
    COMPARE_COLOR(dialog._current_color->getColor(), swatch(color, false));
}

void TestDialogBehaviour::previousSwatchIsEncodedCurrentSwatchIsNot()
{
    QFETCH(bool, srgb);
    QLx::colorUseGamma = true;
    Probe dialog;
    dialog._useGamma->setChecked(!srgb);
    dialog._useGamma->setChecked(srgb);
    COMPARE_COLOR(dialog._previous_color->getColor(), swatch(Sample, true));
    COMPARE_COLOR(dialog._current_color->getColor(), swatch(Sample, false));
    QVERIFY(swatch(Sample, true) != swatch(Sample, false));
    dialog.setColor(Other); // the previous colour stays
    COMPARE_COLOR(dialog._previous_color->getColor(), swatch(Sample, true));
    COMPARE_COLOR(dialog._current_color->getColor(), swatch(dialog.linear(), false));
}

void TestDialogBehaviour::currentSwatchIsOnlyThereToSee()
{
    Probe dialog;
    dialog.show();
    click(dialog._current_color);
    QMimeData data;
    data.setColorData(QColor(Qt::green));
    for (QLxColorButton *const button : {dialog._current_color, dialog._previous_color}) {
        QDragEnterEvent enter({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button, &enter);
        QDropEvent drop({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button, &drop);
        COMPARE_COLOR(button->getColor(), (QLxColor{120.0F, 1.0F, 1.0F})); // until it is written again
    }
    COMPARE_COLOR(dialog.getColor(), Sample);
    COMPARE_LOG(dialog.log, {});
    QVERIFY(!sharedColorDialog);
}

void TestDialogBehaviour::previousSwatchRestoresAndSaysSo()
{
    Probe dialog;
    dialog.setColor(Other);
    dialog.log.take();
    const QByteArray line = "Called Restore Previous Color\n";
    const auto restore = [&] { click(dialog._previous_color); };
    QCOMPARE(printed(restore), line);
    COMPARE_COLOR(dialog.getColor(), Sample);
    COMPARE_LOG(dialog.log, {announced(Sample)});
    QCOMPARE(printed(restore), line); // though it is the colour already
    COMPARE_LOG(dialog.log, {announced(Sample)});
    QLx::colorUseGamma = false;
    QCOMPARE(printed([&] { dialog.call("restorePreviousColor"); }), line);
    COMPARE_LOG(dialog.log, {announced(encoded(Sample))});
    COMPARE_COLOR(dialog.linear(), Sample);
    QVERIFY(!sharedColorDialog);
}

void TestDialogBehaviour::customColorIsTheSameWhateverTheSetting_data()
{
    QTest::addColumn<bool>("stored");
    QTest::addColumn<bool>("picked");
    QTest::newRow("stored with sRGB, picked with it") << true << true;
    QTest::newRow("stored with sRGB, picked without") << true << false;
    QTest::newRow("stored without sRGB, picked with it") << false << true;
    QTest::newRow("stored without sRGB, picked without") << false << false;
}

void TestDialogBehaviour::customColorIsTheSameWhateverTheSetting()
{
    QFETCH(bool, stored);
    QFETCH(bool, picked);
    Probe dialog;
    dialog.show();
    click(dialog.cell(1), Qt::RightButton); // to store there
    QLx::colorUseGamma = stored;
    QTest::mouseClick(dialog._store_custom_color, Qt::LeftButton);
    COMPARE_LOG(dialog.log, {});
    const QLxColor kept = Reference::rgbToHsv(Reference::hsvToRgb(Sample));
    COMPARE_COLOR(dialog._custom_colors->getColor(1), kept);
    dialog.setColor(Other);
    dialog.log.take();
    QLx::colorUseGamma = picked;
    Probe another; // shows the same colours
    for (Probe *const each : {&dialog, &another, &another}) {
        click(each->cell(1)); // the second time it has the colour already
        COMPARE_COLOR(each->linear(), kept);
        COMPARE_LOG(each->log, {announced(picked ? kept : encoded(kept))});
    }
}

void TestDialogBehaviour::greyLosesItsHueAsACustomColor()
{
    Probe dialog({200.0F, 0.0F, 0.5F});
    click(dialog.cell(2), Qt::RightButton);
    dialog._store_custom_color->click();
    COMPARE_LOG(dialog.log, {});
    click(dialog.cell(2));
    COMPARE_LOG(dialog.log, {announced({0.0F, 0.0F, 0.5F})});
}

void TestDialogBehaviour::freeCellDoesNothing()
{
    Probe dialog;
    QVERIFY(dialog._custom_colors->isFreeCell(10)); // no test fills it
    click(dialog.cell(10));
    for (const int index : {10, 11, -1})
        dialog.call("getCustomColor", index);
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
}

void TestDialogBehaviour::chosenCellIsStoredIntoAgainAndAgain()
{
    Probe dialog;
    click(dialog.cell(4));
    for (const QLxColor &color : {Sample, Other}) {
        dialog.setColor(color);
        dialog._store_custom_color->click();
        COMPARE_COLOR(dialog._custom_colors->getColor(4), Reference::rgbToHsv(Reference::hsvToRgb(color)));
    }
    QVERIFY(dialog._custom_colors->isFreeCell(5));
}

void TestDialogBehaviour::tabChangedRefreshesForTheColorPage()
{
    Probe dialog;
    dialog.show();
    const float position = dialog._greenSlider->getValue();
    dialog._greenSlider->blockSignals(true);
    dialog._greenSlider->setValue(0.125F);
    dialog._redSpiner->blockSignals(true);
    dialog._redSpiner->setValue(0.75);
    dialog.tabWidget->setCurrentIndex(1); // connected to nothing
    dialog.tabWidget->setCurrentIndex(0);
    for (const int index : {1, 2, -1})
        dialog.call("tabChanged", index);
    QCOMPARE(dialog._greenSlider->getValue(), 0.125F);
    QCOMPARE(dialog._redSpiner->value(), 0.75);
    dialog.call("tabChanged", 0);
    QCOMPARE(dialog._greenSlider->getValue(), position);
    QVERIFY(dialog._redSpiner->value() != 0.75);
    COMPARE_LOG(dialog.log, {});
}

void TestDialogBehaviour::spectrumSlotDoesNothing_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char *const signature : {"setUseSpectrum(bool)",
                                        "saveSpectrumButtonClicked()",
                                        "loadSpectrumLineChanged()",
                                        "loadSpectrumButtonClicked()",
                                        "addSpectrumButtonClicked()",
                                        "loadSpectrumFile(const char*)",
                                        "addSpectrumFile(const char*)",
                                        "rejectSpectrum()",
                                        "setUniformMode(bool)",
                                        "setNonUniformMode(bool)",
                                        "updateSpectrum()",
                                        "resetSpectrum()",
                                        "setSamplingPreset(int)",
                                        "resampleSpectrum()",
                                        "setAnalyticFunction()",
                                        "addAnalyticFunction()",
                                        "rgbSpectrumSliderChanged(float)",
                                        "scaleSpectrumSliderChanged(float)",
                                        "toggleSamplingEditor(bool)",
                                        "setSpectrumInfo(QLxColor)"})
        QTest::newRow(signature) << QByteArray(signature);
}

void TestDialogBehaviour::spectrumSlotDoesNothing()
{
    QFETCH(QByteArray, signature);
    Probe dialog;
    dialog.show();
    dialog.tabWidget->setCurrentIndex(1);
    const QImage before = dialog.grab().toImage();
    const int method = dialog.metaObject()->indexOfMethod(signature.constData());
    QVERIFY(method >= dialog.metaObject()->methodOffset());
    bool on = true;
    int preset = 1;
    float position = 0.75F;
    const char *path = "no such file";
    QLxColor color = Other;
    void *argument = nullptr;
    const QByteArray type = signature.mid(signature.indexOf('(') + 1).chopped(1);
    if (type == "bool")
        argument = &on;
    else if (type == "int")
        argument = &preset;
    else if (type == "float")
        argument = &position;
    else if (type == "const char*")
        argument = &path;
    else if (type == "QLxColor")
        argument = &color;
    void *arguments[] = {nullptr, argument};
    QMetaObject::metacall(&dialog, QMetaObject::InvokeMetaMethod, method, arguments);
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.grab().toImage() == before);
    dialog.tabWidget->setCurrentIndex(0);
    QCOMPARE(dialog._h_label->text(), QStringLiteral("H: 200.0000"));
}

namespace {

/// Uses a control as a user does. Returns what it said about that.
QStringList use(QWidget *control)
{
    SignalLog log;
    if (auto *const slider = qobject_cast<QLxColorSlider *>(control)) {
        log.watch(slider, &QLxColorSlider::sliderReleased, "used");
        click(slider);
    } else if (auto *const box = qobject_cast<QAbstractSpinBox *>(control)) {
        log.watch(box, &QAbstractSpinBox::editingFinished, "used");
        type(box, QStringLiteral("7"));
    } else if (auto *const line = qobject_cast<QLineEdit *>(control)) {
        log.watch(line, &QLineEdit::returnPressed, "used");
        type(line, QStringLiteral("file"));
    } else if (auto *const presets = qobject_cast<QLxComboBox *>(control)) {
        log.watch(presets, &QLxComboBox::popupShown, "used"); // there is nothing in it
        QTest::mouseClick(presets, Qt::LeftButton);
        presets->hidePopup();
    } else if (auto *const list = qobject_cast<QComboBox *>(control)) {
        log.watch(list, QOverload<int>::of(&QComboBox::activated), "used");
        QTest::keyClick(list, Qt::Key_Down);
    } else if (auto *const group = qobject_cast<QGroupBox *>(control)) {
        log.watch(group, &QGroupBox::clicked, "used");
        QTest::mouseClick(group, Qt::LeftButton, {}, {8, 8});
    } else if (auto *const tabs = qobject_cast<QTabWidget *>(control)) {
        log.watch(tabs, &QTabWidget::currentChanged, "used");
        const QPoint other = tabs->tabBar()->tabRect(1 - tabs->currentIndex()).center();
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, other);
    } else if (auto *const view = qobject_cast<QGraphicsView *>(control)) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton);
        log.note(QStringLiteral("used()"));
    } else if (auto *const button = qobject_cast<QAbstractButton *>(control)) {
        log.watch(button, &QAbstractButton::clicked, "used");
        QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    }
    return log.take();
}

} // namespace

void TestDialogBehaviour::spectrumControlChangesNoColor_data()
{
    QTest::addColumn<QString>("name");
    const Probe dialog;
    const QList<QWidget *> widgets = dialog._spectrum_tab->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString name = widget->objectName();
        const auto *const group = qobject_cast<const QGroupBox *>(widget);
        const bool plain = qobject_cast<const QLabel *>(widget) || (group && !group->isCheckable()) ||
                           widget->metaObject() == &QFrame::staticMetaObject ||
                           widget->metaObject() == &QWidget::staticMetaObject;
        if (!plain && dialog.findChild<QWidget *>(name) == widget && !name.startsWith(QLatin1String("qt_")) &&
            !qobject_cast<QTabBar *>(widget->parent()))
            QTest::newRow(name.toLatin1().constData()) << name;
    }
    QTest::newRow("the pages' own tabs") << QStringLiteral("tabWidget");
}

void TestDialogBehaviour::spectrumControlChangesNoColor()
{
    QFETCH(QString, name);
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.tabWidget->setCurrentIndex(1);
    auto *const control = dialog.findChild<QWidget *>(name);
    for (QGroupBox *const group : {dialog._spectrum_input_group, dialog._enableSamplingEditor})
        group->setChecked(group != control);
    if (dialog.tab_input_rgb->isAncestorOf(control))
        dialog.spectrum_input_tab->setCurrentIndex(0);
    QVERIFY(control->isVisible() && control->isEnabled());
    QCOMPARE(use(control).size(), 1);
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
    QVERIFY(dialog.isVisible());
    QVERIFY(!sharedColorDialog);
}

void TestDialogBehaviour::analyticFunctionShowsItsParameters_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("thermal");
    QTest::newRow("none") << -1 << true;
    QTest::newRow("Blackbody") << 0 << true;
    QTest::newRow("CIE D") << 1 << true;
    QTest::newRow("Gauss") << 2 << false;
    QTest::newRow("Welch") << 10 << false;
}

void TestDialogBehaviour::analyticFunctionShowsItsParameters()
{
    QFETCH(int, index);
    QFETCH(bool, thermal);
    Probe dialog;
    dialog.call("analyticFunctionChanged", thermal ? 2 : 0); // the other way round
    const auto shown = [&](const QList<QWidget *> &widgets) {
        return std::count_if(widgets.begin(), widgets.end(), [](QWidget *each) { return !each->isHidden(); });
    };
    const QList<QWidget *> peak{dialog.label_analytic_peak_wavelength,
                                dialog._analytic_peak_wavelength,
                                dialog.label_analytic_peak_intensity,
                                dialog._analytic_peak_intensity,
                                dialog.label_analytic_fwhm,
                                dialog._analytic_fwhm};
    const QList<QWidget *> temperature{dialog.label_analytic_temperature, dialog._analytic_temperature};
    QCOMPARE(int(shown(peak)), thermal ? 6 : 0);
    QCOMPARE(int(shown(temperature)), thermal ? 0 : 2);
    dialog._analytic_function->setCurrentIndex(3); // which is not connected
    dialog._analytic_function->setCurrentIndex(0);
    QCOMPARE(int(shown(peak)), thermal ? 6 : 0);
    dialog.call("analyticFunctionChanged", index);
    QCOMPARE(int(shown(peak)), thermal ? 0 : 6);
    QCOMPARE(int(shown(temperature)), thermal ? 2 : 0);
    COMPARE_LOG(dialog.log, {});
}

void TestDialogBehaviour::resizingTheSpectrumPageSetsTheScene()
{
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.resize(950, 700);
    dialog.tabWidget->setCurrentIndex(1);
    QCOMPARE(dialog._spectrumPlot->sceneRect(), QRectF()); // neither on the colour page nor by turning to it
    for (const QSize &size : {QSize(1000, 800), QSize(960, 720)}) {
        dialog.resize(size);
        QCOMPARE(dialog.size(), size);
        QCOMPARE(dialog._spectrumPlot->sceneRect(),
                 QRectF(QPointF(), dialog._spectrumPlot->viewport()->size()));
        QVERIFY(dialog._spectrumPlot->viewport()->width() > 300);
    }
    const QRectF scene = dialog._spectrumPlot->sceneRect();
    dialog.tabWidget->setCurrentIndex(0);
    dialog.resize(1100, 900);
    QCOMPARE(dialog._spectrumPlot->sceneRect(), scene);
    COMPARE_LOG(dialog.log, {});
}

QLX_TEST_MAIN(TestDialogBehaviour)
#include "tst_dialogbehaviour.moc"
