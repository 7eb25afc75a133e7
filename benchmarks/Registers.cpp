// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Registers.h"

#include <QImage>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>

namespace {

__attribute__((target("avx"))) void clearUpperHalves()
{
    _mm256_zeroupper();
}

void paint()
{
    static QImage image(64, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
}

} // namespace

const std::vector<Registers> &registerStates()
{
    static const std::vector<Registers> states =
        __builtin_cpu_supports("avx2")
            ? std::vector<Registers>{{"clean", clearUpperHalves}, {"after_painting", paint}}
            : std::vector<Registers>{{"clean", [] {}}};
    return states;
}
#else
const std::vector<Registers> &registerStates()
{
    static const std::vector<Registers> states{{"clean", [] {}}};
    return states;
}
#endif
