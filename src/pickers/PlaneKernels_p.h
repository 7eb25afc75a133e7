// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef PLANEKERNELS_P_H
#define PLANEKERNELS_P_H

#include "ColorMath_p.h"
#include "SrgbQuantizer_p.h"

#include <QColor>

#include <vector>

// The planes of ColorPlane_p.h, written so that the compiler can vectorise them and compiled once for each
// kind of processor. What depends on a column only is computed once into arrays, what depends on a row only
// once per row. The loops over pixels do the remaining steps of the conversion in its own order, so the
// results are the same bits as those of one pixel at a time.
#define QLX_INLINE inline __attribute__((always_inline))

namespace QLx {

/// A plane to fill: width times height pixels, rows of stride pixels.
struct PlaneTarget
{
    QRgb *pixels;
    int width;
    int height;
    int stride;

    QRgb *row(int y) const { return pixels + static_cast<qptrdiff>(y) * stride; }
    float columns() const { return static_cast<float>(width); }
    float rows() const { return static_cast<float>(height); }
    /// How far row y is from the bottom.
    float above(int y) const { return static_cast<float>(height - 1 - y); }
};

/// Three numbers for each column.
struct PlaneColumns
{
    explicit PlaneColumns(int width)
        : m_values(3 * static_cast<size_t>(width))
        , first(m_values.data())
        , second(first + width)
        , third(second + width)
    {
    }

private:
    std::vector<float> m_values;

public:
    float *first;
    float *second;
    float *third;
};

QLX_INLINE QRgb pack(int red, int green, int blue)
{
    return 0xFF000000U | static_cast<QRgb>(red) << 16U | static_cast<QRgb>(green) << 8U |
           static_cast<QRgb>(blue);
}

/// quantizeLinear() without branches.
QLX_INLINE int level(float channel)
{
    float x = channel > 0.0F ? channel : 0.0F;
    x = x < 1.0F ? x : 1.0F;
    return static_cast<int>(x * 255.0F);
}

/// By sector, what takes the place of k in value * (1 - saturation * k) in each channel: 1, the fraction, one
/// minus the fraction, or that which is given for the channel that shows the value itself.
QLX_INLINE Rgb sectorFactors(const HueSector &sector, float itself)
{
    const float f = sector.fraction;
    const float g = 1.0F - f;
    switch (sector.index) {
    case 1:
        return {f, itself, 1.0F};
    case 2:
        return {1.0F, itself, g};
    case 3:
        return {1.0F, f, itself};
    case 4:
        return {g, 1.0F, itself};
    case 5:
        return {itself, 1.0F, f};
    default:
        return {itself, g, 1.0F};
    }
}

/// Hue or saturation constant: every pixel is its row's value times its column's 1 - saturation * k.
QLX_INLINE void fillValueRows(const PlaneTarget &target, const PlaneColumns &tint)
{
    for (int y = 0; y < target.height; ++y) {
        const float value = target.above(y) / target.rows();
        QRgb *const out = target.row(y);
        for (int x = 0; x < target.width; ++x)
            out[x] = pack(level(value * tint.first[x]), level(value * tint.second[x]),
                          level(value * tint.third[x]));
    }
}

QLX_INLINE void fillHuePlane(const PlaneTarget &target, float hue)
{
    const Rgb k = sectorFactors(hueSector(hue), 0.0F);
    const PlaneColumns tint(target.width);
    for (int x = 0; x < target.width; ++x) {
        const float saturation = static_cast<float>(x) / target.columns();
        tint.first[x] = 1.0F - saturation * k.red;
        tint.second[x] = 1.0F - saturation * k.green;
        tint.third[x] = 1.0F - saturation * k.blue;
    }
    fillValueRows(target, tint);
}

QLX_INLINE void fillHueColumns(const PlaneTarget &target, float itself, const PlaneColumns &k)
{
    const float step = 360.0F / target.columns();
    for (int x = 0; x < target.width; ++x) {
        const Rgb factors = sectorFactors(hueSector(static_cast<float>(x) * step), itself);
        k.first[x] = factors.red;
        k.second[x] = factors.green;
        k.third[x] = factors.blue;
    }
}

QLX_INLINE void fillSaturationPlane(const PlaneTarget &target, float saturation)
{
    const PlaneColumns tint(target.width);
    fillHueColumns(target, -1.0F, tint);
    for (float *column : {tint.first, tint.second, tint.third}) {
        for (int x = 0; x < target.width; ++x) // the value itself stays even for a saturation of NaN
            column[x] = column[x] < 0.0F ? 1.0F : 1.0F - saturation * column[x];
    }
    fillValueRows(target, tint);
}

QLX_INLINE void fillValuePlane(const PlaneTarget &target, float value)
{
    const PlaneColumns k(target.width);
    fillHueColumns(target, 0.0F, k);
    for (int y = 0; y < target.height; ++y) {
        const float saturation = target.above(y) / target.rows();
        QRgb *const out = target.row(y);
        for (int x = 0; x < target.width; ++x)
            out[x] = pack(level(value * (1.0F - saturation * k.first[x])),
                          level(value * (1.0F - saturation * k.second[x])),
                          level(value * (1.0F - saturation * k.third[x])));
    }
}

/// One channel constant, one by column and one by row, each shifted to its place in a pixel.
QLX_INLINE void fillRgbPlane(const PlaneTarget &target, float constant, int constantShift, int acrossShift,
                             int upShift, float acrossLength, float upLength)
{
    std::vector<QRgb> across(static_cast<size_t>(target.width));
    const QRgb fixed = 0xFF000000U | static_cast<QRgb>(level(constant)) << constantShift;
    for (int x = 0; x < target.width; ++x)
        across[static_cast<size_t>(x)] =
            fixed | static_cast<QRgb>(level(static_cast<float>(x) / acrossLength)) << acrossShift;
    const QRgb *const columns = across.data();
    for (int y = 0; y < target.height; ++y) {
        const QRgb up = static_cast<QRgb>(level(target.above(y) / upLength)) << upShift;
        QRgb *const out = target.row(y);
        for (int x = 0; x < target.width; ++x)
            out[x] = columns[x] | up;
    }
}

/// The end of every L*a*b* pixel.
QLX_INLINE QRgb encoded(const quint32 *table, float red, float green, float blue)
{
    return pack(SrgbQuantizer::look(table, red), SrgbQuantizer::look(table, green),
                SrgbQuantizer::look(table, blue));
}

QLX_INLINE float chroma(float position)
{
    return (position - 0.5F) * LabChromaRange;
}

QLX_INLINE void fillLstarPlane(const PlaneTarget &target, float lstar, const quint32 *table)
{
    const PlaneColumns xy(target.width); // what X and Y contribute to each channel
    const float fy = (lstar + 16.0F) / 116.0F;
    const float whiteY = WhiteY * labCurveInverse(fy);
    for (int i = 0; i < target.width; ++i) {
        const float fx = chroma(static_cast<float>(i) / target.columns()) / 500.0F + fy;
        const float x = WhiteX * labCurveInverse(fx);
        xy.first[i] = 3.2404542F * x - 1.5371385F * whiteY;
        xy.second[i] = -0.969266F * x + 1.8760108F * whiteY;
        xy.third[i] = 0.0556434F * x - 0.2040259F * whiteY;
    }
    for (int y = 0; y < target.height; ++y) {
        const float fz = fy - chroma(target.above(y) / target.rows()) / 200.0F;
        const float z = WhiteZ * labCurveInverse(fz);
        const float red = 0.4985314F * z;
        const float green = 0.041556F * z;
        const float blue = 1.0572252F * z;
        QRgb *const out = target.row(y);
        for (int i = 0; i < target.width; ++i)
            out[i] = encoded(table, xy.first[i] - red, xy.second[i] + green, xy.third[i] + blue);
    }
}

QLX_INLINE void fillAstarPlane(const PlaneTarget &target, float astar, const quint32 *table)
{
    const PlaneColumns columns(target.width);
    for (int i = 0; i < target.width; ++i)
        columns.first[i] = chroma(static_cast<float>(i) / target.rows()) / 200.0F;
    for (int row = 0; row < target.height; ++row) {
        const float fy = (target.above(row) / target.columns() * 100.0F + 16.0F) / 116.0F;
        const float x = WhiteX * labCurveInverse(astar / 500.0F + fy);
        const float y = WhiteY * labCurveInverse(fy);
        const float red = 3.2404542F * x - 1.5371385F * y;
        const float green = -0.969266F * x + 1.8760108F * y;
        const float blue = 0.0556434F * x - 0.2040259F * y;
        QRgb *const out = target.row(row);
        for (int i = 0; i < target.width; ++i) {
            const float z = WhiteZ * labCurveInverse(fy - columns.first[i]);
            out[i] = encoded(table, red - 0.4985314F * z, green + 0.041556F * z, blue + 1.0572252F * z);
        }
    }
}

QLX_INLINE void fillBstarPlane(const PlaneTarget &target, float bstar, const quint32 *table)
{
    const PlaneColumns columns(target.width);
    for (int i = 0; i < target.width; ++i)
        columns.first[i] = chroma(static_cast<float>(i) / target.rows()) / 500.0F;
    for (int row = 0; row < target.height; ++row) {
        const float fy = (target.above(row) / target.columns() * 100.0F + 16.0F) / 116.0F;
        const float y = WhiteY * labCurveInverse(fy);
        const float z = WhiteZ * labCurveInverse(fy - bstar / 200.0F);
        QRgb *const out = target.row(row);
        for (int i = 0; i < target.width; ++i) {
            const float x = WhiteX * labCurveInverse(columns.first[i] + fy);
            out[i] = encoded(table, 3.2404542F * x - 1.5371385F * y - 0.4985314F * z,
                             -0.969266F * x + 1.8760108F * y + 0.041556F * z,
                             0.0556434F * x - 0.2040259F * y + 1.0572252F * z);
        }
    }
}

QLX_INLINE void fillPlane(const PlaneTarget &target, int plane, float constant, const quint32 *table)
{
    switch (plane) {
    case 0:
        return fillHuePlane(target, constant);
    case 1:
        return fillSaturationPlane(target, constant);
    case 2:
        return fillValuePlane(target, constant);
    case 3: // columns by the height and rows by the width, here and on the last two
        return fillRgbPlane(target, constant, 16, 8, 0, target.rows(), target.columns());
    case 4:
        return fillRgbPlane(target, constant, 8, 16, 0, target.columns(), target.rows());
    case 5:
        return fillRgbPlane(target, constant, 0, 16, 8, target.columns(), target.rows());
    case 6:
        return fillLstarPlane(target, constant, table);
    case 7:
        return fillAstarPlane(target, constant, table);
    default:
        return fillBstarPlane(target, constant, table);
    }
}

} // namespace QLx

#endif
