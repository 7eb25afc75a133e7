// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORBUTTON_H
#define QLXCOLORBUTTON_H

#include "QLxColor.h"
#include "QLxExport.h"

#include <QPoint>
#include <QPushButton>

/// A flat swatch that shows one colour, opens the colour dialog of the process when clicked, and can be
/// dragged as a colour and dropped on.
///
/// The dialog is made on the first click of any button and shared from then on; only the button clicked
/// last hears it. Its parent is that first button's nearest ancestor with the object name "Module" (the
/// button itself counts), or the topmost ancestor; once that is destroyed, the next click makes another
/// dialog. Destroying any button hides the dialog.
///
/// Any mouse button presses the swatch and its release clicks; moving farther than the start-drag distance
/// drags the colour instead. Drag data is the standard Qt colour, holding linear floating-point RGB clamped
/// to [0, 1].
///
/// If the dynamic property "multiselect" is true, the swatch is covered in translucent olive.
///
/// Receivers may delete the button inside any of its signals.
class QLX_EXPORT QLxColorButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(bool showColorDialog READ showColorDialog WRITE setShowColorDialog)

public:
    /// A light grey button (value 0.8) with the object name "QLxColorButton".
    explicit QLxColorButton(QWidget *parent = nullptr);
    ~QLxColorButton() override;

    /// Stores the colour and rebuilds the look, also for an equal colour: the sRGB setting may have
    /// changed since. A colour that holds a NaN shows black. Emits nothing.
    void setColor(QLxColor color);
    QLxColor getColor() const { return m_color; }

    /// Whether a click opens the dialog; true at first.
    bool showColorDialog() const { return m_showColorDialog; }

    /// 20 x 16.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The button was clicked. Comes before anything else that the click does.
    void colorButtonClicked();
    /// The user is editing in the dialog that this button opened; the button keeps its colour.
    void temporaryColorChosen(QLxColor color);
    /// A colour was dropped on the button or accepted in the dialog (the button has it already), or the
    /// dialog was cancelled (it is the button's unchanged colour).
    void finalColorChosen(QLxColor color);
    /// The dialog was cancelled. Comes after finalColorChosen().
    void userSkipped();
    /// The dialog was accepted. Comes after finalColorChosen().
    void userAccepted();

public Q_SLOTS:
    void setShowColorDialog(bool value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    /// Takes the keyboard focus for the time of the drag, whatever is dragged.
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private Q_SLOTS:
    void buttonClicked(bool checked);
    void colorChanged(QLxColor color);
    void accepted();
    void rejected();

private:
    void openDialog();
    void closeDialog(bool skipped);

    bool m_showColorDialog = true;
    QLxColor m_color;
    bool m_pressed = false;
    QPoint m_pressPos;
    bool m_skipped = false;
    bool m_dialogFlag = true;
};

#endif
