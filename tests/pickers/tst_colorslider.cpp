// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The slider's state, signals, pointer and life; tst_colorsliderpicture looks at what it paints.
#include "PaintCounter.h"
#include "Pointer.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <limits>

namespace {

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();

void watch(SignalLog &log, QLxColorSlider *slider)
{
    using S = QLxColorSlider;
    log.watch(slider, &S::minColorChanged, "minColorChanged");
    log.watch(slider, &S::maxColorChanged, "maxColorChanged");
    log.watch(slider, QOverload<float>::of(&S::valueChanged), "valueChanged");
    log.watch(slider, &S::colorChanged, "colorChanged");
    log.watch(slider, QOverload<QString>::of(&S::valueChanged), "valueChanged");
    log.watch(slider, &S::sliderPressed, "sliderPressed");
    log.watch(slider, &S::sliderMoved, "sliderMoved");
    log.watch(slider, &S::sliderReleased, "sliderReleased");
}

} // namespace

class TestColorSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsDocumented();
    void setValueEmitsThreeSignalsInOrder();
    void referenceColors();
    void repaints();
    void modeSlots_data();
    void modeSlots();
    void realValueTextAndColor_data();
    void realValueTextAndColor();
    void modeOutsideTheEnum();
    void pointerWithTracking();
    void pointerWithoutTracking();
    void pointerIgnoresOtherButtons();
    void pointerPosition_data();
    void pointerPosition();
    void disabledByParameters();
    void deletedInsideAnySignal_data();
    void deletedInsideAnySignal();
    void changedInsideItsSignal();
    void badNumbers();
};

void TestColorSlider::startsAsDocumented()
{
    QWidget parent;
    const QLxColorSlider plain(&parent, "ignored");
    QCOMPARE(plain.objectName(), QStringLiteral("QLxColorSlider"));
    QCOMPARE(plain.parentWidget(), &parent);
    QCOMPARE(plain.getMode(), QLxColorSlider::Hue);
    QCOMPARE(plain.orientation(), Qt::Horizontal);
    QCOMPARE(plain.getValue(), 0.5F);
    QVERIFY(plain.getMinColor() == (QLxColor{0, 0, 0}));
    QVERIFY(plain.getMaxColor() == (QLxColor{0, 0, 1}));
    QCOMPARE(plain.sizeHint(), QSize(62, 16));

    QLxColorSlider upright(Qt::Vertical);
    QCOMPARE(upright.objectName(), QStringLiteral("QLxColorSlider"));
    QCOMPARE(upright.sizeHint(), QSize(16, 62));
    upright.setOrientation(Qt::Horizontal);
    QCOMPARE(upright.sizeHint(), QSize(62, 16));
    QVERIFY(upright.setProperty("orientation", QVariant::fromValue(Qt::Vertical)));
    QCOMPARE(upright.orientation(), Qt::Vertical);
    QVERIFY(upright.setProperty("mode", QLxColorSlider::Astar));
    QCOMPARE(upright.getMode(), QLxColorSlider::Astar);
}

void TestColorSlider::setValueEmitsThreeSignalsInOrder()
{
    QLxColorSlider slider;
    SignalLog log;
    watch(log, &slider);
    slider.setValue(0.5F);
    COMPARE_LOG(log, {});
    slider.setValue(0.5F, true, true);
    COMPARE_LOG(log, {"valueChanged(0.5)", "colorChanged(hsv 179.999496 1 1)", "valueChanged(\"179.995\")"});
    slider.setValue(1.0F);
    COMPARE_LOG(log, {"valueChanged(1)", "colorChanged(hsv 359.998993 1 1)", "valueChanged(\"359.990\")"});
    slider.setValue(0.25F, false);
    COMPARE_LOG(log, {});
    QCOMPARE(slider.getValue(), 0.25F);
    slider.setValue(0.25F, false, true);
    COMPARE_LOG(log, {});
    slider.setValue(1.5F); // not limited
    COMPARE_LOG(log, {"valueChanged(1.5)", "colorChanged(hsv 539.998474 1 1)", "valueChanged(\"539.985\")"});
}

void TestColorSlider::referenceColors()
{
    QLxColorSlider slider;
    SignalLog log;
    watch(log, &slider);
    slider.setMinColor(QLxColor{0, 0, 0});
    slider.setMaxColor(QLxColor{0, 0, 1});
    COMPARE_LOG(log, {});
    slider.setMinColor(QLxColor{120, 1, 0.5F});
    slider.setMaxColor(QLxColor{240, 0.5F, 1});
    slider.setMinColor(QLxColor{120, 1, 0.5F});
    COMPARE_LOG(log, {"minColorChanged(hsv 120 1 0.5)", "maxColorChanged(hsv 240 0.5 1)"});
    slider.setMinColor(1, 0, 0);
    slider.setMaxColor(1, 1, 0);
    COMPARE_LOG(log, {});
    QVERIFY(slider.getMinColor() == (QLxColor{0, 1, 1}));
    QVERIFY(slider.getMaxColor() == (QLxColor{60, 1, 1}));
    slider.setMinColor(QLxColor{Nan, 0, 0}); // a NaN equals nothing
    slider.setMinColor(QLxColor{Nan, 0, 0});
    COMPARE_LOG(log, {"minColorChanged(hsv nan 0 0)", "minColorChanged(hsv nan 0 0)"});
}

void TestColorSlider::repaints()
{
    QLxColorSlider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QCoreApplication::processEvents();
    PaintCounter paints(&slider);

    slider.setValue(0.1F);
    QCOMPARE(paints.take(), 1);
    slider.setValue(0.2F, false);
    QCOMPARE(paints.take(), 1);
    slider.setValue(0.2F);
    QCOMPARE(paints.take(), 0);
    slider.setMinColor(QLxColor{1, 1, 1});
    QCOMPARE(paints.take(), 1);
    slider.setMaxColor(QLxColor{1, 1, 1});
    QCOMPARE(paints.take(), 1);
    QCOMPARE(paints.takeScheduled(), 0);

    slider.setMinColor(0, 1, 1);
    slider.setMaxColor(0, 1, 1);
    slider.setMode(QLxColorSlider::Blue);
    slider.setTracking(false);
    slider.setOrientation(Qt::Vertical);
    QCOMPARE(paints.take(), 0);
    QCOMPARE(paints.takeScheduled(), 0);

    slider.setRedMode(true);
    QCOMPARE(paints.take(), 0);
    QCOMPARE(paints.takeScheduled(), 1);
    slider.setRedMode(true);
    slider.setHueMode(false);
    QCOMPARE(paints.takeScheduled(), 0);
}

void TestColorSlider::modeSlots_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("slot");
    QTest::addColumn<float>("primaryHue"); // negative: the reference colours stay
    const char *names[] = {"Hue", "Saturation", "Value", "Red", "Green", "Blue", "Lstar", "Astar", "Bstar"};
    for (int i = 0; i < 9; ++i) {
        QTest::newRow(names[i]) << i << QStringLiteral("set%1Mode").arg(QLatin1String(names[i]))
                                << (i >= 3 && i <= 5 ? 120.0F * static_cast<float>(i - 3) : -1.0F);
    }
}

void TestColorSlider::modeSlots()
{
    QFETCH(int, mode);
    QFETCH(QString, slot);
    QFETCH(float, primaryHue);
    const auto call = [&slot](QLxColorSlider &slider, bool on) {
        return QMetaObject::invokeMethod(&slider, slot.toLatin1().constData(), Q_ARG(bool, on));
    };
    QLxColorSlider slider;
    const auto other = mode == 0 ? QLxColorSlider::Value : QLxColorSlider::Hue;
    slider.setMode(other);
    slider.setMinColor(QLxColor{10, 0.5F, 0.25F});
    slider.setMaxColor(QLxColor{20, 0.5F, 0.75F});
    SignalLog log;
    watch(log, &slider);

    QVERIFY(call(slider, false));
    QCOMPARE(slider.getMode(), other);
    QVERIFY(call(slider, true));
    QCOMPARE(int(slider.getMode()), mode);
    const bool primary = primaryHue >= 0;
    QVERIFY(slider.getMinColor() == (primary ? QLxColor{0, 0, 0} : QLxColor{10, 0.5F, 0.25F}));
    QVERIFY(slider.getMaxColor() == (primary ? QLxColor{primaryHue, 1, 1} : QLxColor{20, 0.5F, 0.75F}));
    COMPARE_LOG(log, {});

    // Entering the mode that is shown leaves custom colours alone.
    slider.setMaxColor(QLxColor{77, 0.5F, 0.75F});
    QVERIFY(call(slider, true));
    QVERIFY(slider.getMaxColor() == (QLxColor{77, 0.5F, 0.75F}));
}

void TestColorSlider::realValueTextAndColor_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<float>("position");
    QTest::addColumn<float>("real");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int mode, float position, float real, const char *text) {
        QTest::newRow(name) << mode << position << real << QString::fromLatin1(text);
    };
    row("hue in the middle", 0, 0.5F, 0.5F * 359.99F, "179.995");
    row("hue at the end", 0, 1.0F, 359.99F, "359.990");
    row("saturation", 1, 0.25F, 0.25F, "0.250");
    row("value", 2, 0.75F, 0.75F, "0.750");
    row("red", 3, 1.0F, 1.0F, "1.000");
    row("green", 4, 0.1F, 0.1F, "0.100");
    row("blue", 5, 0.0F, 0.0F, "0.000");
    row("L*", 6, 0.25F, 25.0F, "25.000");
    row("a* at the start", 7, 0.0F, -128.0F, "-128.000");
    row("a* at the end", 7, 1.0F, 128.0F, "128.000");
    row("b* in the middle", 8, 0.5F, 0.0F, "0.000");
    row("b*", 8, 0.75F, 64.0F, "64.000");
    row("an unknown mode shows the position", 42, 0.75F, 0.75F, "0.750");
}

void TestColorSlider::realValueTextAndColor()
{
    QFETCH(int, mode);
    QFETCH(float, position);
    const QLxColor low{300, 0.7F, 0.3F};
    const QLxColor high{80, 0.4F, 0.9F};
    QLxColorSlider slider;
    slider.setMode(static_cast<QLxColorSlider::Mode>(mode));
    slider.setMinColor(low);
    slider.setMaxColor(high);
    slider.setValue(position);
    QTEST(slider.getRealValue(), "real");
    QTEST(slider.getValueAsString(), "text");

    using Reference::F;
    QLxColor expected;
    if (mode == 0) {
        expected = {F(position) * 359.999F, 1, 1};
    } else if (mode >= 6 && mode <= 8) {
        Reference::Triple lab = Reference::hsvToLab(low); // of the minimum colour
        lab[size_t(mode - 6)] = mode == 6 ? F(position) * 100.0F : (F(position) - 0.5F) * 256.0F;
        expected = Reference::labToHsv(lab);
    } else {
        const Reference::Triple a = Reference::hsvToRgb(low);
        const Reference::Triple b = Reference::hsvToRgb(high);
        Reference::Triple mixed;
        for (size_t i = 0; i < 3; ++i)
            mixed[i] = F(a[i]) * (1.0F - F(position)) + F(b[i]) * position;
        expected = Reference::rgbToHsv(mixed);
    }
    QCOMPARE(asText(slider.getColor()), asText(expected));
}

void TestColorSlider::modeOutsideTheEnum()
{
    QLxColorSlider slider;
    QVERIFY(slider.setProperty("mode", 1000000));
    QCOMPARE(int(slider.getMode()), 1000000);
    slider.setValue(0.75F);
    QCOMPARE(asText(slider.getColor()), asText(QLxColor{0, 0, 0.75F})); // black to white
    slider.setMode(static_cast<QLxColorSlider::Mode>(-1));
    QCOMPARE(slider.getRealValue(), 0.75F);
    slider.setHueMode(true);
    QCOMPARE(slider.getMode(), QLxColorSlider::Hue);
}

void TestColorSlider::pointerWithTracking()
{
    QLxColorSlider slider;
    slider.resize(100, 20);
    slider.setValueMode(true);
    SignalLog log;
    watch(log, &slider);
    Pointer pointer(&slider);
    pointer.press({25, 5});
    COMPARE_LOG(log, {"sliderPressed()", "valueChanged(0.25)", "colorChanged(hsv 0 0 0.25)",
                      "valueChanged(\"0.250\")"});
    pointer.move({75, 500});
    COMPARE_LOG(log, {"valueChanged(0.75)", "colorChanged(hsv 0 0 0.75)", "valueChanged(\"0.750\")",
                      "sliderMoved(0.75)"});
    pointer.move({75, 5}); // the same position again
    COMPARE_LOG(log, {"sliderMoved(0.75)"});
    pointer.release({75, 5});
    COMPARE_LOG(log, {"sliderReleased()"});
}

void TestColorSlider::pointerWithoutTracking()
{
    QLxColorSlider slider;
    slider.resize(100, 20);
    slider.setValueMode(true);
    slider.setTracking(false);
    SignalLog log;
    watch(log, &slider);
    Pointer pointer(&slider);
    pointer.press({25, 5});
    pointer.move({50, 5});
    pointer.move({75, 5});
    COMPARE_LOG(log, {"sliderPressed()", "sliderMoved(0.5)", "sliderMoved(0.75)"});
    QCOMPARE(slider.getValue(), 0.75F);
    for (auto button : {Qt::LeftButton, Qt::RightButton}) { // a release of any button tells
        pointer.release({75, 5}, button);
        COMPARE_LOG(log, {"valueChanged(0.75)", "colorChanged(hsv 0 0 0.75)", "valueChanged(\"0.750\")",
                          "sliderReleased()"});
    }
}

void TestColorSlider::pointerIgnoresOtherButtons()
{
    QLxColorSlider slider;
    slider.resize(100, 20);
    SignalLog log;
    watch(log, &slider);
    Pointer pointer(&slider);
    pointer.press({10, 5}, Qt::RightButton);
    pointer.move({20, 5});
    COMPARE_LOG(log, {});
    pointer.release({20, 5}, Qt::RightButton);
    COMPARE_LOG(log, {"sliderReleased()"}); // a release of any button
    pointer.move({30, 5});
    COMPARE_LOG(log, {});
    pointer.press({50, 5});
    pointer.press({50, 5}, Qt::MiddleButton);
    log.take();
    pointer.move({80, 5}); // left is not the only button
    COMPARE_LOG(log, {});
    QCOMPARE(slider.getValue(), 0.5F);
}

void TestColorSlider::pointerPosition_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<float>("value");
    QTest::newRow("left edge") << QSize(100, 20) << QPoint(0, 0) << 0.0F;
    QTest::newRow("left of the widget") << QSize(100, 20) << QPoint(-1, 0) << 0.0F;
    QTest::newRow("right of the widget") << QSize(100, 20) << QPoint(101, 0) << 1.0F;
    QTest::newRow("last column") << QSize(100, 20) << QPoint(99, 0) << 0.99F;
    QTest::newRow("thirds are single divisions") << QSize(3, 20) << QPoint(1, 0) << 1.0F / 3.0F;
    QTest::newRow("tall: x still counts") << QSize(16, 62) << QPoint(4, 60) << 0.25F;
    QTest::newRow("no width, at 0") << QSize(0, 20) << QPoint(0, 0) << 0.0F;
    QTest::newRow("no width, right of 0") << QSize(0, 20) << QPoint(3, 0) << 1.0F;
    QTest::newRow("no width, left of 0") << QSize(0, 20) << QPoint(-3, 0) << 0.0F;
}

void TestColorSlider::pointerPosition()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, at);
    QWidget window;
    QLxColorSlider slider(Qt::Vertical, &window);
    slider.resize(size);
    slider.setValue(-1.0F);
    Pointer(&slider).press(at);
    QTEST(slider.getValue(), "value");
}

void TestColorSlider::disabledByParameters()
{
    QLxColorSlider slider;
    SignalLog log;
    watch(log, &slider);
    slider.setPhotometricParameters(true);
    QVERIFY(!slider.isEnabled());
    slider.setUseSpectrum(true);
    slider.setPhotometricParameters(false);
    QVERIFY(!slider.isEnabled());
    slider.setUseSpectrum(false);
    QVERIFY(slider.isEnabled());
    QVERIFY(!slider.signalsBlocked());
    COMPARE_LOG(log, {});
    slider.blockSignals(true); // a host's own blocking stays
    slider.setUseSpectrum(true);
    QVERIFY(slider.signalsBlocked());
}

void TestColorSlider::deletedInsideAnySignal_data()
{
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<int>("nth");
    for (bool tracking : {true, false}) {
        for (int i = 0; i < (tracking ? 14 : 11); ++i)
            QTest::addRow("emission %d, tracking %s", i, tracking ? "on" : "off") << tracking << i;
    }
}

void TestColorSlider::deletedInsideAnySignal()
{
    QFETCH(bool, tracking);
    QFETCH(int, nth);
    QPointer<QLxColorSlider> slider = new QLxColorSlider;
    slider->resize(100, 20);
    slider->setTracking(tracking);
    int emissions = 0;
    QObject context;
    const auto count = [&] {
        if (emissions++ == nth)
            delete slider.data();
    };
    using S = QLxColorSlider;
    QObject::connect(slider, &S::minColorChanged, &context, count);
    QObject::connect(slider, &S::maxColorChanged, &context, count);
    QObject::connect(slider, QOverload<float>::of(&S::valueChanged), &context, count);
    QObject::connect(slider, &S::colorChanged, &context, count);
    QObject::connect(slider, QOverload<QString>::of(&S::valueChanged), &context, count);
    QObject::connect(slider, &S::sliderPressed, &context, count);
    QObject::connect(slider, &S::sliderMoved, &context, count);
    QObject::connect(slider, &S::sliderReleased, &context, count);

    slider->setMinColor(QLxColor{1, 1, 1});
    if (slider)
        slider->setMaxColor(QLxColor{1, 1, 1});
    Pointer pointer(slider);
    pointer.press({10, 5});
    pointer.move({20, 5});
    pointer.release({20, 5});
    if (slider)
        slider->setValue(0.9F);
    QVERIFY(!slider);
    QCOMPARE(emissions, nth + 1);
}

void TestColorSlider::changedInsideItsSignal()
{
    QLxColorSlider slider;
    slider.setValueMode(true);
    SignalLog log;
    watch(log, &slider);
    QObject::connect(&slider, QOverload<float>::of(&QLxColorSlider::valueChanged), log.context(),
                     [&](float value) {
                         if (value == 0.25F)
                             slider.setValue(0.75F);
                     });
    slider.setValue(0.25F);
    // The inner change is reported whole, the outer one goes on with what is true by then.
    COMPARE_LOG(log, {"valueChanged(0.25)", "valueChanged(0.75)", "colorChanged(hsv 0 0 0.75)",
                      "valueChanged(\"0.750\")", "colorChanged(hsv 0 0 0.75)", "valueChanged(\"0.750\")"});
    QCOMPARE(slider.getValue(), 0.75F);
}

void TestColorSlider::badNumbers()
{
    QLxColorSlider slider;
    SignalLog log;
    watch(log, &slider);
    slider.setValue(Nan);
    COMPARE_LOG(log, {"valueChanged(nan)", "colorChanged(hsv nan 1 1)", "valueChanged(\"nan\")"});
    slider.setValue(std::numeric_limits<float>::infinity());
    COMPARE_LOG(log, {"valueChanged(inf)", "colorChanged(hsv inf 1 1)", "valueChanged(\"inf\")"});
}

QLX_TEST_MAIN(TestColorSlider)
#include "tst_colorslider.moc"
