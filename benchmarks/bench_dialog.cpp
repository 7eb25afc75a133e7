// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"
#include "QLxColorDialog_p.h"

#include <QApplication>
#include <QColorDialog>

#include <benchmark/benchmark.h>

#include <string>

// What one edit costs in the colour dialog, until everything is painted, beside Qt's dialog taking one
// colour.

namespace {

template <typename Run>
void add(const std::string &name, Run run)
{
    benchmark::RegisterBenchmark(("dialog/" + name).c_str(), run)->Unit(benchmark::kMicrosecond);
}

/// Runs edit(x) with x going back and forth, each time until nothing is left to paint.
template <typename Edit>
void measure(benchmark::State &state, QWidget &dialog, Edit edit)
{
    dialog.show();
    QApplication::processEvents();
    float x = 0.3F;
    for (auto _ : state) {
        x = x < 0.35F ? 0.4F : 0.3F;
        edit(x);
        QApplication::processEvents();
    }
}

template <typename Edit>
void addEdit(const std::string &name, int mode, Edit edit)
{
    add(name, [=](benchmark::State &state) {
        int left = mode;
        QLxColorDialog dialog({200.0F, 0.6F, 0.5F}, nullptr, nullptr);
        for (QRadioButton *const button : {dialog._hueButton, dialog._saturationButton, dialog._valueButton,
                                           dialog._redButton, dialog._greenButton, dialog._blueButton,
                                           dialog._lstarButton, dialog._astarButton, dialog._bstarButton})
            button->setChecked(left-- == 0);
        measure(state, dialog, [&](float x) { edit(dialog, x); });
    });
}

} // namespace

void addBenchmarks()
{
    const auto slide = [](QLxColorDialog &dialog, float x) { dialog._redSlider->setValue(x); };
    addEdit("red_slider_in_hue_mode", 0, slide);
    addEdit("red_slider_in_lstar_mode", 6, slide);
    addEdit("hue_spin_box", 0, [](QLxColorDialog &dialog, float x) {
        dialog._hueSpiner->setValue(static_cast<double>(x) * 360.0);
    });
    add("qcolordialog", [](benchmark::State &state) {
        QColorDialog dialog;
        dialog.setOption(QColorDialog::DontUseNativeDialog);
        measure(state, dialog,
                [&](float x) { dialog.setCurrentColor(QColor::fromRgbF(static_cast<qreal>(x), 0.4, 0.5)); });
    });
}
