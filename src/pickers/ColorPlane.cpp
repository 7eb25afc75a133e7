// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ColorPlane_p.h"

#include "ColorChannel_p.h"
#include "PlaneKernels_p.h"

#include <QImage>

namespace QLx {

namespace {

using Kernel = void (*)(PlaneTarget, int plane, float constant, const quint32 *table);

void plainKernel(PlaneTarget target, int plane, float constant, const quint32 *table)
{
    fillPlane(target, plane, constant, table);
}

struct NamedKernel
{
    const char *name;
    Kernel run;
};

#if defined(__x86_64__) && defined(__GNUC__)
#ifdef __clang__
#define QLX_AVX512 "avx512f,avx512bw,avx512dq,avx512vl"
#else // uses half the width unless told
#define QLX_AVX512 "avx512f,avx512bw,avx512dq,avx512vl,prefer-vector-width=512"
#endif

[[gnu::target("avx2")]] void avx2Kernel(PlaneTarget target, int plane, float constant, const quint32 *table)
{
    fillPlane(target, plane, constant, table);
}

[[gnu::target(QLX_AVX512)]] void avx512Kernel(PlaneTarget target, int plane, float constant,
                                              const quint32 *table)
{
    fillPlane(target, plane, constant, table);
}

std::vector<NamedKernel> findKernels()
{
    std::vector<NamedKernel> found{{"plain", plainKernel}};
    if (__builtin_cpu_supports("avx2"))
        found.push_back({"AVX2", avx2Kernel});
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl"))
        found.push_back({"AVX-512", avx512Kernel});
    return found;
}
#else
std::vector<NamedKernel> findKernels()
{
    return {{"plain", plainKernel}};
}
#endif

const std::vector<NamedKernel> &kernels()
{
    static const std::vector<NamedKernel> all = findKernels();
    return all;
}

Kernel &chosenKernel()
{
    static Kernel chosen = kernels().back().run;
    return chosen;
}

/// The channel along each axis, from left to right and from bottom to top.
struct PlaneAxes
{
    int across;
    int up;
};

constexpr PlaneAxes Axes[] = {{1, 2}, {0, 2}, {0, 1}, {4, 5}, {3, 5}, {3, 4}, {7, 8}, {8, 6}, {7, 6}};

/// Where a number of pixels, usually not whole, falls in a row of them.
int markerPixel(float position, int pixels)
{
    if (!(position > 0.0F))
        return 0;
    return position < static_cast<float>(pixels - 1) ? static_cast<int>(position) : pixels - 1;
}

} // namespace

void fillColorPlane(int plane, float constant, QImage &image)
{
    if (image.isNull() || plane < 0 || plane > 8)
        return;
    const PlaneTarget target{reinterpret_cast<QRgb *>(image.bits()), image.width(), image.height(),
                             image.bytesPerLine() / static_cast<int>(sizeof(QRgb))};
    chosenKernel()(target, plane, constant, SrgbQuantizer::instance().table());
}

std::array<float, 3> pickFromPlane(int plane, float constant, const QPoint &at, const QSize &size)
{
    const auto limited = [](float x) { return x > 0.0F ? std::min(x, 1.0F) : 0.0F; };
    const float u = limited(static_cast<float>(at.x()) / static_cast<float>(size.width()));
    const float v = limited(1.0F - static_cast<float>(at.y()) / static_cast<float>(size.height()));
    std::array<float, 3> channels{};
    const auto set = [&](int channel, float value) { channels[static_cast<size_t>(channel % 3)] = value; };
    set(plane, constant);
    set(Axes[plane].across, colorChannel(Axes[plane].across)->fromPosition(u));
    set(Axes[plane].up, colorChannel(Axes[plane].up)->fromPosition(v));
    return channels;
}

QPoint markerOnPlane(int plane, const QLxColor &color, const QSize &size)
{
    if (plane < 0 || plane > 8)
        return {0, 0};
    const PlaneAxes axes = Axes[plane];
    const float across = colorChannel(axes.across)->read(color);
    const float up = colorChannel(axes.up)->read(color);
    float fx = across;
    if (axes.across == 0)
        fx = across / 360.0F;
    else if (axes.across >= 7)
        fx = across / LabChromaRange + 0.5F;
    float fy = 1.0F - up;
    if (axes.up == 6)
        fy = 1.0F - up / 100.0F;
    else if (axes.up == 8)
        fy = 0.5F - up / LabChromaRange;
    return {markerPixel(static_cast<float>(size.width()) * fx, size.width()),
            markerPixel(static_cast<float>(size.height()) * fy, size.height())};
}

int planeKernelCount()
{
    return static_cast<int>(kernels().size());
}

const char *planeKernelName(int kernel)
{
    return kernels().at(static_cast<size_t>(kernel)).name;
}

void usePlaneKernel(int kernel)
{
    chosenKernel() = kernels().at(static_cast<size_t>(kernel)).run;
}

} // namespace QLx
