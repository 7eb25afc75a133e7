// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The colour field's picture: every pixel of every plane, its marker, and the mapping between pixels and
// colours.
#include "ColorPlane_p.h"
#include "FieldOracle.h"
#include "PlainPlane.h"
#include "QLxColorSpaces.h"
#include "TestCase.h"

#include <QPainter>

#include <limits>
#include <random>

namespace {

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinity = std::numeric_limits<float>::infinity();
const char *const PlaneNames[] = {"hue", "saturation", "value", "red", "green", "blue", "L*", "a*", "b*"};

/// Both ends of the channel and beyond, nothing at all, and numbers between.
QVector<float> constants(int plane, int between)
{
    const float low[] = {0, 0, 0, 0, 0, 0, 0, -128, -128};
    const float high[] = {360, 1, 1, 1, 1, 1, 100, 128, 128};
    const float span = high[plane] - low[plane];
    QVector<float> all{low[plane],
                       high[plane],
                       low[plane] - span,
                       high[plane] + span,
                       std::nextafter(high[plane], 0.0F),
                       -0.0F,
                       1e30F,
                       -1e30F,
                       Infinity,
                       -Infinity,
                       Nan};
    std::mt19937 random(static_cast<unsigned>(plane));
    for (int i = 0; i < between; ++i)
        all.append(low[plane] + span * static_cast<float>(random() >> 8U) / 16777216.0F);
    return all;
}

QString difference(const QImage &actual, const QImage &expected)
{
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (actual.pixel(x, y) != expected.pixel(x, y))
                return QStringLiteral("pixel (%1, %2) is %3, not %4")
                    .arg(x)
                    .arg(y)
                    .arg(actual.pixel(x, y), 8, 16)
                    .arg(expected.pixel(x, y), 8, 16);
        }
    }
    return {};
}

QImage plane(int number, float constant, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QLx::fillColorPlane(number, constant, image);
    return image;
}

} // namespace

class TestColorPlane : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void plainReferenceIsExact_data();
    void plainReferenceIsExact();
    void planes_data();
    void planes();
    void everyKernelGivesTheSamePixels_data();
    void everyKernelGivesTheSamePixels();
    void largestAndSmallest();
    void leftAlone();
    void pictureOfTheWidget_data();
    void pictureOfTheWidget();
    void markers_data();
    void markers();
    void picks_data();
    void picks();
};

void TestColorPlane::plainReferenceIsExact_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < 9; ++i)
        QTest::newRow(PlaneNames[i]) << i;
}

void TestColorPlane::plainReferenceIsExact()
{
    QFETCH(int, number);
    for (const QSize &size : {QSize(64, 64), QSize(33, 7), QSize(7, 33), QSize(1, 1)}) {
        const QVector<float> tried = constants(number, 9);
        for (const float constant : tried) {
            QImage fast(size, QImage::Format_RGB32);
            QImage certain(size, QImage::Format_RGB32);
            PlainPlane::fill<float>(number, constant, fast);
            PlainPlane::fill<Reference::F>(number, constant, certain);
            const QString where = difference(fast, certain);
            QVERIFY2(where.isEmpty(), qPrintable(where));
        }
    }
}

void TestColorPlane::planes_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QSize>("size");
    for (int i = 0; i < 9; ++i) {
        for (const QSize &size : {QSize(256, 256), QSize(300, 300), QSize(1024, 1024), QSize(33, 7),
                                  QSize(7, 33), QSize(1, 1), QSize(1, 50), QSize(50, 1)})
            QTest::addRow("%s %dx%d", PlaneNames[i], size.width(), size.height()) << i << size;
    }
}

void TestColorPlane::planes()
{
    QFETCH(int, number);
    QFETCH(QSize, size);
#ifdef __OPTIMIZE__
    const int between = 12;
#else
    const int between = size.width() > 300 ? -9 : 12; // a plain build takes its time
#endif
    QVector<float> tried = constants(number, qMax(between, 0));
    if (between < 0)
        tried.resize(tried.size() + between);
    for (const float constant : qAsConst(tried)) {
        QImage expected(size, QImage::Format_RGB32);
        PlainPlane::fill<float>(number, constant, expected);
        const QImage actual = plane(number, constant, size);
        if (actual != expected) {
            QFAIL(qPrintable(QStringLiteral("constant %1: %2")
                                 .arg(static_cast<double>(constant), 0, 'g', 9)
                                 .arg(difference(actual, expected))));
        }
    }
}

void TestColorPlane::everyKernelGivesTheSamePixels_data()
{
    QTest::addColumn<int>("kernel");
    for (int i = 0; i < QLx::planeKernelCount(); ++i)
        QTest::newRow(QLx::planeKernelName(i)) << i;
}

void TestColorPlane::everyKernelGivesTheSamePixels()
{
    QFETCH(int, kernel);
    for (int number = 0; number < 9; ++number) {
        for (const QSize &size : {QSize(256, 256), QSize(33, 7), QSize(7, 33), QSize(1, 1)}) {
            const QVector<float> tried = constants(number, 9);
            for (const float constant : tried) {
                QLx::usePlaneKernel(kernel);
                const QImage actual = plane(number, constant, size);
                QLx::usePlaneKernel(QLx::planeKernelCount() - 1);
                const QString where = difference(actual, plane(number, constant, size));
                QVERIFY2(where.isEmpty(), qPrintable(QString::fromLatin1(PlaneNames[number]) + where));
            }
        }
    }
}

void TestColorPlane::largestAndSmallest()
{
    for (int number = 0; number < 9; ++number) {
        const QImage image = plane(number, 0.25F, {4096, 4096});
        for (const QPoint &at :
             {QPoint(0, 0), QPoint(4095, 0), QPoint(0, 4095), QPoint(4095, 4095), QPoint(1234, 3210)})
            QCOMPARE(image.pixelColor(at),
                     PlainPlane::pixel<float>(number, 0.25F, at.x(), at.y(), 4096, 4096));
    }
    QWidget window;
    QLxColorField field(&window);
    for (int w = 0; w <= 14; ++w) {
        for (int h = 0; h <= 14; ++h) {
            field.resize(w, h);
            QImage image(20, 20, QImage::Format_RGB32);
            image.fill(Qt::magenta);
            field.render(&image);
            QCOMPARE(image.pixelColor(19, 19), QColor(Qt::magenta));
        }
    }
}

void TestColorPlane::leftAlone()
{
    QImage image(5, 5, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    const QImage before = image.copy();
    for (int number : {-1, 9, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QLx::fillColorPlane(number, 0.5F, image);
    QCOMPARE(image, before);
    QImage none;
    QLx::fillColorPlane(0, 0.5F, none);
    QVERIFY(none.isNull());
}

void TestColorPlane::pictureOfTheWidget_data()
{
    plainReferenceIsExact_data();
}

void TestColorPlane::pictureOfTheWidget()
{
    QFETCH(int, number);
    QWidget window;
    QLxColorField field(&window);
    switchTo(field, number, true);
    QCOMPARE(int(field.getMode()), number);
    const QLxColor colors[] = {{0, 0, 0},   {0, 0, 1},   {359, 1, 1},   {210, 0.6F, 0.7F},
                               {-50, 3, 2}, {Nan, 0, 1}, {90, Nan, Nan}};
    for (const QSize &size : {QSize(256, 256), QSize(100, 60), QSize(60, 100), QSize(3, 3), QSize(1, 1)}) {
        field.resize(size);
        for (const QLxColor &color : colors) {
            field.setHSV(color.hue, color.saturation, color.value);
            QImage expected(size, QImage::Format_RGB32);
            PlainPlane::fill<float>(number, field.getConstantChannel(), expected);
            const QPoint at = QLx::markerOnPlane(number, field.getColor(), size);
            QPainter painter(&expected);
            painter.setPen(QPen(QColor(255, 255, 255, 255), 1));
            painter.drawEllipse(QRect(at.x() - 3, at.y() - 3, 6, 6));
            painter.setPen(QPen(QColor(0, 0, 0, 255), 1));
            painter.drawEllipse(QRect(at.x() - 2, at.y() - 2, 4, 4));
            painter.drawPoint(at.x(), at.y());
            painter.end();
            QImage actual(size, QImage::Format_RGB32);
            field.render(&actual);
            const QString where = difference(actual, expected);
            QVERIFY2(where.isEmpty(), qPrintable(where));
        }
    }
}

void TestColorPlane::markers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QVector<float>>("hsv");
    QTest::addColumn<QPoint>("at"); // on a plane of 200 x 100
    const auto row = [](const char *name, int number, const QLxColor &c, const QPoint &at) {
        QTest::newRow(name) << number << QVector<float>{c.hue, c.saturation, c.value} << at;
    };
    row("value 1 is in the first row", 0, {50, 0.5F, 1}, {100, 0});
    row("value 0 is in the last row", 0, {50, 0.5F, 0}, {100, 99});
    row("saturation 1 is in the last column", 0, {50, 1, 0.25F}, {199, 75});
    row("out of gamut is at the edge", 0, {50, 2, -1}, {199, 99});
    row("saturation plane", 1, {180, 0.3F, 0.5F}, {100, 50});
    row("value plane", 2, {90, 0.75F, 0.5F}, {50, 25});
    row("red plane", 3, {120, 1, 0.5F}, {100, 99});
    row("green plane", 4, {0, 1, 0.5F}, {100, 99});
    row("blue plane", 5, {60, 1, 0.5F}, {100, 50});
    row("L* plane, grey is in the middle", 6, {0, 0, 0.5F}, {99, 50});
    row("a* plane, black is at the bottom", 7, {0, 0, 0}, {100, 99});
    row("b* plane, white is at the top", 8, {0, 0, 1}, {99, 0});
    row("nothing is a number", 0, {50, Nan, Nan}, {0, 0});
    row("no such plane", 9, {50, 0.5F, 0.5F}, {0, 0});
    row("no such plane either", -1, {50, 0.5F, 0.5F}, {0, 0});
}

void TestColorPlane::markers()
{
    QFETCH(int, number);
    QFETCH(QVector<float>, hsv);
    QFETCH(QPoint, at);
    const QPoint marker = QLx::markerOnPlane(number, {hsv[0], hsv[1], hsv[2]}, {200, 100});
    if (number == 6 || number == 8) // white and greys are not quite neutral in L*a*b*
        QVERIFY(qAbs(marker.x() - at.x()) <= 1 && qAbs(marker.y() - at.y()) <= 1);
    else
        QCOMPARE(marker, at);
}

void TestColorPlane::picks_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QPoint>("at"); // on a plane of 200 x 100, with a constant of 7
    QTest::addColumn<QVector<float>>("picked");
    QTest::newRow("hue") << 0 << QPoint(50, 25) << QVector<float>{7, 0.25F, 0.75F};
    QTest::newRow("saturation") << 1 << QPoint(50, 25) << QVector<float>{0.25F * 359.99F, 7, 0.75F};
    QTest::newRow("value") << 2 << QPoint(50, 25) << QVector<float>{0.25F * 359.99F, 0.75F, 7};
    QTest::newRow("red") << 3 << QPoint(50, 25) << QVector<float>{7, 0.25F, 0.75F};
    QTest::newRow("green") << 4 << QPoint(50, 25) << QVector<float>{0.25F, 7, 0.75F};
    QTest::newRow("blue") << 5 << QPoint(50, 25) << QVector<float>{0.25F, 0.75F, 7};
    QTest::newRow("L*") << 6 << QPoint(50, 25) << QVector<float>{7, -64, 64};
    QTest::newRow("a*") << 7 << QPoint(50, 25) << QVector<float>{75, 7, -64};
    QTest::newRow("b*") << 8 << QPoint(50, 25) << QVector<float>{75, -64, 7};
    QTest::newRow("outside, top left") << 6 << QPoint(-1, -1) << QVector<float>{7, -128, 128};
    QTest::newRow("outside, bottom right") << 6 << QPoint(201, 101) << QVector<float>{7, 128, -128};
    QTest::newRow("right edge of hues") << 1 << QPoint(200, 0) << QVector<float>{359.99F, 7, 1};
}

void TestColorPlane::picks()
{
    QFETCH(int, number);
    QFETCH(QPoint, at);
    QFETCH(QVector<float>, picked);
    const auto channels = QLx::pickFromPlane(number, 7, at, {200, 100});
    QCOMPARE((QVector<float>{channels[0], channels[1], channels[2]}), picked);
    // Without a size, the ends of the axes.
    const auto none = QLx::pickFromPlane(number, 7, {0, 0}, {0, 0});
    const auto origin = QLx::pickFromPlane(number, 7, {-1, 1000}, {200, 100});
    QVERIFY(none == origin);
}

QLX_TEST_MAIN(TestColorPlane)
#include "tst_colorplane.moc"
