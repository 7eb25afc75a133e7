// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The field's modes and its pointer; tst_colorplane looks at its picture.
#include "FieldOracle.h"
#include "Pointer.h"
#include "TestCase.h"

class TestColorFieldModes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void modeSlotsNotify_data() { modeRows(); }
    void modeSlotsNotify();
    void setModeNotifies_data();
    void setModeNotifies();
    void pointerPicks_data() { modeRows(); }
    void pointerPicks();
    void pointerKeepsTheColorsOwnRgbChannel();
    void pointerIgnoresOtherButtons();
};

void TestColorFieldModes::modeSlotsNotify()
{
    QFETCH(int, mode);
    const QLxColor color{210, 0.6F, 0.7F};
    Field field;
    setUp(field, mode == 0 ? 1 : 0, color);
    const auto before = field.getMode();
    SignalLog log;
    watch(log, &field);
    int during = -1;
    QObject::connect(&field, &Field::constantChannelChanged, log.context(),
                     [&] { during = field.getMode(); });
    switchTo(field, mode, false);
    COMPARE_LOG(log, {});
    switchTo(field, mode, true);
    COMPARE_LOG(log, {LogLine(QStringLiteral("constant(%1)").arg(asText(channelOf(color, mode))))});
    QCOMPARE(int(field.getMode()), mode);
    QCOMPARE(during, mode == 0 || mode == 2 ? mode : int(before)); // hue and value switch first
    QCOMPARE(asText(field.getConstantChannel()), asText(channelOf(color, mode)));
    QCOMPARE(asText(field.getColor()), asText(color));
    switchTo(field, mode, true);
    COMPARE_LOG(log, {});
}

void TestColorFieldModes::setModeNotifies_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("announced"); // the channel, or -1
    QTest::addColumn<int>("constant");  // the channel
    for (int before = 0; before < 9; ++before) {
        for (int mode = -1; mode < 11; ++mode) {
            const int meant = mode < 0 || mode > 8 ? 0 : mode;
            const int after = meant == 7 ? 6 : meant; // a* ends in L*
            const bool same = before == after;
            QTest::addRow("%d from %s", mode, Channels[before])
                << before << mode << after << (same ? -1 : after) << (same ? meant : after);
        }
    }
}

void TestColorFieldModes::setModeNotifies()
{
    QFETCH(int, before);
    QFETCH(int, mode);
    QFETCH(int, announced);
    QFETCH(int, constant);
    const QLxColor color{210, 0.6F, 0.7F};
    Field field;
    setUp(field, before, color);
    SignalLog log;
    watch(log, &field);
    int during = before;
    QObject::connect(&field, &Field::constantChannelChanged, log.context(),
                     [&] { during = field.getMode(); });
    field.setMode(static_cast<Field::Mode>(mode));
    QTEST(int(field.getMode()), "after");
    QCOMPARE(during, before); // every mode is stored after the signal
    QCOMPARE(asText(field.getConstantChannel()), asText(channelOf(color, constant)));
    if (announced < 0)
        COMPARE_LOG(log, {});
    else
        COMPARE_LOG(log, {LogLine(QStringLiteral("constant(%1)").arg(asText(channelOf(color, announced))))});
    QCOMPARE(asText(field.getColor()), asText(color));
}

void TestColorFieldModes::pointerPicks()
{
    QFETCH(int, mode);
    const QLxColor start{210, 0.6F, 0.7F};
    Field field;
    field.resize(200, 100);
    setUp(field, mode, start);
    const float kept = channelOf(start, mode);
    using Reference::F;
    const auto picked = [&](float u, float v) -> QLxColor {
        const float a = (F(u) - 0.5F) * 256.0F;
        const float hue = F(u) * 359.99F;
        switch (mode) {
        case 0:
            return {kept, u, v};
        case 1:
            return {hue, kept, v};
        case 2:
            return {hue, v, kept};
        case 3:
            return Reference::rgbToHsv({kept, u, v});
        case 4:
            return Reference::rgbToHsv({u, kept, v});
        case 5:
            return Reference::rgbToHsv({u, v, kept});
        case 6:
            return Reference::labToHsv({kept, a, (F(v) - 0.5F) * 256.0F});
        case 7:
            return Reference::labToHsv({F(v) * 100.0F, kept, a});
        default:
            return Reference::labToHsv({F(v) * 100.0F, a, kept});
        }
    };
    SignalLog log;
    watch(log, &field);
    Pointer pointer(&field);
    pointer.press({50, 25});
    QCOMPARE(asText(field.getColor()), asText(picked(0.25F, 0.75F)));
    const QString order = mode < 6
                              ? QStringLiteral("color hue saturation value red green blue lstar astar bstar")
                              : QStringLiteral("hue saturation value red green blue lstar astar bstar color");
    QCOMPARE(log.take().join(QLatin1Char('\n')), expectedLog(order, field.getColor()));

    if (mode < 3) { // where the constant channel stays the same to the last bit
        pointer.move({-5, 1000});
        QCOMPARE(asText(field.getColor()), asText(picked(0, 0)));
        pointer.move({1000, -5});
        QCOMPARE(asText(field.getColor()), asText(picked(1, 1)));
    }
}

void TestColorFieldModes::pointerKeepsTheColorsOwnRgbChannel()
{
    Field field;
    field.resize(100, 100);
    setUp(field, Field::RedMode, {0, 0, 0.5F});
    field.setRed(0.5009F); // too near for the constant channel to follow
    QCOMPARE(field.getConstantChannel(), 0.5F);
    Pointer(&field).press({25, 75});
    QCOMPARE(field.getRed(), 0.5009F);
}

void TestColorFieldModes::pointerIgnoresOtherButtons()
{
    Field field;
    field.resize(100, 100);
    SignalLog log;
    watch(log, &field);
    Pointer pointer(&field);
    pointer.move({20, 20}); // mouse tracking is on
    pointer.press({30, 30}, Qt::RightButton);
    pointer.move({40, 40});
    pointer.release({40, 40}, Qt::RightButton);
    COMPARE_LOG(log, {});
    pointer.press({50, 50});
    log.take();
    pointer.press({50, 50}, Qt::MiddleButton);
    pointer.move({60, 60}); // left is not the only button
    pointer.release({60, 60}, Qt::MiddleButton);
    COMPARE_LOG(log, {});
}

QLX_TEST_MAIN(TestColorFieldModes)
#include "tst_colorfieldmodes.moc"
