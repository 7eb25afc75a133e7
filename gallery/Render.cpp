// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Render.h"

#include "MainWindow.h"
#include "Pages.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QLayout>
#include <QLocale>
#include <QPixmap>
#include <QSaveFile>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>
#include <iterator>

namespace {

/// Keeps dialogs off the screen, so that no window manager sizes them.
class DialogHider : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish) { // precedes the showing
            auto *const widget = qobject_cast<QWidget *>(watched);
            if (widget && widget->windowType() == Qt::Dialog)
                widget->setAttribute(Qt::WA_DontShowOnScreen);
        }
        return false;
    }
};

QString fileName(const QString &title)
{
    return title.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

QList<QWidget *> openDialogs()
{
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    QList<QWidget *> dialogs;
    std::copy_if(windows.begin(), windows.end(), std::back_inserter(dialogs), [](const QWidget *window) {
        return window->windowType() == Qt::Dialog && window->isVisible();
    });
    return dialogs;
}

struct Picture
{
    QString name;
    QPixmap pixmap;
};

/// The window and the dialogs that are open beside it, of one with tabs also every other tab.
QVector<Picture> takePictures(QWidget &window, const QString &name)
{
    QVector<Picture> pictures{{name, window.grab()}};
    const QList<QWidget *> dialogs = openDialogs();
    for (QWidget *dialog : dialogs) {
        pictures.append({name + QStringLiteral("-dialog"), dialog->grab()});
        auto *const tabs = dialog->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
        const int first = tabs ? tabs->currentIndex() : 0;
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            if (i == first)
                continue;
            tabs->setCurrentIndex(i);
            QApplication::processEvents();
            pictures.append({name + QLatin1Char('-') + fileName(tabs->tabText(i)), dialog->grab()});
        }
        if (tabs)
            tabs->setCurrentIndex(first);
    }
    return pictures;
}

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

    DialogHider hider;
    qApp->installEventFilter(&hider);
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
            const QVector<Picture> pictures = takePictures(window, fileName(pages().at(i).title));
            for (const Picture &picture : pictures) {
                const QString path = target.filePath(
                    QStringLiteral("%1-%2.png")
                        .arg(picture.name, dark ? QStringLiteral("dark") : QStringLiteral("light")));
                QString error = write(picture.pixmap, path);
                if (!error.isEmpty())
                    return error;
                out << path << QLatin1Char('\n');
            }
        }
        const QList<QWidget *> dialogs = openDialogs();
        for (QWidget *dialog : dialogs)
            dialog->close();
    }
    return {};
}
