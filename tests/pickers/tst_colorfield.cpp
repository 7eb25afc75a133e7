// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The field's colour and its notifications.
#include "FieldOracle.h"
#include "PaintCounter.h"
#include "Pointer.h"
#include "TestCase.h"

#include <limits>

namespace {

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();

const char Hsv[] = " hue saturation value";
const char Rgb[] = " red green blue";
const char Lab[] = " lstar astar bstar";

struct Setter
{
    const char *name;
    void (*call)(Field &);
    QByteArray order;
    QLxColor (*result)(const QLxColor &before);
};

/// Every setter, with arguments that no starting colour has.
const QVector<Setter> &setters()
{
    using C = QLxColor;
    static const QVector<Setter> all{
        {"setHue", [](Field &f) { f.setHue(123); }, QByteArray("color hue") + Rgb + Lab,
         [](const C &c) { return replaced(c, 0, 123); }},
        {"setSaturation", [](Field &f) { f.setSaturation(0.35F); },
         QByteArray("color saturation") + Rgb + Lab, [](const C &c) { return replaced(c, 1, 0.35F); }},
        {"setValue", [](Field &f) { f.setValue(0.45F); }, QByteArray("color value") + Rgb + Lab,
         [](const C &c) { return replaced(c, 2, 0.45F); }},
        {"setHSV", [](Field &f) { f.setHSV(77, 0.15F, 0.25F); }, QByteArray("color") + Hsv + Rgb + Lab,
         [](const C &) {
             return C{77, 0.15F, 0.25F};
         }},
        {"setRGB", [](Field &f) { f.setRGB(0.2F, 0.9F, 0.4F); }, QByteArray("color") + Hsv + Rgb + Lab,
         [](const C &) {
             return Reference::rgbToHsv({0.2F, 0.9F, 0.4F});
         }},
        {"setRed", [](Field &f) { f.setRed(0.33F); }, QByteArray("color red") + Hsv + Lab,
         [](const C &c) { return replaced(c, 3, 0.33F); }},
        {"setGreen", [](Field &f) { f.setGreen(0.33F); }, QByteArray("color green") + Hsv + Lab,
         [](const C &c) { return replaced(c, 4, 0.33F); }},
        {"setBlue", [](Field &f) { f.setBlue(0.33F); }, QByteArray("color blue") + Hsv + Lab,
         [](const C &c) { return replaced(c, 5, 0.33F); }},
        {"setLab", [](Field &f) { f.setLab(60, 20, -30); },
         (QByteArray(Hsv) + Rgb + Lab + " color").trimmed(),
         [](const C &) {
             return Reference::labToHsv({60, 20, -30});
         }},
        {"setLstar", [](Field &f) { f.setLstar(44); }, QByteArray("color lstar") + Hsv + Rgb,
         [](const C &c) { return replaced(c, 6, 44); }},
        // These two compare their own channel, but what they set is L*.
        {"setAstar sets L*", [](Field &f) { f.setAstar(40); }, QByteArray("color astar") + Hsv + Rgb,
         [](const C &c) { return replaced(c, 6, 40); }},
        {"setBstar sets L*", [](Field &f) { f.setBstar(40); }, QByteArray("color bstar") + Hsv + Rgb,
         [](const C &c) { return replaced(c, 6, 40); }},
        {"setColor goes by way of L*a*b*",
         [](Field &f) {
             f.setColor({222, 0.55F, 0.65F});
         },
         (QByteArray(Hsv) + " color" + Rgb + Lab).trimmed(),
         [](const C &) {
             return Reference::labToHsv(Reference::hsvToLab({222, 0.55F, 0.65F}));
         }},
    };
    return all;
}

} // namespace

class TestColorField : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsDocumented();
    void getters();
    void settersNotifyInOrder_data();
    void settersNotifyInOrder();
    void heldValueDoesNothing();
    void repaints();
    void constantChannelFollows_data() { modeRows(); }
    void constantChannelFollows();
    void setConstantChannel_data() { modeRows(); }
    void setConstantChannel();
    void notANumber();
    void changedInsideItsSignals();
    void deletedInsideAnySignal_data();
    void deletedInsideAnySignal();
};

void TestColorField::startsAsDocumented()
{
    QWidget parent;
    Field field(&parent, "plane");
    QCOMPARE(field.objectName(), QStringLiteral("plane"));
    QCOMPARE(field.parentWidget(), &parent);
    QCOMPARE(Field().objectName(), QString());
    QCOMPARE(asText(field.getColor()), QStringLiteral("hsv 0 0 0.5"));
    QCOMPARE(field.getMode(), Field::HueMode);
    QCOMPARE(field.getConstantChannel(), 0.0F);
    QVERIFY(field.hasMouseTracking());
    QCOMPARE(field.sizeHint(), QSize(256, 256));

    const Field blue(0.0F, 0.0F, 1.0F, nullptr, "blue");
    QCOMPARE(blue.objectName(), QStringLiteral("blue"));
    QCOMPARE(asText(blue.getColor()), QStringLiteral("hsv 240 1 1"));
    QCOMPARE(blue.getConstantChannel(), 240.0F);
    QVERIFY(blue.hasMouseTracking());
}

void TestColorField::getters()
{
    Field field;
    const QLxColor color{200, 0.6F, 0.7F};
    field.setHSV(color.hue, color.saturation, color.value);
    const float single[] = {field.getHue(),   field.getSaturation(), field.getValue(),
                            field.getRed(),   field.getGreen(),      field.getBlue(),
                            field.getLstar(), field.getAstar(),      field.getBstar()};
    float triple[9];
    field.getHSV(triple[0], triple[1], triple[2]);
    field.getRGB(triple[3], triple[4], triple[5]);
    field.getLab(triple[6], triple[7], triple[8]);
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(asText(single[i]), asText(channelOf(color, i)));
        QCOMPARE(asText(triple[i]), asText(channelOf(color, i)));
    }
}

void TestColorField::settersNotifyInOrder_data()
{
    QTest::addColumn<int>("setter");
    QTest::addColumn<QVector<float>>("start");
    const QPair<const char *, QLxColor> starts[] = {
        {"mid grey", {0, 0, 0.5F}},
        {"black", {0, 0, 0}},
        {"white", {0, 0, 1}},
        {"a colour", {210, 0.6F, 0.7F}},
        {"out of gamut", {30, 1.5F, 2}},
        {"hue outside", {-40, 0.5F, 0.6F}},
        {"nearly 360", {359.999F, 1, 1}},
    };
    for (int i = 0; i < setters().size(); ++i) {
        for (const auto &[name, c] : starts)
            QTest::addRow("%s from %s", setters().at(i).name, name)
                << i << QVector<float>{c.hue, c.saturation, c.value};
    }
}

void TestColorField::settersNotifyInOrder()
{
    QFETCH(int, setter);
    QFETCH(QVector<float>, start);
    Field field;
    field.setHSV(start[0], start[1], start[2]);
    SignalLog log;
    watch(log, &field);
    const Setter &s = setters().at(setter);
    s.call(field);
    const QLxColor result = s.result({start[0], start[1], start[2]});
    QCOMPARE(log.take().join(QLatin1Char('\n')), expectedLog(QString::fromLatin1(s.order), result));
    QCOMPARE(asText(field.getColor()), asText(result));
    QCOMPARE(asText(field.getConstantChannel()), asText(result.hue)); // in HueMode
}

void TestColorField::heldValueDoesNothing()
{
    Field field;
    field.setHSV(210, 0.6F, 0.7F);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    QCoreApplication::processEvents();
    SignalLog log;
    watch(log, &field);
    PaintCounter paints(&field);
    field.setHue(field.getHue());
    field.setSaturation(field.getSaturation());
    field.setValue(field.getValue());
    field.setHSV(field.getHue(), field.getSaturation(), field.getValue());
    field.setRed(field.getRed());
    field.setGreen(field.getGreen());
    field.setBlue(field.getBlue());
    field.setRGB(field.getRed(), field.getGreen(), field.getBlue());
    field.setLstar(field.getLstar());
    field.setAstar(field.getAstar());
    field.setBstar(field.getBstar());
    field.setLab(field.getLstar(), field.getAstar(), field.getBstar());
    field.setColor(field.getColor());
    field.setConstantChannel(field.getConstantChannel() + 0.0009F);
    field.updateConstantChannel(field.getColor());
    field.setHueMode(true);
    field.setRedMode(false);
    COMPARE_LOG(log, {});
    QCOMPARE(paints.take(), 0);
    QCOMPARE(paints.takeScheduled(), 0);
    QCOMPARE(field.getConstantChannel(), 210.0F);
}

void TestColorField::repaints()
{
    Field field;
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    QCoreApplication::processEvents();
    PaintCounter paints(&field);
    field.setSaturation(0.5F);
    QCOMPARE(paints.take(), 1);
    field.setHue(120); // the constant channel follows with a paint of its own
    QCOMPARE(paints.take(), 2);
    field.setConstantChannel(200); // and the colour follows the constant channel with one
    QCOMPARE(paints.take(), 2);
    QCOMPARE(paints.takeScheduled(), 0);
    field.setBlueMode(true);
    QCOMPARE(paints.take(), 0);
    QCOMPARE(paints.takeScheduled(), 1);
    field.setMode(Field::BlueMode); // in force already
    QCOMPARE(paints.takeScheduled(), 1);
    field.setMode(Field::BstarMode);
    QCOMPARE(paints.takeScheduled(), 1);
    Pointer pointer(&field);
    field.setMode(Field::HueMode);
    paints.takeScheduled();
    pointer.press({10, 10});
    QCOMPARE(paints.take(), 2); // the setter's and the press's
    pointer.move({10, 10});
    QCOMPARE(paints.take(), 1); // the move's, although the colour is the same
    pointer.release({10, 10});
    QCOMPARE(paints.take(), 0);
}

void TestColorField::constantChannelFollows()
{
    QFETCH(int, mode);
    for (const Setter &setter : setters()) {
        Field field;
        setUp(field, mode, {210, 0.6F, 0.7F});
        SignalLog log;
        watch(log, &field);
        setter.call(field);
        const float expected = channelOf(field.getColor(), mode);
        QVERIFY2(std::fabs(field.getConstantChannel() - expected) <= 0.001F, setter.name);
        QVERIFY(!log.text().contains(QStringLiteral("constant")));
    }
}

void TestColorField::setConstantChannel()
{
    QFETCH(int, mode);
    const QLxColor start{210, 0.6F, 0.7F};
    Field field;
    setUp(field, mode, start);
    const float x = mode == 0 ? 100.0F : mode < 6 ? 0.25F : 30.0F;
    SignalLog log;
    watch(log, &field);
    field.setConstantChannel(x);
    // a* and b* land on L*; the constant channel then follows what that makes of them.
    const QLxColor result = replaced(start, qMin(mode, 6), x);
    QCOMPARE(asText(field.getColor()), asText(result));
    const float follows = channelOf(result, mode);
    QCOMPARE(field.getConstantChannel(), std::fabs(follows - x) > 0.001F ? follows : x);
    const char *const others = mode < 3   ? " red green blue lstar astar bstar"
                               : mode < 6 ? " hue saturation value lstar astar bstar"
                                          : " hue saturation value red green blue";
    const QString order =
        QStringLiteral("color %1").arg(QLatin1String(Channels[mode])) + QLatin1String(others);
    QCOMPARE(log.take().join(QLatin1Char('\n')), expectedLog(order, result));
    field.setConstantChannel(field.getConstantChannel() - 0.0009F);
    COMPARE_LOG(log, {});
}

void TestColorField::notANumber()
{
    for (int mode = 0; mode < 9; ++mode) {
        Field field;
        field.show();
        setUp(field, mode, {210, 0.6F, 0.7F});
        field.setConstantChannel(Nan);
        QVERIFY(std::fabs(field.getConstantChannel() - channelOf(field.getColor(), mode)) <= 0.001F);
        QVERIFY(!std::isnan(field.getConstantChannel()));
        field.setHSV(Nan, Nan, Nan); // ends, and paints
        QCOMPARE(field.getConstantChannel(), 0.0F);
        field.setColor({std::numeric_limits<float>::infinity(), 1, 1});
        field.setLab(1e30F, -1e30F, 1e30F);
        field.setConstantChannel(std::numeric_limits<float>::infinity());
        Pointer(&field).press({5, 5});
    }
}

void TestColorField::changedInsideItsSignals()
{
    // A receiver that puts each colour right: the rest of the outer notifications tell the colour that is
    // true.
    Field field;
    SignalLog log;
    watch(log, &field);
    QObject::connect(&field, &Field::colorChanged, log.context(), [&](QLxColor c) {
        if (c.saturation > 0.5F)
            field.setSaturation(0.5F);
    });
    field.setSaturation(0.9F);
    const QLxColor held{0, 0.5F, 0.5F};
    QCOMPARE(asText(field.getColor()), asText(held));
    QStringList lines = log.take();
    QCOMPARE(lines.takeFirst(), QStringLiteral("color(%1)").arg(asText(QLxColor{0, 0.9F, 0.5F})));
    const QString inner =
        expectedLog(QStringLiteral("color saturation red green blue lstar astar bstar"), held);
    const QString rest = expectedLog(QStringLiteral("saturation red green blue lstar astar bstar"), held);
    QCOMPARE(lines.join(QLatin1Char('\n')), inner + QLatin1Char('\n') + rest);

    // One that changes the mode while it is being changed.
    QObject::connect(&field, &Field::constantChannelChanged, log.context(), [&] {
        if (field.getMode() == Field::HueMode)
            field.setValueMode(true);
    });
    field.setRedMode(true);
    QCOMPARE(field.getMode(), Field::RedMode);
    field.setHueMode(true); // in force before the signal, so the receiver has the last word
    QCOMPARE(field.getMode(), Field::ValueMode);
}

void TestColorField::deletedInsideAnySignal_data()
{
    QTest::addColumn<int>("act");
    QTest::addColumn<int>("nth");
    for (int act = 0; act < 3 + setters().size(); ++act) {
        const char *const name = act == 0   ? "press"
                                 : act == 1 ? "mode slot"
                                 : act == 2 ? "setMode"
                                            : setters().at(act - 3).name;
        const int count = act == 0 ? 10 : act < 3 ? 1 : setters().at(act - 3).order.count(' ') + 1;
        for (int nth = 0; nth < count; ++nth)
            QTest::addRow("%s, emission %d", name, nth) << act << nth;
    }
}

void TestColorField::deletedInsideAnySignal()
{
    QFETCH(int, act);
    QFETCH(int, nth);
    const QPointer<Field> field = new Field;
    int emissions = 0;
    QObject context;
    const auto count = [&] {
        if (emissions++ == nth)
            delete field.data();
    };
    void (Field::*const changed[])(float) = {
        &Field::hueChanged,   &Field::saturationChanged,     &Field::valueChanged, &Field::redChanged,
        &Field::greenChanged, &Field::blueChanged,           &Field::lstarChanged, &Field::astarChanged,
        &Field::bstarChanged, &Field::constantChannelChanged};
    for (auto signal : changed)
        QObject::connect(field, signal, &context, count);
    QObject::connect(field, &Field::colorChanged, &context, count);
    if (act == 0)
        Pointer(field).press({20, 20});
    else if (act == 1)
        field->setRedMode(true);
    else if (act == 2)
        field->setMode(Field::AstarMode);
    else
        setters().at(act - 3).call(*field);
    QVERIFY(!field);
    QCOMPARE(emissions, nth + 1);
}

QLX_TEST_MAIN(TestColorField)
#include "tst_colorfield.moc"
