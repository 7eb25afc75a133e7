// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXDOUBLESPINER_H
#define QLXDOUBLESPINER_H

#include "QLxExport.h"
#include "QLxRelativeOperator.h"

#include <QDoubleSpinBox>

#include <memory>
#include <set>

class QLxDoubleSpinerPrivate;

/// A spin box for floating-point numbers that also takes arithmetic expressions ("2*(3+4)/5") and relative
/// operators ("+=5", "-=2", "*=1.5", "/=4").
///
/// What is typed is, in the words of QValidator:
/// - Acceptable: "12.5", "2*(3+4)", "1+ 2", and "*=1.5" where relative operators are applied;
/// - Intermediate: "", "2*(", and "*=1.5" where relative operators are reported; when editing ends, the value
///   stays what it was;
/// - Invalid, refused key by key: letters, "5=", "1++2", "1..2", "1+ +2".
/// An expression's result is clamped to the range; NaN, as from "0/0", becomes the minimum. Numbers with a
/// leading 0 may be octal: "010" commits 8, but "+=010" adds 10. A typed comma is a point.
///
/// A relative operator either changes the value or, for hosts that edit many objects at once, is reported;
/// see setRelativeOperatorHandlingMode(). Any change of the value drops an operator that is pending.
///
/// While a text stays unacceptable for 800 ms, the dynamic property "inputAcceptable" is false; otherwise it
/// is absent. Style sheets can follow it: QLxDoubleSpiner[inputAcceptable="false"] { … }.
///
/// Dragging the text sideways with the middle button changes the value by a step per pixel. The context menu
/// edits the step. The range is at first -2147483647 to 2147483647, the precision 10 decimals, the locale
/// QLocale::C, and keyboard tracking off; switched on, it applies an operator with every key.
///
/// Receivers may delete the box inside mouseButtonPressed(), mouseButtonReleased(), relativeOperatorApplied()
/// of a drag, and singleStepChanged() of setSingleStep(). Everywhere else, that is inside what
/// QDoubleSpinBox, the keyboard focus or the menu's own box sets off, use deleteLater(), as with a plain
/// QDoubleSpinBox.
class QLX_EXPORT QLxDoubleSpiner : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool showStepHint READ showStepHint WRITE setShowStepHint)
    Q_PROPERTY(int displayDecimals READ displayDecimals WRITE setDisplayDecimals)
    Q_PROPERTY(bool useExactDisplayDecimals READ useExactDisplayDecimals WRITE setUseExactDisplayDecimals)
    Q_PROPERTY(bool displaySceneUnit READ displaySceneUnit WRITE setDisplaySceneUnit)

public:
    explicit QLxDoubleSpiner(QWidget *parent = nullptr);
    ~QLxDoubleSpiner() override;

    /// ApplyRelativeOperator, the initial mode: a typed operator changes the value when editing ends.
    /// EmitRelativeOperator: it is announced by relativeOperatorChanged() while it is typed and reported by
    /// relativeOperatorApplied() when editing ends, and the value stays. Any other number: "+=5" and the like
    /// are never acceptable.
    void setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode);

    /// Has no effect in this class; see QLxSpiner.
    bool showStepHint() const;
    void setShowStepHint(bool shown);

    /// How many decimals are shown at most, 6 at first. See also setUseExactDisplayDecimals().
    int displayDecimals() const;
    bool useExactDisplayDecimals() const;

    /// Whether the suffix is the scene unit, false at first. Switching it off clears any suffix.
    bool displaySceneUnit() const;
    void setDisplaySceneUnit(bool shown);
    /// Brings the suffix up to date with displaySceneUnit() and QLx::sceneUnit().
    void updateSceneUnit();
    /// Does so for every box of this class that shows the unit. Call it after QLx::setSceneUnit().
    static void updateInstancesWithSceneUnit();

    /// Makes style sheets look at the box's properties again.
    void reapplyStyle();

    QValidator::State validate(QString &input, int &pos) const override;
    double valueFromText(const QString &text) const override;
    /// At least two decimals, at most displayDecimals(), no zeros beyond the second, no group separators:
    /// 1 is "1.00", 0.125 is "0.125", 1234.5 is "1234.50".
    QString textFromValue(double value) const override;
    /// 90 x 16.
    QSize sizeHint() const override;

Q_SIGNALS:
    void singleStepChanged(double value);
    /// Any mouse button was pressed on the text.
    void mouseButtonPressed();
    /// Any mouse button was released on the text.
    void mouseButtonReleased();
    /// A relative operator was typed: comes for every edit that makes one, in any mode. In
    /// EmitRelativeOperator mode each edit is preceded by (RelOpNone, 0), which also comes with every change
    /// of the value and after relativeOperatorApplied().
    void relativeOperatorChanged(RelativeOperator op, double operand) const;
    /// In EmitRelativeOperator mode only: apply this to whatever the box stands for. Comes when the typed
    /// operator is confirmed or left, as (RelOpAssign, value) when a plain number is confirmed by Return or
    /// Enter, and as (RelOpAdd, distance times step) for each move of a middle-button drag.
    void relativeOperatorApplied(RelativeOperator op, double operand);
    /// The box is getting the keyboard focus.
    void focusGained();

public Q_SLOTS:
    /// Sets the step if it is at least 1e-8, and emits singleStepChanged(), also for an equal step.
    void setSingleStep(double value);
    /// Hides the menu that edits the step.
    void stepEditingFinished();
    /// Clamps to 0 ... 323. The shown text follows when it is written next.
    void setDisplayDecimals(int decimals);
    /// Always shows displayDecimals() decimals, zeros included. The shown text follows when it is written
    /// next.
    void setUseExactDisplayDecimals(bool enabled);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private Q_SLOTS:
    void finishedEditing();
    void changedValue(const QString &text);
    void checkInput(const QString &text);
    void updateVisualInputFeedback();
    void setCurrentRelativeOperator(RelativeOperator op, double operand);

private:
    QLxDoubleSpinerPrivate *d_func() { return m_private.get(); }
    const QLxDoubleSpinerPrivate *d_func() const { return m_private.get(); }

    void resetCurrentRelativeOperator() const;
    void emitRelativeValue();
    void resetVisualInputFeedback();

    static std::set<QLxDoubleSpiner *> s_instancesWithSceneUnit;

    const std::unique_ptr<QLxDoubleSpinerPrivate> m_private;
};

#endif
