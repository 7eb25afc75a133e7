// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef SHAREDCOLORDIALOG_P_H
#define SHAREDCOLORDIALOG_P_H

#include "QLxColor.h"

#include <QDialog>
#include <QPointer>

/// What a colour button needs of the one colour dialog of the process.
///
/// The dialog contains colour buttons itself, so it is built above them: it derives from this class and
/// registers how to make one, and the buttons never see it. It also has the signal
/// colorChanged(QLxColor), emitted while the user edits, to which they connect by signature; that is why
/// this class declares no meta-object of its own.
class SharedColorDialog : public QDialog // clazy:exclude=missing-qobject-macro
{
public:
    using Factory = SharedColorDialog *(*)(const QLxColor &color, QWidget *parent);

    /// Sets how the dialog is made when a button first needs one. Returns the factory until now; null, the
    /// initial state, means that there is no dialog to open.
    static Factory setFactory(Factory factory);
    /// A new dialog owned by parent, or null without a factory.
    static SharedColorDialog *create(const QLxColor &color, QWidget *parent);

    using QDialog::QDialog;
    /// From here on sharedColorDialog is null, also for the buttons inside the dialog that go with it.
    ~SharedColorDialog() override;

    /// As QDialog's, but a receiver of accepted() or rejected() may delete the dialog.
    void done(int result) override;

    virtual void setColor(QLxColor color) = 0;
    virtual QLxColor getColor() const = 0;
    /// Told by the button when it opens the dialog and when it closes it.
    virtual void setDialogFlag(bool flag) = 0;
};

/// The dialog that all buttons share: made by the first one that opens it, then only hidden, and owned by
/// its parent, with which it may go.
extern QPointer<SharedColorDialog> sharedColorDialog;

#endif
