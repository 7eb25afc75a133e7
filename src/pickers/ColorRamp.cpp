// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ColorRamp_p.h"

#include "ColorMath_p.h"
#include "QLxColorSpaces.h"
#include "SrgbQuantizer_p.h"

namespace QLx {

namespace {

QRgb pixelRaw(const Rgb &c)
{
    return holdsNan(c) ? qRgb(0, 0, 0)
                       : qRgb(quantizeLinear(c.red), quantizeLinear(c.green), quantizeLinear(c.blue));
}

template <typename Pixel>
void fill(int divisions, QRgb *pixels, int count, Pixel pixel)
{
    const auto n = static_cast<float>(divisions);
    for (int i = 0; i < count; ++i)
        pixels[i] = pixel(static_cast<float>(i) / n);
}

} // namespace

bool fillColorRamp(int channel, const QLxColor &reference, int divisions, QRgb *pixels, int count)
{
    const auto paint = [&](auto pixel) { fill(divisions, pixels, count, pixel); };
    const HueSector sector = hueSector(reference.hue);
    switch (channel) {
    case 0:
        paint([](float t) { return pixelRaw(hsvToRgb(hueSector(360.0F * t), 1.0F, 1.0F)); });
        return true;
    case 1:
        if (colorUseGamma) {
            const SrgbQuantizer &encode = SrgbQuantizer::instance();
            paint([&](float t) {
                const Rgb c = hsvToRgb(sector, t, reference.value);
                return holdsNan(c) ? qRgb(0, 0, 0) : qRgb(encode(c.red), encode(c.green), encode(c.blue));
            });
        } else {
            paint([&](float t) { return pixelRaw(hsvToRgb(sector, t, reference.value)); });
        }
        return true;
    case 2:
        paint([&](float t) { return pixelRaw(hsvToRgb(sector, reference.saturation, t)); });
        return true;
    // One channel alone keeps its exact value on the way through HSV.
    case 3:
        paint([](float t) { return qRgb(quantizeLinear(t), 0, 0); });
        return true;
    case 4:
        paint([](float t) { return qRgb(0, quantizeLinear(t), 0); });
        return true;
    case 5:
        paint([](float t) { return qRgb(0, 0, quantizeLinear(t)); });
        return true;
    default:
        break;
    }
    if (channel < 6 || channel > 8)
        return false;
    // L*a*b* goes through HSV like every colour here, which may move its last bits.
    const Lab lab = rgbToLab(hsvToRgb(reference));
    const auto pixel = [](const Lab &c) { return pixelRaw(hsvToRgb(rgbToHsv(labToRgb(c)))); };
    if (channel == 6)
        paint([&](float t) { return pixel({100.0F * t, lab.astar, lab.bstar}); });
    else if (channel == 7)
        paint([&](float t) { return pixel({lab.lstar, LabChromaRange * (t - 0.5F), lab.bstar}); });
    else
        paint([&](float t) { return pixel({lab.lstar, lab.astar, LabChromaRange * (t - 0.5F)}); });
    return true;
}

void fillDisabledRamp(int divisions, QRgb *pixels, int count)
{
    fill(divisions, pixels, count, [](float t) {
        const int level = quantizeLinear(0.1F + 0.4F * t);
        return qRgb(level, level, level);
    });
}

} // namespace QLx
