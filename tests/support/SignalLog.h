// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef SIGNALLOG_H
#define SIGNALLOG_H

#include "QLxColor.h"
#include "QLxRelativeOperator.h"

#include <QObject>
#include <QStringList>

#include <initializer_list>

/// Floats with all their digits, so that logs compare exactly.
inline QString asText(float x)
{
    return QString::number(static_cast<double>(x), 'g', 9);
}
inline QString asText(double x)
{
    return QString::number(x, 'g', 17);
}
inline QString asText(RelativeOperator x)
{
    static const char *const names[] = {"None", "Add", "Subtract", "Multiply", "Divide", "Assign"};
    return QString::fromLatin1(names[x]);
}
inline QString asText(int x)
{
    return QString::number(x);
}
inline QString asText(bool x)
{
    return x ? QStringLiteral("true") : QStringLiteral("false");
}
inline QString asText(const QString &x)
{
    return QLatin1Char('"') + x + QLatin1Char('"');
}
inline QString asText(const QLxColor &c)
{
    return QStringLiteral("hsv ") + asText(c.hue) + QLatin1Char(' ') + asText(c.saturation) +
           QLatin1Char(' ') + asText(c.value);
}

/// One ordered log of all signals of all senders that it watches: a line for each emission, "name(payload)".
class SignalLog
{
public:
    /// The receiver to use for other connections that should end with the log.
    QObject *context() { return &m_context; }

    template <typename Sender, typename Class, typename... Args>
    void watch(Sender *sender, void (Class::*signal)(Args...), const char *name)
    {
        QObject::connect(sender, signal, &m_context, line<Args...>(name));
    }
    template <typename Sender, typename Class, typename... Args>
    void watch(Sender *sender, void (Class::*signal)(Args...) const, const char *name)
    {
        QObject::connect(sender, signal, &m_context, line<Args...>(name));
    }

    void note(const QString &line) { m_lines.append(line); }

    /// The lines since the last take().
    QString text() const { return m_lines.join(QLatin1Char('\n')); }
    /// The same as a list, for once.
    QStringList take()
    {
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }

private:
    template <typename... Args>
    auto line(const char *name)
    {
        return [this, text = QString::fromLatin1(name)](Args... args) {
            QStringList payload;
            (payload.append(asText(args)), ...);
            note(text + QLatin1Char('(') + payload.join(QStringLiteral(", ")) + QLatin1Char(')'));
        };
    }

    QObject m_context;
    QStringList m_lines;
};

/// One line of an expected log.
struct LogLine : QString
{
    LogLine(const char *line)
        : QString(QString::fromLatin1(line))
    {
    }
    LogLine(const QString &line)
        : QString(line)
    {
    }
};

inline QString logText(std::initializer_list<LogLine> lines)
{
    QStringList text;
    for (const LogLine &line : lines)
        text.append(line);
    return text.join(QLatin1Char('\n'));
}

/// Compares what was logged since the last look, as in COMPARE_LOG(log, {"first()", "second(1)"}).
#define COMPARE_LOG(log, ...) QCOMPARE((log).take().join(QLatin1Char('\n')), logText(__VA_ARGS__))

#endif
