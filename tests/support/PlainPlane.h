// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef PLAINPLANE_H
#define PLAINPLANE_H

#include "ReferenceColors.h"

#include <QImage>

#include <algorithm>

/// The colour field's planes one pixel at a time, with QColor and setPixel: what the fast ones must equal,
/// and are measured against. Number is the type of the arithmetic: float for speed, Reference::F to be
/// certain of every rounding.
namespace PlainPlane {

template <typename Number>
int component(Number channel)
{
    const float c = channel;
    if (!(c > 0.0F))
        return 0;
    return c < 1.0F ? static_cast<int>(float(Number(c) * Number(255.0F))) : 255;
}

template <typename Number>
Number power(Number base, float exponent)
{
    return Number(powf(base, exponent));
}

template <typename Number>
QColor fromHsv(Number hue, Number s, Number v)
{
    const float degrees = hue;
    Number position = hue / Number(60.0F);
    if (degrees < 0.0F)
        position = Number(0.0F);
    else if (degrees >= 360.0F)
        position = Number(5.999833106994629F);
    const int i = std::isnan(degrees) ? 0 : static_cast<int>(float(position));
    const Number one(1.0F);
    const Number f = position - Number(static_cast<float>(i));
    const Number p = v * (one - s);
    const Number q = v * (one - s * f);
    const Number t = v * (one - s * (one - f));
    switch (i) {
    case 1:
        return {component(q), component(v), component(p), 255};
    case 2:
        return {component(p), component(v), component(t), 255};
    case 3:
        return {component(p), component(q), component(v), 255};
    case 4:
        return {component(t), component(p), component(v), 255};
    case 5:
        return {component(v), component(p), component(q), 255};
    default:
        return {component(v), component(t), component(p), 255};
    }
}

template <typename Number>
QColor fromLab(Number lstar, Number astar, Number bstar)
{
    const auto curve = [](Number f) {
        return float(f) > 0.20689656F ? f * f * f : (f - Number(0.13793103F)) * Number(0.12841856F);
    };
    const auto encode = [](Number linear) {
        const Number x = float(linear) < 0.0F ? Number(0.0F) : linear;
        if (float(x) <= 0.0031308F)
            return component(Number(12.92F) * x);
        return component(Number(1.055F) * power(x, 0.41666666F) - Number(0.055F));
    };
    const Number fy = (lstar + Number(16.0F)) / Number(116.0F);
    const Number x = Number(0.9504559636116028F) * curve(astar / Number(500.0F) + fy);
    const Number y = Number(1.0F) * curve(fy);
    const Number z = Number(1.0890578031539917F) * curve(fy - bstar / Number(200.0F));
    return {encode(Number(3.2404542F) * x - Number(1.5371385F) * y - Number(0.4985314F) * z),
            encode(Number(-0.969266F) * x + Number(1.8760108F) * y + Number(0.041556F) * z),
            encode(Number(0.0556434F) * x - Number(0.2040259F) * y + Number(1.0572252F) * z), 255};
}

template <typename Number>
QColor pixel(int plane, Number constant, int x, int y, int w, int h)
{
    const auto fraction = [](int part, int whole) {
        return Number(static_cast<float>(part)) / Number(static_cast<float>(whole));
    };
    const auto hue = [&] {
        return Number(static_cast<float>(x)) * (Number(360.0F) / Number(static_cast<float>(w)));
    };
    const auto chroma = [](Number position) { return (position - Number(0.5F)) * Number(256.0F); };
    const int up = h - 1 - y;
    switch (plane) {
    case 0:
        return fromHsv(constant, fraction(x, w), fraction(up, h));
    case 1:
        return fromHsv(hue(), constant, fraction(up, h));
    case 2:
        return fromHsv(hue(), fraction(up, h), constant);
    case 3: // columns by the height and rows by the width, here and on the last two
        return {component(constant), component(fraction(x, h)), component(fraction(up, w)), 255};
    case 4:
        return {component(fraction(x, w)), component(constant), component(fraction(up, h)), 255};
    case 5:
        return {component(fraction(x, w)), component(fraction(up, h)), component(constant), 255};
    case 6:
        return fromLab(constant, chroma(fraction(x, w)), chroma(fraction(up, h)));
    case 7:
        return fromLab(fraction(up, w) * Number(100.0F), constant, chroma(fraction(x, h)));
    default:
        return fromLab(fraction(up, w) * Number(100.0F), chroma(fraction(x, h)), constant);
    }
}

template <typename Number>
void fill(int plane, float constant, QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, pixel(plane, Number(constant), x, y, image.width(), image.height()).rgb());
    }
}

} // namespace PlainPlane

#endif
