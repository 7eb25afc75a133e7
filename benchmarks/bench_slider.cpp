// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"
#include "ColorMath_p.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"

#include <QImage>
#include <QMetaEnum>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <string>

// Painting a whole slider, beside a widget that paints the same picture the obvious way.

namespace {

const QLxColor Reference{205.0F, 0.6F, 0.8F};
constexpr float Position = 0.3F;

/// Paints the slider's picture with one pen and one line for every column, each colour through the public
/// conversions.
class PlainSlider : public QWidget
{
public:
    explicit PlainSlider(QLxColorSlider::Mode mode)
        : m_mode(mode)
    {
        const QLx::Rgb rgb = QLx::hsvToRgb(Reference);
        QLx::rgbToLab(rgb.red, rgb.green, rgb.blue, m_lab.lstar, m_lab.astar, m_lab.bstar);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        const int w = width();
        const int h = height();
        painter.setPen(palette().color(QPalette::Button));
        painter.setBrush(palette().color(QPalette::Button));
        painter.drawRect(0, 0, w - 1, h - 1);
        painter.setBrush(Qt::NoBrush);

        const int n = w - 2;
        for (int x = 1; x < n; ++x) {
            painter.setPen(columnColor(static_cast<float>(x - 1) / static_cast<float>(n)));
            painter.drawLine(x, 2, x, h - 2);
        }
        drawFrame(painter, QPalette::Light, 1, 1, w - 4, h - 4);
        drawFrame(painter, QPalette::Midlight, 2, 2, w - 4, h - 4);
        drawFrame(painter, QPalette::Shadow, 1, 1, w - 3, h - 3);

        const int handle = static_cast<int>(static_cast<float>(w - 5) * Position + 2.0F);
        drawFrame(painter, QPalette::Midlight, handle - 2, 0, 3, h - 2);
        drawFrame(painter, QPalette::Highlight, handle - 1, 1, 3, h - 2);
        drawFrame(painter, QPalette::Shadow, handle - 2, 0, 4, h - 1);
    }

private:
    void drawFrame(QPainter &painter, QPalette::ColorRole role, int x, int y, int w, int h)
    {
        painter.setPen(palette().color(role));
        painter.drawRect(x, y, w, h);
    }

    QColor columnColor(float t) const
    {
        switch (m_mode) {
        case QLxColorSlider::Hue:
            return QLx::toQColorRaw({360.0F * t, 1.0F, 1.0F});
        case QLxColorSlider::Saturation:
            return QLx::toQColor({Reference.hue, t, Reference.value});
        case QLxColorSlider::Value:
            return QLx::toQColorRaw({Reference.hue, Reference.saturation, t});
        case QLxColorSlider::Red:
            return QLx::toQColorRaw(QLx::rgbToHsv(t, 0.0F, 0.0F));
        case QLxColorSlider::Green:
            return QLx::toQColorRaw(QLx::rgbToHsv(0.0F, t, 0.0F));
        case QLxColorSlider::Blue:
            return QLx::toQColorRaw(QLx::rgbToHsv(0.0F, 0.0F, t));
        case QLxColorSlider::Lstar:
            return labColor(100.0F * t, m_lab.astar, m_lab.bstar);
        case QLxColorSlider::Astar:
            return labColor(m_lab.lstar, QLx::labChromaRange * (t - 0.5F), m_lab.bstar);
        case QLxColorSlider::Bstar:
            return labColor(m_lab.lstar, m_lab.astar, QLx::labChromaRange * (t - 0.5F));
        }
        return {};
    }

    static QColor labColor(float lstar, float astar, float bstar)
    {
        QLxColor color;
        QLx::labToHsv(lstar, astar, bstar, color.hue, color.saturation, color.value);
        return QLx::toQColorRaw(color);
    }

    QLxColorSlider::Mode m_mode;
    QLx::Lab m_lab{};
};

/// A widget on screen, as far as Qt can tell, and the picture it paints into.
class Stage
{
public:
    Stage(QWidget &widget, QSize size)
        : m_widget(widget)
        , m_picture(size, QImage::Format_ARGB32_Premultiplied)
    {
        m_widget.setFixedSize(size);
        m_widget.show();
        m_picture.fill(Qt::transparent);
    }

    /// The widget's paintEvent() and as little else as Qt allows.
    void paint() { m_widget.render(&m_picture, QPoint(), QRegion(), QWidget::RenderFlags()); }
    const QImage &picture() const { return m_picture; }
    bool isBlank() const { return qAlpha(m_picture.pixel(0, 0)) == 0; }

private:
    QWidget &m_widget;
    QImage m_picture;
};

enum class Painter { Ours, Plain };

void paintSlider(benchmark::State &state, QLxColorSlider::Mode mode, QSize size, Painter painter)
{
    QLxColorSlider slider;
    slider.setMode(mode);
    slider.setMinColor(Reference);
    slider.setMaxColor(Reference);
    slider.setValue(Position);
    Stage ours(slider, size);
    ours.paint();

    PlainSlider plainSlider(mode);
    Stage plain(plainSlider, size);
    plain.paint();

    if (slider.size() != size || plainSlider.size() != size || ours.isBlank()) {
        state.SkipWithError("the widgets were not painted at the size asked for");
        return;
    }
    if (ours.picture() != plain.picture()) {
        state.SkipWithError("the two pictures differ");
        return;
    }
    Stage &measured = painter == Painter::Ours ? ours : plain;
    for (auto _ : state)
        measured.paint();
}

} // namespace

/// Benchmarks "slider/MODE/WIDTHxHEIGHT/ours" and ".../plain".
void addBenchmarks()
{
    const auto modes = QMetaEnum::fromType<QLxColorSlider::Mode>();
    for (int i = 0; i < modes.keyCount(); ++i) {
        const auto mode = static_cast<QLxColorSlider::Mode>(modes.value(i));
        for (const QSize size : {QSize(62, 16), QSize(400, 20), QSize(2000, 40)}) {
            const std::string name = std::string("slider/") + modes.key(i) + '/' +
                                     std::to_string(size.width()) + 'x' + std::to_string(size.height());
            for (const Painter painter : {Painter::Ours, Painter::Plain}) {
                benchmark::RegisterBenchmark(
                    (name + (painter == Painter::Ours ? "/ours" : "/plain")).c_str(),
                    [=](benchmark::State &state) { paintSlider(state, mode, size, painter); })
                    ->Unit(benchmark::kMicrosecond);
            }
        }
    }
}
