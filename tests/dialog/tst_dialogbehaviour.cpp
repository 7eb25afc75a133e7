// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Where the colour dialog surprises, on purpose or because of what its users need: its colour, and the
// sliders and spin boxes.
#include "DialogProbe.h"
#include "QLxColorButton.h"

#include <QClipboard>

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

QLX_TEST_MAIN(TestDialogBehaviour)
#include "tst_dialogbehaviour.moc"
