// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DESKTOP_H
#define DESKTOP_H

#include <QAbstractButton>
#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QWidget>
#include <QtTest>

#include <functional>
#include <utility>

/// Runs xdotool with the commands while our own events go on. Returns whether it succeeded.
inline bool onDesktop(const QString &commands)
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"), commands.simplified().split(QLatin1Char(' ')));
    return xdotool.waitForStarted() &&
           QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }, 20000) &&
           xdotool.exitStatus() == QProcess::NormalExit && xdotool.exitCode() == 0;
}

inline QString moveTo(const QPoint &global)
{
    return QStringLiteral("mousemove %1 %2 ").arg(global.x()).arg(global.y());
}

inline QString moveTo(const QWidget *widget)
{
    return moveTo(widget->mapToGlobal(widget->rect().center()));
}

/// Without the pause that xdotool's own click makes.
inline QString clickOn(const QPoint &global)
{
    return moveTo(global) + QStringLiteral("mousedown 1 mouseup 1 ");
}

inline QString clickOn(const QWidget *widget)
{
    return clickOn(widget->mapToGlobal(widget->rect().center()));
}

/// On a radio button or a check box, where it shows that it is checked.
inline QString clickOnMark(const QAbstractButton *button)
{
    return clickOn(button->mapToGlobal({8, button->height() / 2}));
}

/// Presses at the one point, moves in small steps and releases at the other.
inline QString drag(const QPoint &from, const QPoint &to)
{
    QString commands = moveTo(from) + QStringLiteral("mousedown 1 ");
    for (int i = 1; i <= 10; ++i)
        commands += moveTo(from + (to - from) * i / 10) + QStringLiteral("sleep 0.02 ");
    return commands + QStringLiteral("sleep 0.1 mouseup 1 ");
}

/// Types a number or an expression.
inline QString typing(const QString &text)
{
    static const QHash<QChar, QString> names{
        {QLatin1Char('.'), QStringLiteral("period")},    {QLatin1Char(','), QStringLiteral("comma")},
        {QLatin1Char('+'), QStringLiteral("plus")},      {QLatin1Char('-'), QStringLiteral("minus")},
        {QLatin1Char('*'), QStringLiteral("asterisk")},  {QLatin1Char('/'), QStringLiteral("slash")},
        {QLatin1Char('='), QStringLiteral("equal")},     {QLatin1Char('('), QStringLiteral("parenleft")},
        {QLatin1Char(')'), QStringLiteral("parenright")}};
    QString commands = QStringLiteral("key ");
    for (const QChar character : text)
        commands += names.value(character, QString(character)) + QLatin1Char(' ');
    return commands;
}

/// In words; nothing if the lists are equal.
inline QString firstDifference(const QStringList &is, const QStringList &should)
{
    int i = 0;
    while (i < is.size() && i < should.size() && is.at(i) == should.at(i))
        ++i;
    return is == should
               ? QString()
               : QStringLiteral("number %1 of %2 is \"%3\", should be \"%4\"")
                     .arg(QString::number(i), QString::number(should.size()), is.value(i), should.value(i));
}

/// Sees the events of widgets before they do.
class Onlooker : public QObject
{
public:
    explicit Onlooker(std::function<void(QWidget *, const QEvent *)> see)
        : m_see(std::move(see))
    {
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_see(qobject_cast<QWidget *>(watched), event);
        return false;
    }

private:
    const std::function<void(QWidget *, const QEvent *)> m_see;
};

/// What the screen shows, also of other programs.
inline QImage onScreen()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

/// Whether the swatch comes to show the colour on the screen, and Qt knows exactly where: under a window
/// manager that takes a while.
inline bool seen(const QWidget *swatch, const QColor &color)
{
    return QTest::qWaitFor(
        [&] {
            const QImage screen = onScreen();
            const auto at = [&](int x, int y) { return QColor(screen.pixel(swatch->mapToGlobal({x, y}))); };
            const int x = swatch->width() / 2;
            const int y = swatch->height() / 2;
            const QColor frame = at(0, y);
            return at(x, y) == color && at(x, 1) == color && at(1, y) == color && frame != color &&
                   at(x, 0) == frame;
        },
        15000);
}

/// Whether all comes to be painted.
inline bool calm()
{
    QImage last;
    int equal = 0;
    return QTest::qWaitFor(
        [&] {
            const QImage now = onScreen();
            equal = now == last ? equal + 1 : 0;
            last = now;
            return equal == 3;
        },
        2000);
}

/// Numbered pictures of the screen in a folder beside the program, and all of them in its film.png.
class Film
{
public:
    void begin()
    {
        m_frames.clear();
        m_folder.setPath(QCoreApplication::applicationFilePath() + QStringLiteral("-film"));
        m_folder.removeRecursively();
        QVERIFY(m_folder.mkpath(QStringLiteral(".")));
    }
    void shoot(const QString &caption, bool isCalm)
    {
        if (!isCalm)
            qInfo("The picture '%s' came too early", qPrintable(caption));
        m_frames.append({caption, onScreen()});
        const QString number = QStringLiteral("%1").arg(m_frames.size(), 2, 10, QLatin1Char('0'));
        const QString name = QString(caption).replace(QLatin1Char(' '), QLatin1Char('-'));
        QVERIFY(
            m_frames.last().second.save(m_folder.filePath(QStringLiteral("%1-%2.png").arg(number, name))));
    }
    void end() const
    {
        const int columns = 3;
        const int rows = (m_frames.size() + columns - 1) / columns;
        const QSize cell(640, 532);
        QImage sheet(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        for (int i = 0; i < m_frames.size(); ++i) {
            const QRect place(QPoint(i % columns * cell.width(), i / columns * cell.height()), cell);
            painter.drawText(place.adjusted(6, 2, 0, 0),
                             QStringLiteral("%1 %2").arg(i + 1).arg(m_frames.at(i).first));
            painter.drawImage(place.adjusted(2, 20, -2, 0), m_frames.at(i).second);
        }
        painter.end();
        QVERIFY(sheet.save(m_folder.filePath(QStringLiteral("film.png"))));
    }

private:
    QDir m_folder;
    QVector<QPair<QString, QImage>> m_frames;
};

#endif
