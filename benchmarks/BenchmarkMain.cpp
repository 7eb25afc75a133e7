// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

namespace {

/// The processor's name as the kernel gives it.
std::string cpuModel()
{
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);) {
        const auto colon = line.find(": ");
        if (line.rfind("model name", 0) == 0 && colon != std::string::npos)
            return line.substr(colon + 2);
    }
    return "unknown processor";
}

std::string compiler()
{
#if defined(__clang__)
    return "Clang " __clang_version__;
#elif defined(__GNUC__)
    return "GCC " __VERSION__;
#else
    return "unknown compiler";
#endif
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    // What the numbers were taken with, for make_table.py.
    benchmark::AddCustomContext("cpu_model", cpuModel());
    benchmark::AddCustomContext("compiler", compiler());
    benchmark::AddCustomContext("build_type", QLX_BUILD_TYPE);
    benchmark::AddCustomContext("qt_version", qVersion());
    addBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
