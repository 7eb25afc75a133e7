// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "BenchmarkMain.h"
#include "QLxColorDialog_p.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScreen>

#include <benchmark/benchmark.h>

#include <string>

// What the pipette does on a real display while it follows the pointer, and when it picks. Offscreen there is
// nothing to measure.

namespace {

class Picking
{
public:
    Picking()
    {
        m_dialog.move(300, 200);
        m_dialog.show();
        QApplication::processEvents();
        start();
    }

    void start()
    {
        if (!m_dialog._pick_color->isChecked())
            m_dialog._pick_color->click();
        m_overlay = QWidget::mouseGrabber();
        QApplication::processEvents();
    }
    void tick() { QMetaObject::invokeMethod(&m_dialog, "preGrabScreenColor"); }
    void pick()
    {
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(50, 50), QCursor::pos(), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_overlay, &release);
    }
    /// Another place outside the dialog, and another colour before the next pick.
    void move()
    {
        m_x = m_x == 100 ? 140 : 100;
        QCursor::setPos(m_x, 100);
        QApplication::processEvents();
    }
    void changeColor()
    {
        m_dialog.setColor({static_cast<float>(m_x), 0.5F, 0.5F});
        QApplication::processEvents();
    }

private:
    QLxColorDialog m_dialog{{}, nullptr, nullptr};
    QWidget *m_overlay = nullptr;
    int m_x = 100;
};

/// Times only run(); prepare() comes before each.
template <typename Prepare, typename Run>
void add(const std::string &name, Prepare prepare, Run run)
{
    benchmark::RegisterBenchmark(("pipette/" + name).c_str(),
                                 [=](benchmark::State &state) {
                                     Picking picking;
                                     for (auto _ : state) {
                                         prepare(picking);
                                         QElapsedTimer timer;
                                         timer.start();
                                         run(picking);
                                         state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) *
                                                                1e-9);
                                     }
                                 })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

void addBenchmarks()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    const auto move = [](Picking &picking) { picking.move(); };
    add("tick", move, [](Picking &picking) { picking.tick(); });
    add(
        "tick_of_a_resting_pointer", [](Picking &) {}, [](Picking &picking) { picking.tick(); });
    add(
        "sample",
        [](Picking &picking) {
            picking.changeColor();
            picking.start();
            picking.move();
        },
        [](Picking &picking) { picking.pick(); });
    add("grab_one_pixel", move, [](Picking &) {
        const QImage grabbed = QGuiApplication::primaryScreen()->grabWindow(0, 100, 100, 1, 1).toImage();
        benchmark::DoNotOptimize(grabbed.constBits());
    });
}
