// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"
#include "ColorPlane_p.h"
#include "PlainPlane.h"
#include "QLxColorField.h"
#include "Registers.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#ifdef QLX_HAVE_COLOR_WIDGETS
#include <QtColorWidgets/color_2d_slider.hpp>
#endif

// The colour field's planes: filling an image beside one pixel at a time, and repainting a whole widget
// beside other libraries' colour planes.

namespace {

constexpr int Sizes[] = {256, 1024};
const char *const Names[] = {"Hue", "Saturation", "Value", "Red", "Green", "Blue", "Lstar", "Astar", "Bstar"};

/// A constant of that plane that moves a little with each call, as a drag does.
class Constant
{
public:
    explicit Constant(int plane)
        : m_low(plane == 0   ? 200.0F
                : plane < 6  ? 0.4F
                : plane == 6 ? 60.0F
                             : 20.0F)
        , m_step(plane == 0  ? 1.0F
                 : plane < 6 ? 0.01F
                             : 1.0F)
    {
    }
    float next() { return m_low + m_step * static_cast<float>(m_count++ % 16); }

private:
    float m_low;
    float m_step;
    int m_count = 0;
};

std::string sizeName(int size)
{
    return std::to_string(size) + 'x' + std::to_string(size);
}

/// A widget paints only once its window has been exposed.
void expose(QWidget &widget)
{
    widget.show();
    QCoreApplication::processEvents();
}

template <typename Run>
void add(const std::string &name, Run run)
{
    benchmark::RegisterBenchmark(name.c_str(), run);
}

void addPlanes()
{
    for (const int size : Sizes) {
        for (int plane = 0; plane < 9; ++plane) {
            const std::string name = std::string("plane/") + Names[plane] + '/' + sizeName(size) + '/';
            for (int kernel = 0; kernel < QLx::planeKernelCount(); ++kernel) {
                add(name + "ours: " + QLx::planeKernelName(kernel), [=](benchmark::State &state) {
                    QImage image(size, size, QImage::Format_RGB32);
                    Constant constant(plane);
                    QLx::usePlaneKernel(kernel);
                    for (auto _ : state) {
                        QLx::fillColorPlane(plane, constant.next(), image);
                        benchmark::DoNotOptimize(image.bits());
                    }
                    QLx::usePlaneKernel(QLx::planeKernelCount() - 1);
                });
            }
            for (const Registers &registers : registerStates()) {
                add(name + "plain, " + registers.name, [=](benchmark::State &state) {
                    QImage image(size, size, QImage::Format_RGB32);
                    Constant constant(plane);
                    for (auto _ : state) {
                        registers.enter();
                        PlainPlane::fill<float>(plane, constant.next(), image);
                        benchmark::DoNotOptimize(image.bits());
                    }
                });
            }
        }
        add("plane/filling with one colour/" + sizeName(size) + "/ours: plain", [=](benchmark::State &state) {
            QImage image(size, size, QImage::Format_RGB32);
            QRgb color = 0;
            for (auto _ : state) {
                image.fill(++color);
                benchmark::DoNotOptimize(image.bits());
            }
        });
    }
}

/// The whole widget, shown offscreen and repainted at once for each new constant channel.
void addFields()
{
    using Slot = void (QLxColorField::*)(bool);
    using Field = QLxColorField;
    static constexpr Slot slots[] = {&Field::setHueMode,   &Field::setSaturationMode, &Field::setValueMode,
                                     &Field::setRedMode,   &Field::setGreenMode,      &Field::setBlueMode,
                                     &Field::setLstarMode, &Field::setAstarMode,      &Field::setBstarMode};
    for (int plane = 0; plane < 9; ++plane) {
        const std::string name = std::string("field/") + Names[plane] + "/1024x1024/";
        add(name + "ours", [=](benchmark::State &state) {
            Field field;
            field.resize(1024, 1024);
            field.setHSV(210.0F, 0.6F, 0.7F);
            const Slot slot = slots[plane];
            (field.*slot)(true);
            expose(field);
            for (auto _ : state)
                field.repaint();
        });
        add(name + "plain", [=](benchmark::State &state) {
            QImage image(1024, 1024, QImage::Format_RGB32);
            Constant constant(plane);
            for (auto _ : state) {
                registerStates().front().enter();
                PlainPlane::fill<float>(plane, constant.next(), image);
                benchmark::DoNotOptimize(image.bits());
            }
        });
    }
}

/// What QColorDialog does for its plane of hue and saturation: one QColor for each pixel, then a pixmap.
class DialogPlane : public QWidget
{
public:
    void setValue(int value)
    {
        QImage image(width(), height(), QImage::Format_RGB32);
        QColor color;
        for (int y = 0; y < height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < width(); ++x) {
                color.setHsv(359 - x * 360 / (width() - 1), 255 - y * 255 / (height() - 1), value);
                line[x] = color.rgb();
            }
        }
        m_pixmap = QPixmap::fromImage(image);
        repaint();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override { QPainter(this).drawPixmap(0, 0, m_pixmap); }

private:
    QPixmap m_pixmap;
};

/// Widgets of three libraries that each show a new plane because a channel has changed.
void addPeers()
{
    for (const int size : Sizes) {
        add("peer/QLxColorField, value plane/" + sizeName(size), [=](benchmark::State &state) {
            QLxColorField field;
            field.resize(size, size);
            field.setValueMode(true);
            expose(field);
            float value = 0.0F;
            for (auto _ : state) {
                value = value < 0.9F ? value + 0.01F : 0.1F;
                field.setConstantChannel(value);
            }
        });
        add("peer/QColorDialog's loop, value plane/" + sizeName(size), [=](benchmark::State &state) {
            DialogPlane plane;
            plane.resize(size, size);
            expose(plane);
            int value = 0;
            for (auto _ : state)
                plane.setValue(value = (value + 1) % 256);
        });
#ifdef QLX_HAVE_COLOR_WIDGETS
        add("peer/Color2DSlider, value plane/" + sizeName(size), [=](benchmark::State &state) {
            color_widgets::Color2DSlider slider;
            slider.setComponentX(color_widgets::Color2DSlider::Hue);
            slider.setComponentY(color_widgets::Color2DSlider::Saturation);
            slider.resize(size, size);
            expose(slider);
            double value = 0.0;
            for (auto _ : state) {
                value = value < 0.9 ? value + 0.01 : 0.1;
                slider.setValue(value);
                slider.repaint();
            }
        });
#endif
    }
}

} // namespace

void addBenchmarks()
{
    addPlanes();
    addFields();
    addPeers();
}
