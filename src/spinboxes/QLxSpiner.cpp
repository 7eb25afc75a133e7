// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxSpiner.h"

#include "MenuPosition_p.h"
#include "SceneUnitSuffix_p.h"
#include "TextMouse_p.h"
#include "ValueDrag_p.h"
#include "WhileAlive_p.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>

#include <optional>
#include <utility>

class QLxSpinerPrivate
{
public:
    explicit QLxSpinerPrivate(QLxSpiner *q)
        : q_ptr(q)
    {
    }

    void enterStepEditing();
    void leaveStepEditing();
    /// The three take the events of the text and return whether the text is kept from seeing them.
    bool pressMouse(const QMouseEvent *event);
    bool moveMouse(const QMouseEvent *event);
    bool releaseMouse(const QMouseEvent *event);

    int savedValue = 0;
    bool mouseButtonHeld = false;
    bool stepEditing = false;
    int lastMouseX = 0;
    int dragMode = QLx::NoDrag;
    QString savedPrefix;
    QString savedSuffix;
    int savedMinimum = 0;
    int savedMaximum = 0;
    bool showStepHint = true;
    bool autoStepsDisabled = false;
    bool displaySceneUnit = false;
    QLxSpiner *q_ptr;

    bool leaving = false; // inside the signals that leaving the step editor emits
};

void QLxSpinerPrivate::enterStepEditing()
{
    if (!stepEditing) { // else the user's value is saved already
        savedValue = q_ptr->value();
        savedMinimum = q_ptr->minimum();
        savedMaximum = q_ptr->maximum();
        savedPrefix = q_ptr->prefix();
        savedSuffix = q_ptr->suffix();
    }
    q_ptr->setPrefix(showStepHint ? QLxSpiner::tr("step ") : QString());
    q_ptr->setMinimum(1);
    q_ptr->setMaximum(1000);
    q_ptr->setValue(q_ptr->singleStep());
    q_ptr->setSuffix(QString());
    q_ptr->selectAll();
    stepEditing = true;
}

void QLxSpinerPrivate::leaveStepEditing()
{
    // A receiver that takes the keyboard focus finishes the same edit once more.
    if (!stepEditing || leaving)
        return;
    leaving = true;
    whileAlive(
        q_ptr, [this] { q_ptr->setSingleStep(q_ptr->value()); },
        [this] {
            q_ptr->setPrefix(savedPrefix);
            q_ptr->setSuffix(savedSuffix);
            q_ptr->setMinimum(savedMinimum);
            q_ptr->setMaximum(savedMaximum);
            q_ptr->setValue(savedValue);
            stepEditing = false;
            leaving = false;
        });
}

std::set<QLxSpiner *> QLxSpiner::s_instancesWithSceneUnit;

QLxSpiner::QLxSpiner(QWidget *parent)
    : QSpinBox(parent)
    , m_private(std::make_unique<QLxSpinerPrivate>(this))
{
    setFocusPolicy(Qt::WheelFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setRange(-2147483647, 2147483647);
    setKeyboardTracking(false);
    lineEdit()->installEventFilter(this);
    connect(this, SIGNAL(editingFinished()), this, SLOT(finishedEditing()));
}

QLxSpiner::~QLxSpiner()
{
    s_instancesWithSceneUnit.erase(this);
}

QSize QLxSpiner::sizeHint() const
{
    return {90, 16};
}

// Step

void QLxSpiner::setSingleStep(int value)
{
    QSpinBox::setSingleStep(value);
    Q_EMIT singleStepChanged(value);
}

bool QLxSpiner::showStepHint() const
{
    return d_func()->showStepHint;
}

void QLxSpiner::setShowStepHint(bool shown)
{
    d_func()->showStepHint = shown;
}

bool QLxSpiner::autoStepsOnMousePress() const
{
    return !d_func()->autoStepsDisabled;
}

void QLxSpiner::setAutoStepsOnMousePress(bool on)
{
    d_func()->autoStepsDisabled = !on;
}

void QLxSpiner::timerEvent(QTimerEvent *event)
{
    if (autoStepsOnMousePress())
        QSpinBox::timerEvent(event);
}

void QLxSpiner::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    const QPointer<QMenu> menu(lineEdit()->createStandardContextMenu());
    menu->addSeparator();
    QAction *const up = menu->addAction(tr("&Step up"));
    up->setEnabled(stepEnabled().testFlag(StepUpEnabled));
    QAction *const down = menu->addAction(tr("Step &down"));
    down->setEnabled(stepEnabled().testFlag(StepDownEnabled));
    menu->addSeparator();
    const QAction *const step = menu->addAction(tr("Step..."));

    const QAction *chosen = nullptr;
    if (!whileAlive(this, [&] { chosen = menu->exec(QLx::menuPosition(*this, *event)); }))
        return; // the menu went with the box
    const int steps = chosen == up ? 1 : chosen == down ? -1 : 0;
    const bool editsStep = chosen == step;
    delete menu;
    if (steps != 0) {
        stepBy(steps);
    } else if (editsStep) {
        const QSignalBlocker blocker(this);
        d_func()->enterStepEditing();
    }
}

// Editing the step in place

void QLxSpiner::finishedEditing()
{
    d_func()->leaveStepEditing();
}

// Mouse. Unlike QLxDoubleSpiner on purpose: a disabled or read-only box is dragged too, and there is no
// cursor.

bool QLxSpiner::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != lineEdit())
        return QSpinBox::eventFilter(watched, event);
    const std::optional<bool> kept = QLx::handleMouse(d_func(), event);
    return kept ? *kept : QSpinBox::eventFilter(watched, event);
}

bool QLxSpinerPrivate::pressMouse(const QMouseEvent *event)
{
    mouseButtonHeld = true;
    lastMouseX = event->x();
    dragMode = QLx::dragModeAfterPress(event->button(), dragMode);
    return !QLx::pressIsForText(event->button());
}

bool QLxSpinerPrivate::moveMouse(const QMouseEvent *event)
{
    if (!mouseButtonHeld)
        return false;
    const int fromX = std::exchange(lastMouseX, event->x());
    if (dragMode == QLx::MiddleDrag) {
        std::optional<QSignalBlocker> blocker;
        if (stepEditing)
            blocker.emplace(q_ptr);
        q_ptr->setValue(QLx::draggedValue(q_ptr->value(), q_ptr->singleStep(), fromX, event->x(),
                                          q_ptr->minimum(), q_ptr->maximum()));
    }
    return !QLx::moveIsForText(dragMode);
}

bool QLxSpinerPrivate::releaseMouse(const QMouseEvent *event)
{
    lastMouseX = event->x();
    mouseButtonHeld = false;
    dragMode = QLx::NoDrag;
    return true;
}

// Scene unit

bool QLxSpiner::displaySceneUnit() const
{
    return d_func()->displaySceneUnit;
}

void QLxSpiner::setDisplaySceneUnit(bool shown)
{
    d_func()->displaySceneUnit = shown;
    QLx::enrolForSceneUnit(this, shown, s_instancesWithSceneUnit);
}

void QLxSpiner::updateSceneUnit()
{
    if (QLx::showSceneUnit(this, d_func()->displaySceneUnit))
        update();
}

void QLxSpiner::updateInstancesWithSceneUnit()
{
    QLx::updateSceneUnits(s_instancesWithSceneUnit);
}
