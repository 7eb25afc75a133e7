// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef FAKEDIALOG_H
#define FAKEDIALOG_H

#include "QLxColorButton.h"
#include "SharedColorDialog_p.h"
#include "SignalLog.h"

#include <QEvent>

/// Stands in for the colour dialog and logs what the buttons do with it.
class FakeDialog : public SharedColorDialog
{
    Q_OBJECT

public:
    FakeDialog(const QLxColor &color, QWidget *parent, SignalLog *log)
        : SharedColorDialog(parent)
        , m_color(color)
        , m_log(log)
    {
        new QLxColorButton(this); // like the real one, it holds swatches that go with it
        m_log->note(QStringLiteral("dialog: made for %1 in %2")
                        .arg(asText(color), parent ? parent->objectName() : QStringLiteral("nothing")));
    }

    void setColor(QLxColor color) override
    {
        m_log->note(QStringLiteral("dialog: setColor %1, visible %2, signals blocked %3")
                        .arg(asText(color), asText(isVisible()), asText(signalsBlocked())));
        m_color = color;
        Q_EMIT colorChanged(color); // heard by nobody while it is blocked
    }
    QLxColor getColor() const override { return m_color; }
    void setDialogFlag(bool flag) override
    {
        m_log->note(QStringLiteral("dialog: flag %1").arg(asText(flag)));
    }

    /// What the dialog does when its user edits.
    void edit(const QLxColor &color)
    {
        m_color = color;
        Q_EMIT colorChanged(color);
    }

Q_SIGNALS:
    void colorChanged(QLxColor color);

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ZOrderChange)
            m_log->note(QStringLiteral("dialog: raised"));
        return SharedColorDialog::event(event);
    }
    void showEvent(QShowEvent *event) override
    {
        m_log->note(QStringLiteral("dialog: shown"));
        SharedColorDialog::showEvent(event);
    }
    void hideEvent(QHideEvent *event) override
    {
        m_log->note(QStringLiteral("dialog: hidden"));
        SharedColorDialog::hideEvent(event);
    }

private:
    QLxColor m_color;
    SignalLog *m_log;
};

/// Lets buttons make fake dialogs for as long as it lives, and takes the last one away at its end.
class FakeDialogs
{
public:
    explicit FakeDialogs(SignalLog *log)
    {
        s_log = log;
        m_before = SharedColorDialog::setFactory([](const QLxColor &color, QWidget *parent) {
            return static_cast<SharedColorDialog *>(new FakeDialog(color, parent, s_log));
        });
    }
    ~FakeDialogs()
    {
        delete sharedColorDialog.data();
        SharedColorDialog::setFactory(m_before);
    }
    FakeDialogs(const FakeDialogs &) = delete;
    FakeDialogs &operator=(const FakeDialogs &) = delete;

    static FakeDialog *current() { return static_cast<FakeDialog *>(sharedColorDialog.data()); }

private:
    inline static SignalLog *s_log = nullptr;
    SharedColorDialog::Factory m_before;
};

#endif
