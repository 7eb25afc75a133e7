// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// The screen pipette.
#include "PipetteImage_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopWidget>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalBlocker>

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
    if (watched != &m_pipetteOverlay)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::ToolTip:
        return true;
    case QEvent::MouseButtonRelease: {
        const auto *const release = static_cast<const QMouseEvent *>(event);
        if (release->button() == Qt::LeftButton && !rect().contains(mapFromGlobal(release->globalPos()))) {
            m_pipetteOverlay.setWindowOpacity(0.0);
            m_pipetteOverlay.repaint();
            QCoreApplication::processEvents();
            setColor(sampleScreenColor(QCursor::pos()));
        }
        toggleColorPipette(false);
        return true;
    }
    case QEvent::KeyPress:
        toggleColorPipette(false);
        event->accept();
        return true;
    default:
        return false;
    }
}

QLxColor QLxColorDialog::sampleScreenColor(QPoint globalPos) const
{
    QDesktopWidget *const desktop = QApplication::desktop();
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const QList<QScreen *> screens = QGuiApplication::screens();
    QScreen *const screen = screens.at(desktop->screenNumber());
    QT_WARNING_POP
    const QImage grabbed = screen->grabWindow(desktop->winId(), globalPos.x(), globalPos.y(), 1, 1).toImage();
    const QColor pixel(grabbed.pixel(0, 0));
    const auto channel = [](int level) { return static_cast<float>(level) / 255.0F; };
    const QLxColor encoded =
        QLx::rgbToHsv(channel(pixel.red()), channel(pixel.green()), channel(pixel.blue()));
    return QLx::colorUseGamma ? QLx::fromSrgbColor(encoded) : encoded;
}
