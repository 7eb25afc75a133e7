// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Render.h"

#include "MainWindow.h"
#include "Pages.h"

#include <QApplication>
#include <QDir>
#include <QLayout>
#include <QLocale>
#include <QPixmap>
#include <QSaveFile>
#include <QTextStream>

namespace {

/// Returns what went wrong, or an empty string.
QString write(const QPixmap &picture, const QString &path)
{
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
    return written ? QString() : QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
}

} // namespace

void prepareRendering()
{
    for (const char *name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                             "QT_ENABLE_HIGHDPI_SCALING", "QT_STYLE_OVERRIDE"})
        qunsetenv(name);
    qputenv("QT_FONT_DPI", "96");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QLocale::setDefault(QLocale::c());
}

QString renderPages(const QString &directory)
{
    if (directory.isEmpty())
        return QStringLiteral("no directory given to render into");
    if (!QDir().mkpath(directory))
        return QStringLiteral("cannot create the directory %1").arg(directory);
    const QDir target(directory);

    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    MainWindow window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.layout()->activate();
    window.show();

    QTextStream out(stdout);
    for (int i = 0; i < pages().size(); ++i) {
        window.showPage(i);
        QApplication::processEvents();
        pages().at(i).demonstrate(*window.page(i));
        for (const bool dark : {false, true}) {
            window.setDark(dark);
            QApplication::processEvents();
            const QString path = target.filePath(
                QStringLiteral("%1-%2.png")
                    .arg(pages().at(i).title.toLower().replace(QLatin1Char(' '), QLatin1Char('-')),
                         dark ? QStringLiteral("dark") : QStringLiteral("light")));
            QString error = write(window.grab(), path);
            if (!error.isEmpty())
                return error;
            out << path << QLatin1Char('\n');
        }
    }
    return {};
}
