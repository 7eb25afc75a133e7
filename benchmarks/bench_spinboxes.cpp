// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"
#include "QLxDoubleSpiner.h"
#include "QLxSceneUnit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScriptEngine>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// What typing into a double spin box costs, and showing another unit, beside QDoubleSpinBox where it can do
// the same. A bare script engine is the floor: no expression is evaluated without one of its own.

namespace {

constexpr int BoxCount = 1000;

struct Input
{
    const char *text;
    const char *other; ///< Of the same kind. Taking turns keeps Qt from answering out of its cache.
    double value;      ///< What the text makes of 0.
};
constexpr Input Number{"12.5", "13.5", 12.5};
constexpr Input Expression{"2*(3+4)", "2*(3+5)", 14.0};
constexpr Input Relative{"+=5", "+=6", 5.0};

template <typename Run>
void add(const std::string &name, Run run)
{
    benchmark::RegisterBenchmark(("spinbox/" + name).c_str(), run)->Unit(benchmark::kMicrosecond);
}

/// A spin box with the settings of ours, so that only the classes differ.
template <typename Box>
void setUp(Box *box)
{
    box->setKeyboardTracking(false);
    box->setLocale(QLocale::c());
    box->setDecimals(10);
    box->setRange(-2147483647.0, 2147483647.0);
    box->setValue(0.0);
}

template <typename Box>
void validate(benchmark::State &state, const Input &input)
{
    Box box;
    setUp(&box);
    const QString texts[] = {QString::fromLatin1(input.text), QString::fromLatin1(input.other)};
    int turn = 0;
    for (auto _ : state) {
        QString text = texts[turn ^= 1];
        int pos = text.size();
        if (box.validate(text, pos) != QValidator::Acceptable) {
            state.SkipWithError("the text was not accepted");
            break;
        }
    }
}

/// From 0 to the text's value: the text replaces what is in the line edit, and Return ends the editing.
template <typename Box>
void commit(benchmark::State &state, const Input &input)
{
    Box box;
    setUp(&box);
    auto *const edit = box.template findChild<QLineEdit *>();
    const QString text = QString::fromLatin1(input.text);
    for (auto _ : state) {
        box.setValue(0.0);
        edit->setText(text);
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&box, &key);
        if (box.value() != input.value) {
            state.SkipWithError("the text was not committed");
            break;
        }
    }
}

void evaluate(benchmark::State &state, const Input &input)
{
    const QString text = QString::fromLatin1(input.text);
    for (auto _ : state) {
        QScriptEngine engine;
        benchmark::DoNotOptimize(engine.evaluate(text).toNumber());
    }
}

/// Gives all boxes another unit, again and again. They are not shown, so nothing is painted.
template <typename Box, typename Prepare, typename Show>
void refreshUnit(benchmark::State &state, Prepare prepare, Show show)
{
    std::vector<Box> boxes(BoxCount);
    for (Box &box : boxes) {
        setUp(&box);
        prepare(&box);
    }
    bool centimetres = false;
    for (auto _ : state) {
        centimetres = !centimetres;
        show(boxes, centimetres);
        if (boxes.back().suffix() != QLatin1String(centimetres ? " cm" : " mm")) {
            state.SkipWithError("the boxes do not show the unit");
            break;
        }
    }
    QLx::setSceneUnit(1.0F);
}

void addRefresh()
{
    add("unit of 1000 boxes/ours", [](benchmark::State &state) {
        refreshUnit<QLxDoubleSpiner>(
            state, [](QLxDoubleSpiner *box) { box->setDisplaySceneUnit(true); },
            [](std::vector<QLxDoubleSpiner> & /*boxes*/, bool centimetres) {
                QLx::setSceneUnit(centimetres ? 10.0F : 1.0F);
                QLxDoubleSpiner::updateInstancesWithSceneUnit();
            });
    });
    add("unit of 1000 boxes/QDoubleSpinBox", [](benchmark::State &state) {
        refreshUnit<QDoubleSpinBox>(
            state, [](QDoubleSpinBox *box) { box->setSuffix(QStringLiteral(" mm")); },
            [](std::vector<QDoubleSpinBox> &boxes, bool centimetres) {
                const QString suffix = centimetres ? QStringLiteral(" cm") : QStringLiteral(" mm");
                for (QDoubleSpinBox &box : boxes)
                    box.setSuffix(suffix);
            });
    });
}

void addTexts()
{
    for (const Input &input : {Number, Expression, Relative}) {
        const std::string text = input.text;
        const auto with = [=](auto measure) {
            return [=](benchmark::State &state) { measure(state, input); };
        };
        const bool isNumber = text == Number.text;
        const bool isScript = text != Relative.text;
        add("validate " + text + "/ours", with(validate<QLxDoubleSpiner>));
        if (isNumber)
            add("validate " + text + "/QDoubleSpinBox", with(validate<QDoubleSpinBox>));
        else if (isScript)
            add("validate " + text + "/QScriptEngine", with(evaluate));
        add("commit " + text + "/ours", with(commit<QLxDoubleSpiner>));
        if (isNumber)
            add("commit " + text + "/QDoubleSpinBox", with(commit<QDoubleSpinBox>));
        if (isScript)
            add("commit " + text + "/QScriptEngine", with(evaluate));
    }
}

} // namespace

/// Benchmarks "spinbox/ROW/ours", ".../QDoubleSpinBox" and ".../QScriptEngine".
void addBenchmarks()
{
    addTexts();
    addRefresh();
}
