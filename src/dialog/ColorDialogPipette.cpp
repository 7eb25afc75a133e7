// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// The screen pipette.
#include "PipetteImage_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "WhileAlive_p.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopWidget>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QWindow>

namespace {

const int followInterval = 10; // milliseconds

const QCursor &pipetteCursor()
{
    static const QCursor cursor(QLx::pipettePixmap(), 4, 27);
    return cursor;
}

QPoint lastCursorPosition;

} // namespace

void QLxColorDialog::toggleColorPipette(bool enable)
{
    if (enable)
        startPicking();
    else
        stopPicking();
}

void QLxColorDialog::setUpPipette()
{
    m_pipetteOverlay.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    m_pipetteOverlay.resize(100, 100);
    // On X11 a window's opacity is nothing without a compositor, and a tint, or late, with one. There the
    // window is given a shape that covers no pixel at all; the grabs, which reach the whole desktop, stay.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        m_pipetteOverlay.setMask(QRegion(-1, -1, 1, 1));
    // Whoever is in front now gets the mouse and the keyboard.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive && isPicking())
            stopPicking();
    });
}

void QLxColorDialog::startPicking()
{
    m_pipetteOverlay.grabKeyboard();
    m_pipetteTimer->start(followInterval);
    m_pipetteOverlay.setAttribute(Qt::WA_MouseTracking);
    m_pipetteOverlay.installEventFilter(this);
    m_pipetteOverlay.show();
    m_pipetteOverlay.setWindowOpacity(static_cast<qreal>(0.01F));
    m_pipetteOverlay.setCursor(pipetteCursor());
    m_pipetteOverlay.grabMouse();
    m_pipetteOverlay.windowHandle()->installEventFilter(this); // see eventFilter()
    const QSignalBlocker blocker(_pick_color);
    _pick_color->setChecked(true);
}

void QLxColorDialog::stopPicking()
{
    m_pipetteOverlay.releaseMouse();
    m_pipetteOverlay.setAttribute(Qt::WA_MouseTracking, false);
    m_pipetteOverlay.removeEventFilter(this);
    m_pipetteTimer->stop();
    m_pipetteOverlay.setVisible(false);
    m_pipetteOverlay.setAttribute(Qt::WA_MouseTracking, false);
    m_pipetteOverlay.releaseKeyboard();
    const QSignalBlocker blocker(_pick_color);
    _pick_color->setChecked(false);
}

void QLxColorDialog::hideEvent(QHideEvent *event)
{
    if (isPicking())
        stopPicking();
    SharedColorDialog::hideEvent(event);
}

void QLxColorDialog::preGrabScreenColor()
{
    const QPoint position = QCursor::pos();
    if (position == lastCursorPosition)
        return;
    lastCursorPosition = position;
    if (!rect().contains(mapFromGlobal(position)))
        m_pipetteOverlay.move(position - QPoint(50, 50));
}

bool QLxColorDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_pipetteOverlay.windowHandle() && event->type() == QEvent::Expose && isPicking()) {
        // The display refuses to grab for a window that is not there yet: grab again.
        m_pipetteOverlay.grabKeyboard();
        m_pipetteOverlay.grabMouse();
    }
    if (watched != &m_pipetteOverlay)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::ToolTip:
        return true;
    case QEvent::MouseButtonRelease:
        releaseOverDesktop(static_cast<const QMouseEvent *>(event));
        return true;
    case QEvent::ShortcutOverride:
        event->accept(); // or the key would set off a shortcut of the application
        return false;
    case QEvent::KeyPress:
        toggleColorPipette(false);
        event->accept();
        return true;
    default:
        return false;
    }
}

void QLxColorDialog::releaseOverDesktop(const QMouseEvent *event)
{
    const bool picks =
        event->button() == Qt::LeftButton && !rect().contains(mapFromGlobal(event->globalPos()));
    const auto sample = [this] {
        m_pipetteOverlay.setWindowOpacity(0.0);
        m_pipetteOverlay.repaint();
        QCoreApplication::processEvents();
    };
    const auto take = [this] {
        if (!isPicking())
            return; // one of the events has ended it
        if (const std::optional<QLxColor> color = sampleScreenColor(QCursor::pos()))
            setColor(*color);
    };
    if (!picks || whileAlive(this, sample, take))
        toggleColorPipette(false);
}

std::optional<QLxColor> QLxColorDialog::sampleScreenColor(QPoint globalPos)
{
    QDesktopWidget *const desktop = QApplication::desktop();
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // there is no other way to the number of the primary screen
        QScreen *const screen = QGuiApplication::screens().value(desktop->screenNumber());
    QT_WARNING_POP
    if (!screen)
        return std::nullopt;
    const QImage grabbed = screen->grabWindow(desktop->winId(), globalPos.x(), globalPos.y(), 1, 1).toImage();
    if (grabbed.isNull())
        return std::nullopt;
    const QColor pixel(grabbed.pixel(0, 0));
    const auto channel = [](int level) { return static_cast<float>(level) / 255.0F; };
    const QLxColor encoded =
        QLx::rgbToHsv(channel(pixel.red()), channel(pixel.green()), channel(pixel.blue()));
    return QLx::colorUseGamma ? QLx::fromSrgbColor(encoded) : encoded;
}
