// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Every pixel of the slider against a picture drawn step by step: one line per column, one rectangle per
// frame, colours from the reference conversions.
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "TestCase.h"

#include <QPainter>

#include <limits>

namespace {

using Reference::F;

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();

QColor columnColor(int mode, const QLxColor &reference, F t)
{
    const Reference::Triple lab = Reference::hsvToLab(reference);
    const auto raw = [](const QLxColor &c) { return Reference::display(c, false); };
    switch (mode) {
    case 0:
        return raw({360.0F * t, 1, 1});
    case 1:
        return Reference::display({reference.hue, t, reference.value}, QLx::colorUseGamma);
    case 2:
        return raw({reference.hue, reference.saturation, t});
    case 3:
        return raw(Reference::rgbToHsv({t, 0, 0}));
    case 4:
        return raw(Reference::rgbToHsv({0, t, 0}));
    case 5:
        return raw(Reference::rgbToHsv({0, 0, t}));
    case 6:
        return raw(Reference::labToHsv({100.0F * t, lab[1], lab[2]}));
    case 7:
        return raw(Reference::labToHsv({lab[0], 256.0F * (t - 0.5F), lab[2]}));
    default:
        return raw(Reference::labToHsv({lab[0], lab[1], 256.0F * (t - 0.5F)}));
    }
}

struct Look
{
    bool enabled = true;
    bool multiselect = false;
    QString text;
    QPalette::ColorGroup group = QPalette::Active; // while enabled
};

QImage expectedPicture(const QLxColorSlider &slider, const Look &look)
{
    const int w = slider.width();
    const int h = slider.height();
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (image.isNull())
        return image;
    const auto role = [&](QPalette::ColorRole r) {
        return slider.palette().color(look.enabled ? look.group : QPalette::Disabled, r);
    };
    const auto frame = [](QPainter &p, const QColor &color, const QPoint &from, const QPoint &to) {
        p.setPen(QPen(color, 1, Qt::SolidLine));
        p.drawRect(from.x(), from.y(), to.x() - from.x(), to.y() - from.y());
    };
    QPainter p(&image);
    p.setFont(slider.font());
    p.fillRect(image.rect(), role(QPalette::Button));
    p.setBrush(Qt::NoBrush);
    const int n = w - 2;
    const int mode = slider.getMode();
    if (n >= 2 && (!look.enabled || (mode >= 0 && mode <= 8))) {
        for (int x = 1; x <= n - 1; ++x) {
            const F t = F(static_cast<float>(x - 1)) / F(static_cast<float>(n));
            const QColor color = look.enabled ? columnColor(mode, slider.getMaxColor(), t)
                                              : Reference::display({0, 0, 0.1F + 0.4F * t}, false);
            p.setPen(QPen(color, 1));
            p.drawLine(x, 2, x, h - 2);
        }
    }
    frame(p, role(QPalette::Light), {1, 1}, {w - 3, h - 3});
    frame(p, role(QPalette::Midlight), {2, 2}, {w - 2, h - 2});
    frame(p, role(QPalette::Shadow), {1, 1}, {w - 2, h - 2});
    if (!look.text.isEmpty()) {
        p.setPen(QColor(192, 192, 192));
        p.drawText(5, h - 4, look.text);
    }
    const float position = F(static_cast<float>(w - 5)) * F(slider.getValue()) + 2.0F;
    if (!std::isnan(position)) {
        const int hx = static_cast<int>(qBound(-8.0F, position, static_cast<float>(w + 8)));
        frame(p, role(QPalette::Midlight), {hx - 2, 0}, {hx + 1, h - 2});
        frame(p, role(QPalette::Highlight), {hx - 1, 1}, {hx + 2, h - 1});
        frame(p, role(QPalette::Shadow), {hx - 2, 0}, {hx + 2, h - 1});
    }
    if (look.multiselect) {
        p.setPen(Qt::NoPen);
        QLinearGradient gradient(QPointF(0, 0.1), QPointF(0, 0.45));
        gradient.setColorAt(0, QColor(235, 185, 55, 175));
        gradient.setColorAt(1, QColor(165, 155, 45, 135));
        p.fillRect(image.rect(), gradient);
    }
    return image;
}

QImage picture(QLxColorSlider &slider)
{
    QImage image(slider.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!image.isNull())
        slider.render(&image);
    return image;
}

/// Where the slider's picture differs, or an empty text.
QString difference(QLxColorSlider &slider, const Look &look = {})
{
    const QImage actual = picture(slider);
    const QImage expected = expectedPicture(slider, look);
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (actual.pixel(x, y) != expected.pixel(x, y))
                return QStringLiteral("%1x%2, mode %3, value %4: pixel (%5, %6) is %7, not %8")
                    .arg(slider.width())
                    .arg(slider.height())
                    .arg(int(slider.getMode()))
                    .arg(double(slider.getValue()))
                    .arg(x)
                    .arg(y)
                    .arg(actual.pixel(x, y), 8, 16)
                    .arg(expected.pixel(x, y), 8, 16);
        }
    }
    return {};
}

#define VERIFY_SAME(...)                                                                                     \
    do {                                                                                                     \
        const QString where = difference(__VA_ARGS__);                                                       \
        QVERIFY2(where.isEmpty(), qPrintable(where));                                                        \
    } while (false)

/// A palette in which no two roles or groups look alike.
QPalette motley()
{
    QPalette palette;
    int step = 0;
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (auto role :
             {QPalette::Button, QPalette::Light, QPalette::Midlight, QPalette::Shadow, QPalette::Highlight}) {
            ++step;
            palette.setColor(group, role, QColor(step * 17 % 256, step * 91 % 256, step * 53 % 256));
        }
    }
    return palette;
}

} // namespace

class TestColorSliderPicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyMode_data();
    void everyMode();
    void everyHandlePosition();
    void tinySizes();
    void modeWithoutRamp();
    void disabledTexts();
    void windowInTheBackground();
    void multiselect();
    void colorsThatAreNone();
    void hugeSizes();

private:
    QWidget m_window;
};

void TestColorSliderPicture::everyMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("enabled");
    const char *names[] = {"Hue", "Saturation", "Value", "Red", "Green", "Blue", "L*", "a*", "b*"};
    for (int i = 0; i < 9; ++i) {
        QTest::newRow(names[i]) << i << true;
        QTest::addRow("%s disabled", names[i]) << i << false;
    }
}

void TestColorSliderPicture::everyMode()
{
    QFETCH(int, mode);
    QFETCH(bool, enabled);
    QLxColorSlider slider(&m_window);
    slider.setPalette(motley());
    slider.setEnabled(enabled);
    slider.setMode(static_cast<QLxColorSlider::Mode>(mode));
    Look look;
    look.enabled = enabled;
    const QLxColor references[] = {
        {0, 0, 1}, {0, 0, 0}, {210, 0.6F, 0.8F}, {359.99F, 1, 0.5F}, {-20, 1.5F, 2}};
    for (const QSize &size : {QSize(62, 16), QSize(400, 20), QSize(131, 37), QSize(2000, 40)}) {
        slider.resize(size);
        for (const QLxColor &reference : references) {
            slider.setMinColor(QLxColor{77, 0.3F, 0.3F}); // must not matter
            slider.setMaxColor(reference);
            for (bool useGamma : {true, false}) {
                QLx::colorUseGamma = useGamma;
                VERIFY_SAME(slider, look);
            }
        }
    }
    QLx::colorUseGamma = true;
}

void TestColorSliderPicture::everyHandlePosition()
{
    QLxColorSlider slider(&m_window);
    slider.setPalette(motley());
    slider.resize(30, 16);
    for (float value = -1.0F; value < 2.0F; value += 0.01F) {
        slider.setValue(value);
        VERIFY_SAME(slider);
    }
    for (float value : {-1e30F, 1e30F, -std::numeric_limits<float>::infinity(),
                        std::numeric_limits<float>::infinity(), Nan}) {
        slider.setValue(value);
        VERIFY_SAME(slider);
    }
}

void TestColorSliderPicture::tinySizes()
{
    QLxColorSlider slider(&m_window);
    slider.setPalette(motley());
    for (int mode = 0; mode < 9; ++mode) {
        slider.setMode(static_cast<QLxColorSlider::Mode>(mode));
        for (int w = 0; w <= 14; ++w) {
            for (int h = 0; h <= 14; ++h) {
                slider.resize(w, h);
                for (float value : {0.0F, 0.5F, 1.0F}) {
                    slider.setValue(value);
                    VERIFY_SAME(slider);
                }
            }
        }
    }
}

void TestColorSliderPicture::modeWithoutRamp()
{
    QLxColorSlider slider(&m_window);
    slider.setPalette(motley());
    slider.resize(62, 16);
    for (int mode : {-1, 9, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        slider.setMode(static_cast<QLxColorSlider::Mode>(mode));
        slider.setEnabled(true);
        VERIFY_SAME(slider);
        slider.setEnabled(false); // greys, as in any other mode
        VERIFY_SAME(slider, {false, false, {}});
    }
}

void TestColorSliderPicture::disabledTexts()
{
    QLxColorSlider slider(&m_window);
    slider.setPalette(motley());
    slider.resize(400, 20);
    const QString photometric = QStringLiteral("Disabled, using photometric mode.");
    const QString spectral = QStringLiteral("Disabled, using spectral data.");
    slider.setUseSpectrum(true);
    VERIFY_SAME(slider, {false, false, spectral});
    slider.setPhotometricParameters(true); // has precedence
    VERIFY_SAME(slider, {false, false, photometric});
    slider.setUseSpectrum(false);
    VERIFY_SAME(slider, {false, false, photometric});
    slider.setPhotometricParameters(false);
    VERIFY_SAME(slider, {true, false, {}});
    slider.setEnabled(false);
    VERIFY_SAME(slider, {false, false, {}});
    // Enabled from outside: no text although the cause remains.
    slider.setUseSpectrum(true);
    slider.setEnabled(true);
    VERIFY_SAME(slider, {true, false, {}});
}

void TestColorSliderPicture::windowInTheBackground()
{
    QWidget window;
    QLxColorSlider slider(&window);
    slider.setPalette(motley());
    slider.resize(62, 16);
    window.show();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!slider.isActiveWindow());
    Look look;
    look.group = QPalette::Inactive;
    VERIFY_SAME(slider, look);
}

void TestColorSliderPicture::multiselect()
{
    QLxColorSlider slider(&m_window);
    slider.resize(62, 16);
    for (const QVariant &on : {QVariant(true), QVariant(1), QVariant(QStringLiteral("yes"))}) {
        slider.setProperty("multiselect", on);
        VERIFY_SAME(slider, {true, true, {}});
    }
    for (const QVariant &off :
         {QVariant(false), QVariant(0), QVariant(QStringLiteral("false")), QVariant()}) {
        slider.setProperty("multiselect", off);
        VERIFY_SAME(slider, {true, false, {}});
    }
}

void TestColorSliderPicture::colorsThatAreNone()
{
    QLxColorSlider slider(&m_window);
    slider.resize(62, 16);
    const float infinity = std::numeric_limits<float>::infinity();
    for (int mode = 0; mode < 9; ++mode) {
        slider.setMode(static_cast<QLxColorSlider::Mode>(mode));
        for (float bad : {Nan, infinity, -infinity, 1e30F}) {
            for (const QLxColor &reference :
                 {QLxColor{bad, 1, 1}, QLxColor{0, bad, 1}, QLxColor{0, 1, bad}}) {
                slider.setMaxColor(reference);
                VERIFY_SAME(slider);
            }
        }
    }
}

void TestColorSliderPicture::hugeSizes()
{
    // Too large to compare, small in memory: one row of colours, whatever the height.
    QLxColorSlider slider(&m_window);
    slider.resize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QImage image(64, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    slider.render(&image, QPoint(), QRegion(0, 0, 64, 32));
    QCOMPARE(image.pixelColor(40, 20), QColor(255, 0, 0)); // the slow start of a very long hue ramp
}

QLX_TEST_MAIN(TestColorSliderPicture)
#include "tst_colorsliderpicture.moc"
