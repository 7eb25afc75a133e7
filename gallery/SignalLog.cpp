// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SignalLog.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {
constexpr int KeptLines = 500;
}

SignalLog::SignalLog(QWidget *parent)
    : QWidget(parent)
    , m_text(new QPlainTextEdit)
{
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(fixed).fixedPitch()) {
        fixed.setFamily(QStringLiteral("monospace"));
        fixed.setStyleHint(QFont::Monospace);
    }
    fixed.setPointSizeF(font().pointSizeF());
    m_text->setFont(fixed);
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setMaximumBlockCount(KeptLines);

    auto *const clearButton = new QPushButton(QStringLiteral("Clear"));
    connect(clearButton, &QPushButton::clicked, this, &SignalLog::clear);

    auto *const header = new QHBoxLayout;
    header->addWidget(new QLabel(QStringLiteral("Signals, in the order of their emission")));
    header->addStretch();
    header->addWidget(clearButton);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(header);
    layout->addWidget(m_text);
}

void SignalLog::add(const QString &sender, const QString &signal)
{
    ++m_count;
    m_text->appendPlainText(QStringLiteral("%1  %2  %3").arg(m_count, 4).arg(sender, -13).arg(signal));
}

void SignalLog::clear()
{
    m_count = 0;
    m_text->clear();
}
