// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"
#include "ColorMath_p.h"
#include "QLxColorSpaces.h"
#include "Registers.h"
#include "SrgbQuantizer_p.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

// Conversions per second, over many different colours of the RGB gamut.
//
// On x86 each is measured twice. Qt's AVX2 code may return with the upper halves of the vector registers
// in use, and then SSE code, which this library is, runs slower until something clears them.

namespace {

constexpr int ColorCount = 4096;

/// The same colours in every form the conversions take.
struct Colors
{
    std::vector<QLxColor> hsv;
    std::vector<QLx::Rgb> rgb;
    std::vector<QLx::Lab> lab;
    std::vector<float> linear;
    std::vector<float> encoded;

    Colors()
    {
        std::mt19937 generator(20260);
        // 24 random bits are exact in a float; the distributions of <random> differ between libraries.
        const auto random = [&] { return static_cast<float>(generator() >> 8U) / 16777216.0F; };
        for (int i = 0; i < ColorCount; ++i) {
            const QLx::Rgb color{random(), random(), random()};
            rgb.push_back(color);
            hsv.push_back(QLx::rgbToHsv(color));
            lab.push_back(QLx::rgbToLab(color));
            linear.push_back(color.red);
            encoded.push_back(QLx::linearToSrgb(color.red));
        }
    }
};

/// A benchmark "conversion/NAME/STATE" for each state of the registers. Inputs must outlive the run.
template <typename Input, typename Convert>
void add(const std::string &name, const std::vector<Input> &inputs, Convert convert, bool gamma = true)
{
    for (const Registers &registers : registerStates()) {
        const auto run = [=, &inputs](benchmark::State &state) {
            QLx::colorUseGamma = gamma;
            for (auto _ : state) {
                registers.enter();
                for (const Input &input : inputs)
                    benchmark::DoNotOptimize(convert(input));
            }
            state.SetItemsProcessed(state.iterations() * ColorCount);
            QLx::colorUseGamma = true;
        };
        benchmark::RegisterBenchmark(("conversion/" + name + '/' + registers.name).c_str(), run);
    }
}

} // namespace

void addBenchmarks()
{
    static const Colors colors;
    add("hsvToRgb", colors.hsv, [](const QLxColor &c) {
        QLx::Rgb rgb{};
        QLx::hsvToRgb(c, rgb.red, rgb.green, rgb.blue);
        return rgb;
    });
    add("rgbToHsv", colors.rgb, [](const QLx::Rgb &c) { return QLx::rgbToHsv(c.red, c.green, c.blue); });
    add("rgbToLab", colors.rgb, [](const QLx::Rgb &c) {
        QLx::Lab lab{};
        QLx::rgbToLab(c.red, c.green, c.blue, lab.lstar, lab.astar, lab.bstar);
        return lab;
    });
    add("labToHsv", colors.lab, [](const QLx::Lab &c) {
        QLxColor hsv;
        QLx::labToHsv(c.lstar, c.astar, c.bstar, hsv.hue, hsv.saturation, hsv.value);
        return hsv;
    });
    add("linearToSrgb", colors.linear, [](float x) { return QLx::linearToSrgb(x); });
    add("srgbToLinear", colors.encoded, [](float x) { return QLx::srgbToLinear(x); });
    add(
        "toQColor, encoded", colors.hsv, [](const QLxColor &c) { return QLx::toQColor(c); }, true);
    add(
        "toQColor, linear", colors.hsv, [](const QLxColor &c) { return QLx::toQColor(c); }, false);
    add("toQColorRaw", colors.hsv, [](const QLxColor &c) { return QLx::toQColorRaw(c); });
    add("toQColorF", colors.hsv, [](const QLxColor &c) { return QLx::toQColorF(c); });

    // One channel to 8 encoded bits, both ways.
    add("SrgbQuantizer", colors.linear,
        [encode = &QLx::SrgbQuantizer::instance()](float x) { return (*encode)(x); });
    add("quantizeLinear(linearToSrgb)", colors.linear,
        [](float x) { return QLx::quantizeLinear(QLx::linearToSrgb(x)); });
}
