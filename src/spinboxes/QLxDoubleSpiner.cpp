// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxDoubleSpiner.h"

#include "Expression_p.h"
#include "MenuPosition_p.h"
#include "NumberText_p.h"
#include "QLxDoubleSpiner_p.h"
#include "RelativeOperator_p.h"
#include "SceneUnitSuffix_p.h"
#include "WhileAlive_p.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QTimer>
#include <QVariant>
#include <QWidgetAction>

namespace {

const char acceptableProperty[] = "inputAcceptable";
const int feedbackDelay = 800; // milliseconds
const double smallestStep = 1e-8;

} // namespace

void QLxDoubleSpinerPrivate::leaveStepEditing()
{
    q_ptr->setSingleStep(q_ptr->value());
    q_ptr->setMinimum(savedMinimum);
    q_ptr->setMaximum(savedMaximum);
    q_ptr->setValue(savedValue);
    q_ptr->setPrefix(savedPrefix);
    q_ptr->setSuffix(savedSuffix);
    stepEditing = false;
}

std::set<QLxDoubleSpiner *> QLxDoubleSpiner::s_instancesWithSceneUnit;

QLxDoubleSpiner::QLxDoubleSpiner(QWidget *parent)
    : QDoubleSpinBox(parent)
    , m_private(std::make_unique<QLxDoubleSpinerPrivate>(this))
{
    setFocusPolicy(Qt::WheelFocus);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setRange(-2147483647.0, 2147483647.0);
    setKeyboardTracking(false);
    setLocale(QLocale(QLocale::C, QLocale::AnyCountry));
    setDecimals(10);
    lineEdit()->installEventFilter(this);
    connect(this, &QLxDoubleSpiner::editingFinished, this, &QLxDoubleSpiner::finishedEditing);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // the signal that carries the text; its successor has no value in it
        connect(this, QOverload<const QString &>::of(&QLxDoubleSpiner::valueChanged), this,
                &QLxDoubleSpiner::changedValue);
    QT_WARNING_POP
    connect(this, &QLxDoubleSpiner::relativeOperatorChanged, this,
            &QLxDoubleSpiner::setCurrentRelativeOperator);
    connect(lineEdit(), &QLineEdit::textEdited, this, &QLxDoubleSpiner::checkInput);
}

QLxDoubleSpiner::~QLxDoubleSpiner()
{
    s_instancesWithSceneUnit.erase(this);
}

void QLxDoubleSpiner::setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode)
{
    d_func()->handlingMode = mode;
}

void QLxDoubleSpiner::reapplyStyle()
{
    style()->unpolish(this);
    style()->polish(this);
    update();
}

// Text

QValidator::State QLxDoubleSpiner::validate(QString &input, int &pos) const
{
    const QLxDoubleSpinerPrivate *const d = d_func();
    const QString text = QLx::cleanedText(input, prefix(), suffix());
    if (d->validatingInput)
        resetCurrentRelativeOperator();
    const QLx::TextForm form = QLx::textForm(text);
    if (form == QLx::TextForm::Forbidden)
        return QValidator::Invalid;
    if (form == QLx::TextForm::Number)
        return QDoubleSpinBox::validate(input, pos);
    RelativeOperator op = RelOpNone;
    double operand = 0.0;
    if (form == QLx::TextForm::RelativeOperator && QLx::parseRelativeOperator(text, op, operand)) {
        if (d->validatingInput)
            Q_EMIT relativeOperatorChanged(op, operand);
        if (d->handlingMode == ApplyRelativeOperator)
            return QValidator::Acceptable;
        if (d->handlingMode == EmitRelativeOperator)
            return QValidator::Intermediate; // so that the base class never commits it
    }
    return QLx::evaluateExpression(text) ? QValidator::Acceptable : QValidator::Intermediate;
}

double QLxDoubleSpiner::valueFromText(const QString &text) const
{
    const QString cleaned = QLx::cleanedText(text, prefix(), suffix());
    RelativeOperator op = RelOpNone;
    double operand = 0.0;
    const bool relative = d_func()->handlingMode == ApplyRelativeOperator && cleaned.size() >= 3 &&
                          QLx::parseRelativeOperator(cleaned, op, operand);
    const double number = relative ? QLx::appliedRelativeOperator(op, value(), operand)
                                   : QLx::evaluateExpression(cleaned).value_or(0.0);
    return QLx::clampedNumber(number, minimum(), maximum());
}

QString QLxDoubleSpiner::textFromValue(double value) const
{
    return QLx::numberText(value, displayDecimals(), useExactDisplayDecimals(), locale());
}

void QLxDoubleSpiner::checkInput(const QString &text)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    QString input = text;
    int pos = 0;
    d->reporting = false; // this is another edit
    d->validatingInput = true;
    const QValidator::State state = validate(input, pos);
    d->validatingInput = false;
    d->inputAcceptable = state == QValidator::Acceptable || d->currentOperator != RelOpNone;
    if (!d->feedbackTimer) {
        d->feedbackTimer = new QTimer(this);
        d->feedbackTimer->setSingleShot(true);
        connect(d->feedbackTimer, SIGNAL(timeout()), this, SLOT(updateVisualInputFeedback()));
    }
    if (d->inputAcceptable) {
        d->feedbackTimer->stop();
        resetVisualInputFeedback();
    } else {
        d->feedbackTimer->start(feedbackDelay);
    }
}

void QLxDoubleSpiner::updateVisualInputFeedback()
{
    const QVariant wanted = d_func()->inputAcceptable ? QVariant() : QVariant(false);
    if (property(acceptableProperty).isValid() == wanted.isValid())
        return;
    setProperty(acceptableProperty, wanted);
    reapplyStyle();
}

void QLxDoubleSpiner::resetVisualInputFeedback()
{
    if (!property(acceptableProperty).isValid())
        return;
    setProperty(acceptableProperty, QVariant());
    reapplyStyle();
}

// Relative operators

void QLxDoubleSpiner::setCurrentRelativeOperator(RelativeOperator op, double operand)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    if (d->handlingMode != EmitRelativeOperator)
        return;
    d->currentOperator = op;
    d->currentOperand = operand;
}

void QLxDoubleSpiner::resetCurrentRelativeOperator() const
{
    if (d_func()->handlingMode == EmitRelativeOperator)
        Q_EMIT relativeOperatorChanged(RelOpNone, 0.0);
}

void QLxDoubleSpiner::changedValue(const QString & /*text*/)
{
    resetCurrentRelativeOperator();
}

void QLxDoubleSpiner::emitRelativeValue()
{
    QLxDoubleSpinerPrivate *const d = d_func();
    if (d->handlingMode != EmitRelativeOperator || d->currentOperator == RelOpNone)
        return;
    d->reporting = true;
    whileAlive(
        this, [&] { Q_EMIT relativeOperatorApplied(d->currentOperator, d->currentOperand); },
        [&] {
            d->reporting = false;
            Q_EMIT relativeOperatorChanged(RelOpNone, 0.0);
        });
}

void QLxDoubleSpiner::finishedEditing()
{
    QLxDoubleSpinerPrivate *const d = d_func();
    if (d->reporting)
        return; // the receiver of the report took the focus away, which finishes the same edit once more
    if (d->stepEditing)
        d->leaveStepEditing();
    if (d->handlingMode == EmitRelativeOperator && d->enterPressed && d->currentOperator == RelOpNone) {
        d->currentOperator = RelOpAssign;
        d->currentOperand = value();
    }
    whileAlive(
        this, [this] { emitRelativeValue(); },
        [&] {
            if (d->feedbackTimer)
                d->feedbackTimer->stop();
            resetVisualInputFeedback();
        });
}

// Keys and focus

void QLxDoubleSpiner::keyPressEvent(QKeyEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    d->enterPressed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() != Qt::Key_Comma) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, QStringLiteral("."));
    QAbstractSpinBox::keyPressEvent(&point);
    event->setAccepted(point.isAccepted());
}

void QLxDoubleSpinerPrivate::announceFocus()
{
    enterPressed = false;
    Q_EMIT q_ptr->focusGained();
}

void QLxDoubleSpiner::focusInEvent(QFocusEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    if (d->focusAnnounced || whileAlive(this, [d] { d->announceFocus(); }))
        QDoubleSpinBox::focusInEvent(event);
}

void QLxDoubleSpiner::focusOutEvent(QFocusEvent *event)
{
    d_func()->enterPressed = false;
    QDoubleSpinBox::focusOutEvent(event);
}

// Step, display and scene unit

void QLxDoubleSpiner::setSingleStep(double value)
{
    if (!(value >= smallestStep))
        return;
    QDoubleSpinBox::setSingleStep(value);
    Q_EMIT singleStepChanged(value);
}

void QLxDoubleSpiner::stepEditingFinished()
{
    if (d_func()->stepMenu)
        d_func()->stepMenu->hide();
}

void QLxDoubleSpiner::setDisplayDecimals(int decimals)
{
    d_func()->displayDecimals = qBound(0, decimals, 323);
}

int QLxDoubleSpiner::displayDecimals() const
{
    return d_func()->displayDecimals;
}

void QLxDoubleSpiner::setUseExactDisplayDecimals(bool enabled)
{
    d_func()->useExactDisplayDecimals = enabled;
}

bool QLxDoubleSpiner::useExactDisplayDecimals() const
{
    return d_func()->useExactDisplayDecimals;
}

void QLxDoubleSpiner::setShowStepHint(bool shown)
{
    d_func()->showStepHint = shown;
}

bool QLxDoubleSpiner::showStepHint() const
{
    return d_func()->showStepHint;
}

QSize QLxDoubleSpiner::sizeHint() const
{
    return {90, 16};
}

void QLxDoubleSpiner::contextMenuEvent(QContextMenuEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    if (!d->stepMenu) {
        d->stepMenu = new QMenu(lineEdit());
        auto *const action = new QWidgetAction(this);
        auto *const editor = new QLxDoubleSpiner;
        editor->setMinimum(1e-7);
        editor->setMaximum(100000.0);
        editor->setFixedWidth(102);
        editor->setDecimals(6);
        editor->setButtonSymbols(QAbstractSpinBox::NoButtons);
        editor->setPrefix(tr("Step: "));
        editor->setValue(singleStep());
        editor->selectAll();
        editor->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        editor->setContextMenuPolicy(Qt::NoContextMenu);
        action->setDefaultWidget(editor);
        // Only now, so that rounding a fine step for display does not change it.
        connect(editor, SIGNAL(valueChanged(double)), this, SLOT(setSingleStep(double)));
        connect(editor, SIGNAL(editingFinished()), this, SLOT(stepEditingFinished()));
        d->stepMenu->addAction(action);
        d->stepMenu->setDefaultAction(action);
        editor->setFocus(Qt::OtherFocusReason);
    }
    d->stepMenu->popup(QLx::menuPosition(*this, *event));
    event->accept();
}

bool QLxDoubleSpiner::displaySceneUnit() const
{
    return d_func()->displaySceneUnit;
}

void QLxDoubleSpiner::setDisplaySceneUnit(bool shown)
{
    d_func()->displaySceneUnit = shown;
    QLx::enrolForSceneUnit(this, shown, s_instancesWithSceneUnit);
}

void QLxDoubleSpiner::updateSceneUnit()
{
    if (QLx::showSceneUnit(this, d_func()->displaySceneUnit))
        update();
}

void QLxDoubleSpiner::updateInstancesWithSceneUnit()
{
    QLx::updateSceneUnits(s_instancesWithSceneUnit);
}
