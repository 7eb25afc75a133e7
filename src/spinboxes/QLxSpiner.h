// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXSPINER_H
#define QLXSPINER_H

#include "QLxExport.h"

#include <QSpinBox>

#include <memory>
#include <set>

class QLxSpinerPrivate;

/// A spin box for whole numbers: its value is dragged with the middle button, its step edited in the box
/// itself, and it can show the scene unit.
///
/// Dragging the text sideways with the middle button changes the value by a step per pixel, clamped to the
/// range; unlike in QLxDoubleSpiner also while the box is read-only. The range is at first -2147483647 to
/// 2147483647, and keyboard tracking off.
///
/// "Step..." in the context menu turns the box into an editor of its own step, 1 to 1000, until Return or the
/// loss of the keyboard focus. Entering emits nothing; leaving emits singleStepChanged() and whatever changes
/// of the value the restoration brings.
///
/// Receivers that want to destroy the box use deleteLater(), as with a plain QSpinBox.
class QLX_EXPORT QLxSpiner : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool showStepHint READ showStepHint WRITE setShowStepHint)
    Q_PROPERTY(bool autoStepsOnMousePress READ autoStepsOnMousePress WRITE setAutoStepsOnMousePress)
    Q_PROPERTY(bool displaySceneUnit READ displaySceneUnit WRITE setDisplaySceneUnit)

public:
    explicit QLxSpiner(QWidget *parent = nullptr);
    ~QLxSpiner() override;

    /// Whether the prefix "step " marks the box while it edits its step, true at first.
    bool showStepHint() const;
    void setShowStepHint(bool shown);

    /// Whether an arrow button that is held goes on stepping, true at first.
    bool autoStepsOnMousePress() const;
    void setAutoStepsOnMousePress(bool on);

    /// Whether the suffix is the scene unit, false at first. Switching it off clears any suffix.
    bool displaySceneUnit() const;
    void setDisplaySceneUnit(bool shown);
    /// Brings the suffix up to date with displaySceneUnit() and QLx::sceneUnit().
    void updateSceneUnit();
    /// Does so for every box of this class that shows the unit. Call it after QLx::setSceneUnit().
    static void updateInstancesWithSceneUnit();

    /// 90 x 16.
    QSize sizeHint() const override;

Q_SIGNALS:
    void singleStepChanged(int value);

public Q_SLOTS:
    /// Sets the step and emits singleStepChanged(), also for an equal step. A negative step is announced but,
    /// as by QSpinBox, not taken.
    void setSingleStep(int value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private Q_SLOTS:
    void finishedEditing();

private:
    QLxSpinerPrivate *d_func() { return m_private.get(); }
    const QLxSpinerPrivate *d_func() const { return m_private.get(); }

    static std::set<QLxSpiner *> s_instancesWithSceneUnit;

    const std::unique_ptr<QLxSpinerPrivate> m_private;
};

#endif
