// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SIGNALLOG_H
#define GALLERY_SIGNALLOG_H

#include <QWidget>

class QPlainTextEdit;

/// A list of signals in the order of their emission. Only the newest are kept.
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    void add(const QString &sender, const QString &signal);

private:
    void clear();

    QPlainTextEdit *m_text = nullptr;
    int m_count = 0;
};

#endif
