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

// What a loop needs to be vectorised: everything in it inlined, and the promise that no pixel depends on
// another.
#define QLX_ALWAYS __attribute__((always_inline))
#ifdef __clang__
#define QLX_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#else
#define QLX_INDEPENDENT _Pragma("GCC ivdep")
#endif

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

/// quantizeLinear() without branches; bounded channels are known to be in [0, 1].
template <bool Bounded>
QLX_INLINE int level(float channel)
{
    float x = channel;
    if (!Bounded) {
        x = channel > 0.0F ? channel : 0.0F;
        x = x < 1.0F ? x : 1.0F;
    }
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
template <bool Bounded>
QLX_INLINE void fillValueRows(PlaneTarget target, const PlaneColumns &tint)
{
    for (int y = 0; y < target.height; ++y) {
        const float value = target.above(y) / target.rows();
        QRgb *const out = target.row(y);
        QLX_INDEPENDENT
        for (int x = 0; x < target.width; ++x)
            out[x] = pack(level<Bounded>(value * tint.first[x]), level<Bounded>(value * tint.second[x]),
                          level<Bounded>(value * tint.third[x]));
    }
}

QLX_INLINE void fillHuePlane(PlaneTarget target, float hue)
{
    const Rgb k = sectorFactors(hueSector(hue), 0.0F);
    const PlaneColumns tint(target.width);
    for (int x = 0; x < target.width; ++x) {
        const float saturation = static_cast<float>(x) / target.columns();
        tint.first[x] = 1.0F - saturation * k.red;
        tint.second[x] = 1.0F - saturation * k.green;
        tint.third[x] = 1.0F - saturation * k.blue;
    }
    for (float *column : {tint.first, tint.second, tint.third}) {
        for (int x = 0; x < target.width; ++x) // of a hue of NaN
            column[x] = column[x] >= 0.0F ? column[x] : 0.0F;
    }
    fillValueRows<true>(target, tint);
}

QLX_INLINE void fillHueColumns(PlaneTarget target, float itself, const PlaneColumns &k)
{
    const float step = 360.0F / target.columns();
    for (int x = 0; x < target.width; ++x) {
        const Rgb factors = sectorFactors(hueSector(static_cast<float>(x) * step), itself);
        k.first[x] = factors.red;
        k.second[x] = factors.green;
        k.third[x] = factors.blue;
    }
}

QLX_INLINE void fillSaturationPlane(PlaneTarget target, float saturation)
{
    const PlaneColumns tint(target.width);
    fillHueColumns(target, -1.0F, tint);
    for (float *column : {tint.first, tint.second, tint.third}) {
        for (int x = 0; x < target.width; ++x) // the value itself stays even for a saturation of NaN
            column[x] = column[x] < 0.0F ? 1.0F : 1.0F - saturation * column[x];
    }
    if (saturation >= 0.0F && saturation <= 1.0F)
        fillValueRows<true>(target, tint);
    else
        fillValueRows<false>(target, tint);
}

template <bool Bounded>
QLX_INLINE void fillSaturationRows(PlaneTarget target, const PlaneColumns &k, float value)
{
    for (int y = 0; y < target.height; ++y) {
        const float saturation = target.above(y) / target.rows();
        QRgb *const out = target.row(y);
        QLX_INDEPENDENT
        for (int x = 0; x < target.width; ++x)
            out[x] = pack(level<Bounded>(value * (1.0F - saturation * k.first[x])),
                          level<Bounded>(value * (1.0F - saturation * k.second[x])),
                          level<Bounded>(value * (1.0F - saturation * k.third[x])));
    }
}

QLX_INLINE void fillValuePlane(PlaneTarget target, float value)
{
    const PlaneColumns k(target.width);
    fillHueColumns(target, 0.0F, k);
    if (value >= 0.0F && value <= 1.0F)
        fillSaturationRows<true>(target, k, value);
    else
        fillSaturationRows<false>(target, k, value);
}

/// One channel constant, one by column and one by row, each shifted to its place in a pixel.
QLX_INLINE void fillRgbPlane(PlaneTarget target, float constant, int constantShift, int acrossShift,
                             int upShift, float acrossLength, float upLength)
{
    std::vector<QRgb> across(static_cast<size_t>(target.width));
    const QRgb fixed = 0xFF000000U | static_cast<QRgb>(level<false>(constant)) << constantShift;
    for (int x = 0; x < target.width; ++x)
        across[static_cast<size_t>(x)] =
            fixed | static_cast<QRgb>(level<false>(static_cast<float>(x) / acrossLength)) << acrossShift;
    const QRgb *const columns = across.data();
    for (int y = 0; y < target.height; ++y) {
        const QRgb up = static_cast<QRgb>(level<false>(target.above(y) / upLength)) << upShift;
        QRgb *const out = target.row(y);
        QLX_INDEPENDENT
        for (int x = 0; x < target.width; ++x)
            out[x] = columns[x] | up;
    }
}

/// Keeps a loop of look-ups scalar: gather instructions are slower than that on many processors.
QLX_INLINE size_t opaque(size_t number)
{
    __asm__("" : "+r"(number));
    return number;
}

/// A row of encoded pixels; channels(x) gives the linear ones.
template <typename Channels>
QLX_INLINE void encodeRow(QRgb *out, int width, const quint32 *table, Channels channels)
{
    using Q = SrgbQuantizer;
    constexpr int Chunk = 128;
    quint32 keys[3][Chunk];
    quint32 entries[3][Chunk];
    for (int start = 0; start < width; start += Chunk) {
        const int count = std::min(width - start, Chunk);
        QLX_INDEPENDENT
        for (int i = 0; i < count; ++i) {
            const Rgb c = channels(start + i);
            keys[0][i] = Q::keyOf(c.red);
            keys[1][i] = Q::keyOf(c.green);
            keys[2][i] = Q::keyOf(c.blue);
        }
        for (int i = 0; i < count; ++i) {
            entries[0][i] = table[Q::indexOf(opaque(Q::bucketOf(keys[0][i])))];
            entries[1][i] = table[Q::indexOf(opaque(Q::bucketOf(keys[1][i])))];
            entries[2][i] = table[Q::indexOf(opaque(Q::bucketOf(keys[2][i])))];
        }
        QLX_INDEPENDENT
        for (int i = 0; i < count; ++i) {
            const quint32 red = Q::finish(keys[0][i], entries[0][i]) & 0xFF0000U;
            const quint32 green = Q::finish(keys[1][i], entries[1][i]) >> 8U & 0xFF00U;
            const quint32 blue = Q::finish(keys[2][i], entries[2][i]) >> 16U;
            out[start + i] = 0xFF000000U | red | green | blue;
        }
    }
}

QLX_INLINE float chroma(float position)
{
    return (position - 0.5F) * LabChromaRange;
}

QLX_INLINE void fillLstarPlane(PlaneTarget target, float lstar, const quint32 *table)
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
        encodeRow(target.row(y), target.width, table, [&](int i) QLX_ALWAYS {
            return Rgb{xy.first[i] - red, xy.second[i] + green, xy.third[i] + blue};
        });
    }
}

QLX_INLINE void fillAstarPlane(PlaneTarget target, float astar, const quint32 *table)
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
        encodeRow(target.row(row), target.width, table, [&](int i) QLX_ALWAYS {
            const float z = WhiteZ * labCurveInverse(fy - columns.first[i]);
            return Rgb{red - 0.4985314F * z, green + 0.041556F * z, blue + 1.0572252F * z};
        });
    }
}

QLX_INLINE void fillBstarPlane(PlaneTarget target, float bstar, const quint32 *table)
{
    const PlaneColumns columns(target.width);
    for (int i = 0; i < target.width; ++i)
        columns.first[i] = chroma(static_cast<float>(i) / target.rows()) / 500.0F;
    for (int row = 0; row < target.height; ++row) {
        const float fy = (target.above(row) / target.columns() * 100.0F + 16.0F) / 116.0F;
        const float y = WhiteY * labCurveInverse(fy);
        const float z = WhiteZ * labCurveInverse(fy - bstar / 200.0F);
        encodeRow(target.row(row), target.width, table, [&](int i) QLX_ALWAYS {
            const float x = WhiteX * labCurveInverse(columns.first[i] + fy);
            return Rgb{3.2404542F * x - 1.5371385F * y - 0.4985314F * z,
                       -0.969266F * x + 1.8760108F * y + 0.041556F * z,
                       0.0556434F * x - 0.2040259F * y + 1.0572252F * z};
        });
    }
}

QLX_INLINE void fillPlane(PlaneTarget target, int plane, float constant, const quint32 *table)
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
