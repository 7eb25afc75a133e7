// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The conversions bit for bit against the reference, and the cases that decide ties and bad input.
#include "ColorChannel_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "TestCase.h"

#include <cstring>
#include <limits>
#include <random>

namespace {

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinity = std::numeric_limits<float>::infinity();

/// Equal to the last bit; all NaN count as one value.
bool same(float a, float b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

bool same(const Reference::Triple &a, const Reference::Triple &b)
{
    return same(a[0], b[0]) && same(a[1], b[1]) && same(a[2], b[2]);
}

Reference::Triple triple(const QLxColor &c)
{
    return {c.hue, c.saturation, c.value};
}

bool same(const QLxColor &a, const QLxColor &b)
{
    return same(triple(a), triple(b));
}

Reference::Triple rgbOf(const QLxColor &c)
{
    Reference::Triple t{};
    QLx::hsvToRgb(c, t[0], t[1], t[2]);
    return t;
}

Reference::Triple labOf(const Reference::Triple &rgb)
{
    Reference::Triple t{};
    QLx::rgbToLab(rgb[0], rgb[1], rgb[2], t[0], t[1], t[2]);
    return t;
}

QLxColor hsvOfLab(const Reference::Triple &lab)
{
    QLxColor c;
    QLx::labToHsv(lab[0], lab[1], lab[2], c.hue, c.saturation, c.value);
    return c;
}

/// Which operation, if any, differs from the reference for the colour and for its numbers read as RGB
/// and as L*a*b*.
const char *firstDifference(const QLxColor &c)
{
    const Reference::Triple t = triple(c);
    const Reference::Triple lab{c.value * 100.0F, c.hue - 180.0F, (c.saturation - 0.5F) * 256.0F};
    const Reference::Triple rgb = rgbOf(c);
    if (!same(rgb, Reference::hsvToRgb(c)))
        return "hsvToRgb";
    if (!same(QLx::rgbToHsv(t[0], t[1], t[2]), Reference::rgbToHsv(t)))
        return "rgbToHsv";
    if (!same(QLx::rgbToHsv(rgb[0], rgb[1], rgb[2]), Reference::rgbToHsv(rgb)))
        return "rgbToHsv of the colour";
    if (!same(labOf(rgb), Reference::rgbToLab(rgb)))
        return "rgbToLab";
    if (!same(labOf(t), Reference::rgbToLab(t)))
        return "rgbToLab out of gamut";
    if (!same(hsvOfLab(lab), Reference::labToHsv(lab)))
        return "labToHsv";
    if (!same(hsvOfLab(labOf(rgb)), Reference::labToHsv(Reference::rgbToLab(rgb))))
        return "labToHsv and back";
    for (float x : {t[1], t[2], rgb[0], rgb[1], rgb[2]}) {
        if (!same(QLx::linearToSrgb(x), Reference::linearToSrgb(x)))
            return "linearToSrgb";
        if (!same(QLx::srgbToLinear(x), Reference::srgbToLinear(x)))
            return "srgbToLinear";
    }
    if (!same(QLx::toSrgbColor(c), Reference::eachChannel(c, Reference::linearToSrgb)))
        return "toSrgbColor";
    if (!same(QLx::fromSrgbColor(c), Reference::eachChannel(c, Reference::srgbToLinear)))
        return "fromSrgbColor";
    if (QLx::toQColorRaw(c) != Reference::display(c, false))
        return "toQColorRaw";
    for (bool useGamma : {true, false}) {
        QLx::colorUseGamma = useGamma;
        if (QLx::toQColor(c) != Reference::display(c, useGamma))
            return "toQColor";
    }
    return nullptr;
}

} // namespace

class TestColorSpaces : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void settingsHaveTheirDefaults();
    void everyOperationEqualsTheReference_data();
    void everyOperationEqualsTheReference();
    void curvesSwitchWhereTheyShould();
    void hueEdges();
    void tiesAndGreys_data();
    void tiesAndGreys();
    void labLandmarks();
    void displayLevels_data();
    void displayLevels();
    void floatingPointColor();
    void badInput_data();
    void badInput();
    void channels_data();
    void channels();
    void equality();
};

void TestColorSpaces::settingsHaveTheirDefaults()
{
    QCOMPARE(QLx::colorUseGamma, true);
    QCOMPARE(QLx::colorGammaValue, 2.2F);
    QVERIFY(same(QLx::whitePoint[0], 0.9504559636116028F));
    QVERIFY(same(QLx::whitePoint[1], 1.0F));
    QVERIFY(same(QLx::whitePoint[2], 1.0890578031539917F));
    QCOMPARE(QLx::labChromaRange, 256.0F);
}

void TestColorSpaces::everyOperationEqualsTheReference_data()
{
    QTest::addColumn<float>("low");
    QTest::addColumn<float>("high");
    QTest::addColumn<int>("count");
    QTest::newRow("in gamut") << 0.0F << 1.0F << 100000;
    QTest::newRow("around the gamut") << -0.5F << 1.5F << 50000;
    QTest::newRow("far out") << -1e4F << 1e4F << 20000;
    QTest::newRow("overflowing") << -1e38F << 1e38F << 5000;
}

void TestColorSpaces::everyOperationEqualsTheReference()
{
    QFETCH(float, low);
    QFETCH(float, high);
    QFETCH(int, count);
    std::mt19937 random(20);
    // Not std::uniform_real_distribution, whose numbers differ between standard libraries.
    const auto between = [&random](float a, float b) {
        return a + (b - a) * (static_cast<float>(random() >> 8U) / 16777216.0F);
    };
    for (int i = 0; i < count; ++i) {
        QLxColor c{360.0F * between(low, high), between(low, high), between(low, high)};
        switch (i % 16) { // greys, blacks, whole sectors and exact primaries among them
        case 0:
            c.saturation = 0.0F;
            break;
        case 1:
            c.value = 0.0F;
            break;
        case 2:
            c.hue = 60.0F * static_cast<float>(random() % 8);
            break;
        case 3:
            c.saturation = 1.0F;
            break;
        case 4:
            c.hue = c.saturation = c.value;
            break;
        default:
            break;
        }
        const char *difference = firstDifference(c);
        QVERIFY2(!difference, qPrintable(QStringLiteral("%1 differs for hsv %2 %3 %4")
                                             .arg(QLatin1String(difference))
                                             .arg(double(c.hue), 0, 'g', 9)
                                             .arg(double(c.saturation), 0, 'g', 9)
                                             .arg(double(c.value), 0, 'g', 9)));
    }
    QLx::colorUseGamma = true;
}

void TestColorSpaces::curvesSwitchWhereTheyShould()
{
    // The last floats on each side of every threshold.
    for (float threshold : {0.0031308F, 0.04045F, 0.008856452F, 0.20689656F}) {
        float x = threshold;
        for (int i = 0; i < 4; ++i)
            x = std::nextafter(x, 0.0F);
        for (int i = 0; i < 9; ++i, x = std::nextafter(x, 1.0F)) {
            QVERIFY(same(QLx::linearToSrgb(x), Reference::linearToSrgb(x)));
            QVERIFY(same(QLx::srgbToLinear(x), Reference::srgbToLinear(x)));
            const Reference::Triple grey{x, x, x}; // Y is not quite x, but near
            QVERIFY(same(labOf(grey), Reference::rgbToLab(grey)));
            const Reference::Triple lab{116.0F * x - 16.0F, 0.0F, 0.0F};
            QVERIFY(same(hsvOfLab(lab), Reference::labToHsv(lab)));
        }
    }
    // The middle curve again, along its own argument.
    for (float y = 0.0088F; y < 0.0089F; y = std::nextafter(y, 1.0F)) {
        const Reference::Triple grey{y, y, y};
        if (!same(labOf(grey), Reference::rgbToLab(grey)))
            QCOMPARE(y, 0.0F);
    }
}

void TestColorSpaces::hueEdges()
{
    // 360 and more are held just below 360, not wrapped to 0; negative hues are 0.
    QVERIFY(same(rgbOf({360.0F, 1.0F, 1.0F}), rgbOf({5.999833106994629F * 60.0F, 1.0F, 1.0F})));
    QVERIFY(!same(rgbOf({360.0F, 1.0F, 1.0F}), rgbOf({0.0F, 1.0F, 1.0F})));
    QVERIFY(rgbOf({360.0F, 1.0F, 1.0F})[2] > 0.0F);
    QVERIFY(same(rgbOf({1e30F, 1.0F, 1.0F}), rgbOf({360.0F, 1.0F, 1.0F})));
    QVERIFY(same(rgbOf({-30.0F, 1.0F, 1.0F}), rgbOf({0.0F, 1.0F, 1.0F})));
    QVERIFY(same(rgbOf({std::nextafter(360.0F, 0.0F), 1.0F, 1.0F})[0], 1.0F));
}

void TestColorSpaces::tiesAndGreys_data()
{
    QTest::addColumn<float>("red");
    QTest::addColumn<float>("green");
    QTest::addColumn<float>("blue");
    QTest::addColumn<float>("hue");
    QTest::addColumn<float>("saturation");
    QTest::addColumn<float>("value");
    QTest::newRow("grey has hue 0") << 0.3F << 0.3F << 0.3F << 0.0F << 0.0F << 0.3F;
    QTest::newRow("black has saturation 0") << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("red wins over green") << 1.0F << 1.0F << 0.0F << 60.0F << 1.0F << 1.0F;
    QTest::newRow("red wins over blue") << 1.0F << 0.0F << 1.0F << 300.0F << 1.0F << 1.0F;
    QTest::newRow("green wins over blue") << 0.0F << 1.0F << 1.0F << 180.0F << 1.0F << 1.0F;
    QTest::newRow("blue with some red") << 0.2F << 0.0F << 1.0F << 252.0F << 1.0F << 1.0F;
    QTest::newRow("negative hue gets 360 added") << 1.0F << 0.0F << 0.5F << 330.0F << 1.0F << 1.0F;
    QTest::newRow("all negative") << -0.5F << -1.0F << -1.0F << 0.0F << -1.0F << -0.5F;
}

void TestColorSpaces::tiesAndGreys()
{
    QFETCH(float, red);
    QFETCH(float, green);
    QFETCH(float, blue);
    const QLxColor c = QLx::rgbToHsv(red, green, blue);
    QTEST(c.hue, "hue");
    QTEST(c.saturation, "saturation");
    QTEST(c.value, "value");
}

void TestColorSpaces::labLandmarks()
{
    const Reference::Triple white = labOf({1.0F, 1.0F, 1.0F});
    QVERIFY(std::abs(white[0] - 100.0F) < 1e-4F);
    QVERIFY(std::abs(white[1]) < 0.01F);
    QVERIFY(std::abs(white[2]) < 0.02F);
    QVERIFY(white[1] != 0.0F && white[2] != 0.0F);

    const QLxColor black = hsvOfLab({0.0F, 0.0F, 0.0F});
    QVERIFY(std::abs(black.value) < 1e-6F);
    QCOMPARE(black.saturation, 0.0F);

    const QLxColor outside = hsvOfLab({50.0F, -128.0F, 128.0F});
    QVERIFY(outside.saturation > 1.0F); // negative channels are carried on
}

void TestColorSpaces::displayLevels_data()
{
    QTest::addColumn<float>("grey");
    QTest::addColumn<int>("encoded");
    QTest::addColumn<int>("raw");
    QTest::newRow("black") << 0.0F << 0 << 0;
    QTest::newRow("half") << 0.5F << 187 << 127;
    QTest::newRow("just short of one") << 0.999F << 254 << 254;
    QTest::newRow("white is 254 when encoded") << 1.0F << 254 << 255;
    QTest::newRow("above one") << 1.01F << 255 << 255;
    QTest::newRow("far above one") << 1e30F << 255 << 255;
    QTest::newRow("negative") << -0.5F << 0 << 0;
}

void TestColorSpaces::displayLevels()
{
    QFETCH(float, grey);
    QFETCH(int, encoded);
    QFETCH(int, raw);
    const QLxColor c{0.0F, 0.0F, grey};
    QCOMPARE(QLx::toQColor(c), QColor(encoded, encoded, encoded));
    QCOMPARE(QLx::toQColorRaw(c), QColor(raw, raw, raw));
    QLx::colorUseGamma = false;
    QCOMPARE(QLx::toQColor(c), QColor(raw, raw, raw));
    QLx::colorUseGamma = true;
}

void TestColorSpaces::floatingPointColor()
{
    const QColor c = QLx::toQColorF({120.0F, 0.5F, 0.4F});
    QCOMPARE(c, QColor::fromRgbF(double(0.2F), double(0.4F), double(0.2F), 1.0)); // linear
    QCOMPARE(QLx::toQColorF({0.0F, 2.0F, 3.0F}), QColor::fromRgbF(1.0, 0.0, 0.0));
}

void TestColorSpaces::badInput_data()
{
    QTest::addColumn<float>("hue");
    QTest::addColumn<float>("saturation");
    QTest::addColumn<float>("value");
    QTest::addColumn<QColor>("raw");
    QTest::addColumn<QColor>("encoded");
    const QColor black(0, 0, 0);
    const QColor white(255, 255, 255);
    const QColor red(255, 0, 0);
    const QColor encodedRed(254, 0, 0);
    QTest::newRow("NaN hue") << Nan << 0.5F << 1.0F << black << black;
    QTest::newRow("NaN saturation") << 0.0F << Nan << 1.0F << black << black;
    QTest::newRow("NaN value") << 0.0F << 0.0F << Nan << black << black;
    QTest::newRow("infinite hue") << Infinity << 1.0F << 1.0F << red << encodedRed;
    QTest::newRow("minus infinite hue") << -Infinity << 1.0F << 1.0F << red << encodedRed;
    QTest::newRow("infinite saturation") << 30.0F << Infinity << 1.0F << red << encodedRed;
    QTest::newRow("infinite value") << 0.0F << 0.5F << Infinity << white << white;
    QTest::newRow("infinite times zero is NaN") << 30.0F << 1.0F << Infinity << black << black;
}

void TestColorSpaces::badInput()
{
    QFETCH(float, hue);
    QFETCH(float, saturation);
    QFETCH(float, value);
    const QLxColor color{hue, saturation, value};
    QTEST(QLx::toQColorRaw(color), "raw");
    QTEST(QLx::toQColor(color), "encoded");
    const QColor dragged = QLx::toQColorF(color);
    QVERIFY(dragged.isValid());
    QCOMPARE(dragged.rgba(), QLx::toQColorRaw(color).rgba());
    QVERIFY2(!firstDifference(color), firstDifference(color));
    QLx::colorUseGamma = true;
}

void TestColorSpaces::channels_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<float>("low");
    QTest::addColumn<float>("high");
    const char *names[] = {"hue", "saturation", "value", "red", "green", "blue", "L*", "a*", "b*"};
    const float low[] = {0, 0, 0, 0, 0, 0, 0, -128, -128};
    const float high[] = {359.99F, 1, 1, 1, 1, 1, 100, 128, 128};
    for (int i = 0; i < 9; ++i)
        QTest::newRow(names[i]) << i << low[i] << high[i];
}

void TestColorSpaces::channels()
{
    QFETCH(int, number);
    const QLx::ColorChannel *channel = QLx::colorChannel(number);
    QVERIFY(channel);
    QTEST(channel->fromPosition(0.0F), "low");
    QTEST(channel->fromPosition(1.0F), "high");

    const QLxColor color{200.0F, 0.4F, 0.6F};
    const auto parts = [number](const QLxColor &c) {
        return number < 3 ? triple(c) : number < 6 ? Reference::hsvToRgb(c) : Reference::hsvToLab(c);
    };
    const auto own = static_cast<size_t>(number % 3);
    QVERIFY(same(channel->read(color), parts(color)[own]));
    Reference::Triple expected = parts(color);
    expected[own] = expected[own] * 0.9F + 0.01F;
    const QLxColor replaced = channel->replaced(color, expected[own]);
    for (size_t i = 0; i < 3; ++i) {
        const float tolerance = number < 3 ? 0.0F : number < 6 ? 1e-6F : 1e-3F;
        QVERIFY(std::abs(parts(replaced)[i] - expected[i]) <= tolerance);
    }
    QVERIFY(!QLx::colorChannel(-1));
    QVERIFY(!QLx::colorChannel(9));
}

void TestColorSpaces::equality()
{
    const QLxColor c{1.0F, 0.5F, 0.25F};
    QVERIFY(QLxColor() == (QLxColor{0.0F, 0.0F, 0.0F}));
    QVERIFY(c == (QLxColor{1.0F, 0.5F, 0.25F}));
    QVERIFY(c != (QLxColor{2.0F, 0.5F, 0.25F}));
    QVERIFY(c != (QLxColor{1.0F, 0.6F, 0.25F}));
    QVERIFY(c != (QLxColor{1.0F, 0.5F, 0.2F}));
    const QLxColor nan{1.0F, 0.5F, Nan};
    QVERIFY(nan != nan);
}

QLX_TEST_MAIN(TestColorSpaces)
#include "tst_colorspaces.moc"
