// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ColorMath_p.h"
#include "QLxColorSpaces.h"
#include "SrgbQuantizer_p.h"
#include "TestCase.h"

#include <limits>

/// The table against the plain evaluation. QLX_EXHAUSTIVE=1 in the environment tries every float in [0, 1],
/// about a billion (some minutes), instead of a dense sample.
class TestSrgbQuantizer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void equalsPlainEvaluation();
    void isExactAroundEveryStep();
    void limits_data();
    void limits();
};

namespace {

float floatFromBits(quint32 bits)
{
    float x = 0.0F;
    std::memcpy(&x, &bits, sizeof x);
    return x;
}

int plain(float x)
{
    const float encoded = QLx::linearToSrgb(x);
    return encoded < 0.0F ? 0 : encoded > 1.0F ? 255 : static_cast<int>(encoded * 255.0F);
}

} // namespace

void TestSrgbQuantizer::equalsPlainEvaluation()
{
    const QLx::SrgbQuantizer &encode = QLx::SrgbQuantizer::instance();
    const quint32 step = qEnvironmentVariableIsSet("QLX_EXHAUSTIVE") ? 1 : 997;
    const quint32 end = 0x3F900000; // past 1, to 1.125
    for (quint32 bits = 0; bits < end; bits += step) {
        const float x = floatFromBits(bits);
        if (encode(x) != plain(x))
            QCOMPARE(qMakePair(x, encode(x)), qMakePair(x, plain(x)));
    }
}

void TestSrgbQuantizer::isExactAroundEveryStep()
{
    const QLx::SrgbQuantizer &encode = QLx::SrgbQuantizer::instance();
    for (int level = 1; level < 256; ++level) {
        // The exact inverse of the curve gives the neighbourhood in which the step must lie.
        const double encoded = level / 255.0;
        const double linear = encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
        auto x = static_cast<float>(linear * 0.99999);
        QCOMPARE(encode(x), level - 1);
        for (; static_cast<double>(x) < linear * 1.00001; x = std::nextafter(x, 2.0F)) {
            if (encode(x) != plain(x))
                QCOMPARE(qMakePair(x, encode(x)), qMakePair(x, plain(x)));
        }
        QCOMPARE(encode(x), level);
    }
}

void TestSrgbQuantizer::limits_data()
{
    QTest::addColumn<float>("linear");
    QTest::addColumn<int>("level");
    const float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("zero") << 0.0F << 0;
    QTest::newRow("minus zero") << -0.0F << 0;
    QTest::newRow("negative") << -1.0F << 0;
    QTest::newRow("smallest positive") << std::numeric_limits<float>::denorm_min() << 0;
    QTest::newRow("one truncates to 254") << 1.0F << 254;
    QTest::newRow("above one") << 1.001F << 255;
    QTest::newRow("huge") << 1e30F << 255;
    QTest::newRow("infinity") << infinity << 255;
    QTest::newRow("minus infinity") << -infinity << 0;
    QTest::newRow("NaN") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void TestSrgbQuantizer::limits()
{
    QFETCH(float, linear);
    QTEST(QLx::SrgbQuantizer::instance()(linear), "level");
}

QLX_TEST_MAIN(TestSrgbQuantizer)
#include "tst_srgbquantizer.moc"
