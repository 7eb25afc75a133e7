// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "FakeDialog.h"
#include "Pointer.h"
#include "QLxColorButton.h"
#include "QLxColorManipulator.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QHBoxLayout>
#include <QMimeData>

#include <limits>

namespace {

void watch(SignalLog &log, QLxColorManipulator *manipulator)
{
    using M = QLxColorManipulator;
    log.watch(manipulator, &M::buttonPressed, "buttonPressed");
    log.watch(manipulator, &M::sliderPressed, "sliderPressed");
    log.watch(manipulator, &M::sliderReleased, "sliderReleased");
    log.watch(manipulator, &M::sliderColorChanged, "sliderColorChanged");
    log.watch(manipulator, QOverload<>::of(&M::colorChanged), "colorChanged");
    log.watch(manipulator, QOverload<QLxColor>::of(&M::colorChanged), "colorChanged");
    log.watch(manipulator, QOverload<int, int, int>::of(&M::colorChanged), "colorChanged int");
    log.watch(manipulator, QOverload<float, float, float>::of(&M::colorChanged), "colorChanged float");
    log.watch(manipulator, QOverload<>::of(&M::dialogColorChanged), "dialogColorChanged");
    log.watch(manipulator, QOverload<QLxColor>::of(&M::dialogColorChanged), "dialogColorChanged");
    log.watch(manipulator, QOverload<int, int, int>::of(&M::dialogColorChanged), "dialogColorChanged int");
    log.watch(manipulator, QOverload<float, float, float>::of(&M::dialogColorChanged),
              "dialogColorChanged float");
    log.watch(manipulator, &M::finalColorSet, "finalColorSet");
    log.watch(manipulator, &M::cancelled, "cancelled");
}

struct Parts
{
    explicit Parts(QLxColorManipulator *manipulator)
        : slider(manipulator->findChild<QLxColorSlider *>())
        , button(manipulator->findChild<QLxColorButton *>())
    {
    }
    QLxColorSlider *slider;
    QLxColorButton *button;
};

} // namespace

class TestColorManipulator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsDocumented();
    void layout();
    void sliderDrag();
    void sliderScalesTheColorOfTheButton();
    void editingInTheDialog();
    void acceptAndCancel();
    void dropOnTheButton();
    void outOfGamutAndNan();
    void ownBlockingStays();
    void sliderComesBack_data();
    void sliderComesBack();
    void deletedInsideAnySignal_data();
    void deletedInsideAnySignal();
};

void TestColorManipulator::startsAsDocumented()
{
    QLxColorManipulator manipulator(nullptr, "mixer");
    QCOMPARE(manipulator.objectName(), QStringLiteral("mixer"));
    QCOMPARE(QLxColorManipulator().objectName(), QString());
    QCOMPARE(manipulator.sizeHint(), QSize(130, 16));
    const Parts parts(&manipulator);
    QCOMPARE(parts.slider->getMode(), QLxColorSlider::Value);
    QCOMPARE(parts.slider->getValue(), 0.5F);
    QVERIFY(parts.slider->getMinColor() == (QLxColor{0, 0, 0}));
    QVERIFY(parts.slider->getMaxColor() == (QLxColor{0, 0, 1}));
    QCOMPARE(parts.slider->minimumHeight(), 16);
    QCOMPARE(parts.slider->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(parts.button->focusPolicy(), Qt::StrongFocus);
    QVERIFY(parts.button->getColor() == (QLxColor{0, 0, 0.8F}));
    manipulator.setSliderFocusPolicy(Qt::NoFocus);
    QCOMPARE(parts.slider->focusPolicy(), Qt::NoFocus);
    QCOMPARE(parts.button->focusPolicy(), Qt::StrongFocus);
}

void TestColorManipulator::layout()
{
    QLxColorManipulator manipulator;
    const auto *const box = qobject_cast<QHBoxLayout *>(manipulator.layout());
    QVERIFY(box);
    QCOMPARE(box->contentsMargins(), QMargins());
    QCOMPARE(box->spacing(), 6);
    manipulator.resize(200, 16);
    manipulator.show();
    const Parts parts(&manipulator);
    QCOMPARE(parts.slider->geometry(), QRect(0, 0, 200 - 6 - 62, 16));
    QCOMPARE(parts.button->geometry(), QRect(200 - 62, 0, 62, 16));
    manipulator.resize(100, 100); // a form's first geometry
    QCOMPARE(parts.button->size(), QSize(62, 16));
    QCOMPARE(parts.slider->height(), 100);
}

void TestColorManipulator::sliderDrag()
{
    QLxColorManipulator manipulator;
    SignalLog log;
    watch(log, &manipulator);
    const Parts parts(&manipulator);
    parts.slider->resize(100, 16);
    Pointer pointer(parts.slider);
    const QString grey = asText(Reference::srgbToLinear(0.75F));
    const auto threeTimes = [](const QString &name, const QString &x) {
        return LogLine(QStringLiteral("%1(%2, %2, %2)").arg(name, x));
    };
    const LogLine asHsv = QStringLiteral("colorChanged(hsv 0 0 %1)").arg(grey);
    pointer.press({75, 3});
    COMPARE_LOG(log,
                {"sliderPressed()", "colorChanged()", asHsv,
                 threeTimes(QStringLiteral("colorChanged float"), grey), "colorChanged int(133, 133, 133)",
                 threeTimes(QStringLiteral("sliderColorChanged"), grey)});
    QCOMPARE(asText(parts.button->getColor()), QStringLiteral("hsv 0 0 ") + grey);
    pointer.move({50, 3});
    const QString half = QStringLiteral("0.214041144");
    COMPARE_LOG(log, {"colorChanged()", LogLine(QStringLiteral("colorChanged(hsv 0 0 %1)").arg(half)),
                      threeTimes(QStringLiteral("colorChanged float"), half), "colorChanged int(54, 54, 54)",
                      threeTimes(QStringLiteral("sliderColorChanged"), half)});
    pointer.release({50, 3});
    COMPARE_LOG(log, {"sliderReleased()", LogLine(QStringLiteral("finalColorSet(hsv 0 0 %1)").arg(half))});
    QVERIFY(parts.button->styleSheet().contains(QStringLiteral("background: rgb(127, 127, 127)")));
}

void TestColorManipulator::sliderScalesTheColorOfTheButton()
{
    QLxColorManipulator manipulator;
    const Parts parts(&manipulator);
    manipulator.finalColorChanged({210, 0.6F, 0.5F});
    const QLxColor encoded = Reference::eachChannel({210, 0.6F, 0.5F}, Reference::linearToSrgb);
    QCOMPARE(parts.slider->getValue(), encoded.value);
    QVERIFY(parts.slider->getMaxColor() == (QLxColor{encoded.hue, encoded.saturation, 1}));
    parts.slider->setValue(0.3F);
    const QLxColor expected = Reference::eachChannel(parts.slider->getColor(), Reference::srgbToLinear);
    QCOMPARE(asText(parts.button->getColor()), asText(expected));
    QVERIFY(std::abs(expected.hue - 210.0F) < 10.0F);
}

void TestColorManipulator::editingInTheDialog()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorManipulator manipulator;
    const Parts parts(&manipulator);
    watch(log, &manipulator);
    Pointer pointer(parts.button);
    pointer.press({3, 3});
    pointer.release({3, 3});
    const QStringList clicked = log.take();
    QCOMPARE(clicked.first(), QStringLiteral("buttonPressed()"));
    dialogs.current()->edit({120, 0.5F, 1});
    COMPARE_LOG(log, {"dialogColorChanged()", "dialogColorChanged(hsv 120 0.5 1)",
                      "dialogColorChanged float(0.5, 1, 0.5)", "dialogColorChanged int(127, 255, 127)",
                      "colorChanged()", "colorChanged(hsv 120 0.5 1)", "colorChanged float(0.5, 1, 0.5)",
                      "colorChanged int(127, 255, 127)"});
    QCOMPARE(parts.slider->getValue(), 0.5F); // untouched
    QVERIFY(parts.button->getColor() == (QLxColor{0, 0, 0.8F}));
}

void TestColorManipulator::acceptAndCancel()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorManipulator manipulator;
    const Parts parts(&manipulator);
    watch(log, &manipulator);
    parts.button->click();
    dialogs.current()->edit({60, 1, 0.5F});
    log.take();
    dialogs.current()->accept();
    COMPARE_LOG(log, {"dialog: hidden", "dialog: flag true", "colorChanged()", "colorChanged(hsv 60 1 0.5)",
                      "colorChanged float(0.5, 0.5, 0)", "colorChanged int(127, 127, 0)",
                      "finalColorSet(hsv 60 1 0.5)"});
    QCOMPARE(parts.slider->getValue(), Reference::linearToSrgb(0.5F));
    const QLxColor encoded = Reference::eachChannel({60, 1, 0.5F}, Reference::linearToSrgb);
    QVERIFY(parts.slider->getMaxColor() == (QLxColor{encoded.hue, encoded.saturation, 1}));

    parts.button->click();
    dialogs.current()->edit({0, 1, 1});
    log.take();
    dialogs.current()->reject();
    COMPARE_LOG(log, {"dialog: hidden", "dialog: flag true", "colorChanged()", "colorChanged(hsv 60 1 0.5)",
                      "colorChanged float(0.5, 0.5, 0)", "colorChanged int(127, 127, 0)",
                      "finalColorSet(hsv 60 1 0.5)", "cancelled()"});
}

void TestColorManipulator::dropOnTheButton()
{
    QLxColorManipulator manipulator;
    const Parts parts(&manipulator);
    SignalLog log;
    watch(log, &manipulator);
    QMimeData data;
    data.setColorData(QColor::fromRgbF(0.0, 0.0, 1.0));
    QDragEnterEvent enter({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(parts.button, &enter);
    QDropEvent drop({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(parts.button, &drop);
    COMPARE_LOG(log, {"colorChanged()", "colorChanged(hsv 240 1 1)", "colorChanged float(0, 0, 1)",
                      "colorChanged int(0, 0, 255)", "finalColorSet(hsv 240 1 1)"});
    QVERIFY(parts.slider->getMaxColor() == (QLxColor{240, 1, 1}));
}

void TestColorManipulator::outOfGamutAndNan()
{
    QLxColorManipulator manipulator;
    SignalLog log;
    watch(log, &manipulator);
    manipulator.temporaryColorChanged({120, 2, 3}); // unclamped as floats, clamped as integers
    COMPARE_LOG(log, {"dialogColorChanged()", "dialogColorChanged(hsv 120 2 3)",
                      "dialogColorChanged float(-3, 3, -3)", "dialogColorChanged int(0, 255, 0)",
                      "colorChanged()", "colorChanged(hsv 120 2 3)", "colorChanged float(-3, 3, -3)",
                      "colorChanged int(0, 255, 0)"});
    const float nan = std::numeric_limits<float>::quiet_NaN();
    manipulator.finalColorChanged({nan, 1, 1});
    COMPARE_LOG(log, {"colorChanged()", "colorChanged(hsv nan 1 1)", "colorChanged float(1, nan, 0)",
                      "colorChanged int(255, 0, 0)", "finalColorSet(hsv nan 1 1)"});
}

void TestColorManipulator::ownBlockingStays()
{
    QLxColorManipulator manipulator;
    const Parts parts(&manipulator);
    parts.slider->blockSignals(true);
    parts.button->blockSignals(true);
    manipulator.finalColorChanged({1, 1, 1});
    manipulator.sliderValueChanged(0.5F);
    QVERIFY(parts.slider->signalsBlocked());
    QVERIFY(parts.button->signalsBlocked());
}

void TestColorManipulator::sliderComesBack_data()
{
    QTest::addColumn<float>("position");
    for (int i = 0; i <= 20; ++i)
        QTest::addRow("%d %%", 5 * i) << static_cast<float>(i) / 20.0F;
}

void TestColorManipulator::sliderComesBack()
{
    QFETCH(float, position);
    QLxColorManipulator manipulator;
    const Parts parts(&manipulator);
    parts.slider->setValue(position, true, true);
    manipulator.finalColorChanged(parts.button->getColor());
    QVERIFY(std::abs(parts.slider->getValue() - position) < 1e-6F);
}

void TestColorManipulator::deletedInsideAnySignal_data()
{
    QTest::addColumn<int>("act");
    QTest::addColumn<int>("nth");
    const struct
    {
        const char *name;
        int emissions;
    } acts[] = {{"press", 6}, {"move", 5},   {"release", 2}, {"dialog", 8},
                {"final", 5}, {"cancel", 1}, {"click", 1}};
    for (int act = 0; act < 7; ++act) {
        for (int nth = 0; nth < acts[act].emissions; ++nth)
            QTest::addRow("%s, emission %d", acts[act].name, nth) << act << nth;
    }
}

void TestColorManipulator::deletedInsideAnySignal()
{
    QFETCH(int, act);
    QFETCH(int, nth);
    const QPointer<QLxColorManipulator> manipulator = new QLxColorManipulator;
    const Parts parts(manipulator);
    parts.slider->resize(100, 16);
    Pointer onSlider(parts.slider);
    if (act == 1 || act == 2)
        onSlider.press({50, 5});

    int emissions = 0;
    QObject context;
    const auto count = [&] {
        if (emissions++ == nth)
            delete manipulator.data();
    };
    using M = QLxColorManipulator;
    QObject::connect(manipulator, &M::buttonPressed, &context, count);
    QObject::connect(manipulator, &M::sliderPressed, &context, count);
    QObject::connect(manipulator, &M::sliderReleased, &context, count);
    QObject::connect(manipulator, &M::sliderColorChanged, &context, count);
    QObject::connect(manipulator, QOverload<>::of(&M::colorChanged), &context, count);
    QObject::connect(manipulator, QOverload<QLxColor>::of(&M::colorChanged), &context, count);
    QObject::connect(manipulator, QOverload<int, int, int>::of(&M::colorChanged), &context, count);
    QObject::connect(manipulator, QOverload<float, float, float>::of(&M::colorChanged), &context, count);
    QObject::connect(manipulator, QOverload<>::of(&M::dialogColorChanged), &context, count);
    QObject::connect(manipulator, QOverload<QLxColor>::of(&M::dialogColorChanged), &context, count);
    QObject::connect(manipulator, QOverload<int, int, int>::of(&M::dialogColorChanged), &context, count);
    QObject::connect(manipulator, QOverload<float, float, float>::of(&M::dialogColorChanged), &context,
                     count);
    QObject::connect(manipulator, &M::finalColorSet, &context, count);
    QObject::connect(manipulator, &M::cancelled, &context, count);

    switch (act) {
    case 0:
        onSlider.press({25, 5});
        break;
    case 1:
        onSlider.move({25, 5});
        break;
    case 2:
        onSlider.release({25, 5});
        break;
    case 3:
        manipulator->temporaryColorChanged({1, 1, 1});
        break;
    case 4:
        manipulator->finalColorChanged({1, 1, 1});
        break;
    case 5:
        manipulator->cancelledPressed();
        break;
    default:
        QTest::keyClick(parts.button, Qt::Key_Space);
    }
    QVERIFY(!manipulator);
    QCOMPARE(emissions, nth + 1);
}

QLX_TEST_MAIN(TestColorManipulator)
#include "tst_colormanipulator.moc"
