// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Where the colour dialog surprises, on purpose or because of what its users need: the field, the labels and
// the swatches.
#include "DialogProbe.h"
#include "PaintCounter.h"
#include "QLxColorButton.h"

#include <QDropEvent>
#include <QMimeData>

class TestDialogViews : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

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
};

void TestDialogViews::cleanup()
{
    QLx::colorUseGamma = true;
    QLx::colorGammaValue = 2.2F;
    delete sharedColorDialog.data();
    TestCase::cleanup();
}

void TestDialogViews::modeSwitchEmitsNothing()
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

void TestDialogViews::uncheckedModeButtonDoesNothing()
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

void TestDialogViews::greyKeepsItsHueInTheField()
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

void TestDialogViews::fieldSliderKeepsItsEndsInHueAndRgbModes_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<float>("hue"); // of the brighter end
    QTest::newRow("hue") << 0 << 0.0F;
    QTest::newRow("red") << 3 << 0.0F;
    QTest::newRow("green") << 4 << 120.0F;
    QTest::newRow("blue") << 5 << 240.0F;
}

void TestDialogViews::fieldSliderKeepsItsEndsInHueAndRgbModes()
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

void TestDialogViews::fieldIsDecodedButInLabModes()
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

void TestDialogViews::fieldSliderInNoModeChangesNothing()
{
    Probe dialog;
    dialog._colorFieldSlider->setMode(static_cast<QLxColorSlider::Mode>(9));
    dialog.call("colorFieldSliderChanged", 0.75F);
    COMPARE_LOG(dialog.log, {announced(Sample)}); // but says so, as after every edit
    COMPARE_COLOR(dialog.getColor(), Sample);
}

void TestDialogViews::labelsOfLabReadTheDialogsOwnColor()
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

void TestDialogViews::labelsOfRgbAreEncodedOnlyWithoutSrgb()
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

void TestDialogViews::labelsAreRepaintedAtOnce()
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

void TestDialogViews::swatchesStartAlike()
{
    QFETCH(bool, srgb);
    QLx::colorUseGamma = srgb;
    const Probe dialog; // its colour is given in the form that the setting asks for
    const QLxColor color = srgb ? Sample : decoded(Sample);
    COMPARE_COLOR(dialog._previous_color->getColor(), swatch(color, false));
    COMPARE_COLOR(dialog._current_color->getColor(), swatch(color, false));
}

void TestDialogViews::previousSwatchIsEncodedCurrentSwatchIsNot()
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

void TestDialogViews::currentSwatchIsOnlyThereToSee()
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

void TestDialogViews::previousSwatchRestoresAndSaysSo()
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

QLX_TEST_MAIN(TestDialogViews)
#include "tst_dialogviews.moc"
