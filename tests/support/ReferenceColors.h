// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef REFERENCECOLORS_H
#define REFERENCECOLORS_H

#include "QLxColor.h"

#include <QColor>

#include <array>
#include <cmath>

/// The conversions written a second time, to compare bit for bit.
///
/// Each single-precision operation is done in double and then rounded to float, which for one +, -, * or /
/// always gives the correctly rounded float. No compiler option can fuse or widen these steps.
namespace Reference {

class F
{
public:
    F(float x = 0.0F)
        : m_x(x)
    {
    }
    operator float() const { return m_x; }
    friend F operator+(F a, F b) { return round(double(a.m_x) + double(b.m_x)); }
    friend F operator-(F a, F b) { return round(double(a.m_x) - double(b.m_x)); }
    friend F operator*(F a, F b) { return round(double(a.m_x) * double(b.m_x)); }
    friend F operator/(F a, F b) { return round(double(a.m_x) / double(b.m_x)); }
    friend F operator+(F a, float b) { return a + F(b); }
    friend F operator-(F a, float b) { return a - F(b); }
    friend F operator*(F a, float b) { return a * F(b); }
    friend F operator/(F a, float b) { return a / F(b); }
    friend F operator+(float a, F b) { return F(a) + b; }
    friend F operator-(float a, F b) { return F(a) - b; }
    friend F operator*(float a, F b) { return F(a) * b; }

private:
    static F round(volatile double x) { return F(static_cast<float>(x)); }
    float m_x;
};

using Triple = std::array<float, 3>;

inline F power(F base, float exponent)
{
    float (*volatile function)(float, float) = &::powf;
    return function(base, exponent);
}

inline Triple hsvToRgb(const QLxColor &c)
{
    const F hue = c.hue;
    const F s = c.saturation;
    const F v = c.value;
    F position = hue / 60.0F;
    if (c.hue >= 360.0F)
        position = 5.999833106994629F;
    else if (c.hue < 0.0F)
        position = 0.0F;
    const int sector = std::isnan(c.hue) ? 0 : static_cast<int>(std::trunc(float(position)));
    const F fraction = position - static_cast<float>(sector);
    const F one = 1.0F;
    // The four levels p, q, t, v, and which of them each channel shows in each sector.
    const F levels[] = {v * (one - s), v * (one - s * fraction), v * (one - s * (one - fraction)), v};
    enum { P, Q, T, V };
    static constexpr int shows[6][3] = {{V, T, P}, {Q, V, P}, {P, V, T}, {P, Q, V}, {T, P, V}, {V, P, Q}};
    const auto &row = shows[sector < 6 ? sector : 0];
    return {levels[row[0]], levels[row[1]], levels[row[2]]};
}

inline QLxColor rgbToHsv(const Triple &rgb)
{
    int top = 2;
    if (rgb[0] >= rgb[1] && rgb[0] >= rgb[2])
        top = 0;
    else if (rgb[1] >= rgb[0] && rgb[1] >= rgb[2])
        top = 1;
    static constexpr int minimumOf[3][2] = {{1, 2}, {0, 2}, {1, 0}};
    const float first = rgb[size_t(minimumOf[top][0])];
    const float second = rgb[size_t(minimumOf[top][1])];
    const F smallest = second < first ? second : first;
    const F largest = rgb[size_t(top)];
    F hue = 0.0F;
    if (!(float(smallest) == float(largest))) {
        const F next = rgb[size_t((top + 1) % 3)];
        const F last = rgb[size_t((top + 2) % 3)];
        hue = 60.0F * (next - last) / (largest - smallest);
        if (top > 0)
            hue = hue + 120.0F * float(top);
    }
    const F saturation = float(largest) == 0.0F ? F(0.0F) : (largest - smallest) / largest;
    if (hue < 0.0F)
        hue = hue + 360.0F;
    return {hue, saturation, largest};
}

inline Triple rgbToLab(const Triple &rgb)
{
    static constexpr float matrix[3][3] = {{0.4124564F, 0.3575761F, 0.1804375F},
                                           {0.2126729F, 0.7151522F, 0.072175F},
                                           {0.0193339F, 0.119192F, 0.9503041F}};
    static constexpr float white[3] = {0.9504559636116028F, 1.0F, 1.0890578031539917F};
    F curve[3];
    for (int i = 0; i < 3; ++i) {
        const F u =
            (matrix[i][0] * F(rgb[0]) + matrix[i][1] * F(rgb[1]) + matrix[i][2] * F(rgb[2])) / white[i];
        curve[i] = u > 0.008856452F ? power(u, 0.33333334F) : 7.7870374F * u + 0.13793103F;
    }
    return {116.0F * curve[1] - 16.0F, 500.0F * (curve[0] - curve[1]), 200.0F * (curve[1] - curve[2])};
}

inline Triple labToRgb(const Triple &lab)
{
    static constexpr float white[3] = {0.9504559636116028F, 1.0F, 1.0890578031539917F};
    const F fy = (F(lab[0]) + 16.0F) / 116.0F;
    const F f[3] = {F(lab[1]) / 500.0F + fy, fy, fy - F(lab[2]) / 200.0F};
    F xyz[3];
    for (int i = 0; i < 3; ++i)
        xyz[i] = white[i] * (f[i] > 0.20689656F ? f[i] * f[i] * f[i] : (f[i] - 0.13793103F) * 0.12841856F);
    return {3.2404542F * xyz[0] - 1.5371385F * xyz[1] - 0.4985314F * xyz[2],
            -0.969266F * xyz[0] + 1.8760108F * xyz[1] + 0.041556F * xyz[2],
            0.0556434F * xyz[0] - 0.2040259F * xyz[1] + 1.0572252F * xyz[2]};
}

inline QLxColor labToHsv(const Triple &lab)
{
    return rgbToHsv(labToRgb(lab));
}

inline Triple hsvToLab(const QLxColor &c)
{
    return rgbToLab(hsvToRgb(c));
}

inline float linearToSrgb(float linear)
{
    const F x = linear < 0.0F ? 0.0F : linear;
    return x <= 0.0031308F ? 12.92F * x : 1.055F * power(x, 0.41666666F) - 0.055F;
}

inline float srgbToLinear(float encoded)
{
    const F x = encoded;
    return x <= 0.04045F ? x / 12.92F : power((x + 0.055F) / 1.055F, 2.4F);
}

inline QLxColor eachChannel(const QLxColor &c, float (*curve)(float))
{
    const Triple rgb = hsvToRgb(c);
    return rgbToHsv({curve(rgb[0]), curve(rgb[1]), curve(rgb[2])});
}

inline int level(float channel)
{
    if (channel < 0.0F)
        return 0;
    return channel > 1.0F ? 255 : static_cast<int>(float(F(channel) * 255.0F));
}

/// toQColor with useGamma, else toQColorRaw.
inline QColor display(const QLxColor &c, bool useGamma)
{
    Triple rgb = hsvToRgb(c);
    for (float &channel : rgb) {
        if (std::isnan(channel))
            return {0, 0, 0};
        if (useGamma)
            channel = linearToSrgb(channel);
    }
    return {level(rgb[0]), level(rgb[1]), level(rgb[2])};
}

} // namespace Reference

#endif
