// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "MainWindow.h"
#include "Palettes.h"
#include "Render.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

namespace {

int fail(const QString &message)
{
    QTextStream(stderr) << QStringLiteral("qlx-gallery: ") << message << QLatin1Char('\n');
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the widgets of QLx Controls."));
    parser.addHelpOption();
    const QCommandLineOption render(QStringLiteral("render"),
                                    QStringLiteral("Write a picture of every page to <directory> and exit."),
                                    QStringLiteral("directory"));
    parser.addOption(render);

    // The application reads its environment when it is made, so rendering is prepared before.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    parser.parse(arguments);
    const bool rendering = parser.isSet(render);
    if (rendering)
        prepareRendering();

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, !rendering);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Without this, what is below a style sheet would not follow the palette.
    QApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qlx-gallery"));
    QApplication::setApplicationDisplayName(QStringLiteral("QLx Controls Gallery"));
    parser.process(application);
    if (!parser.positionalArguments().isEmpty())
        return fail(QStringLiteral("unexpected argument: ") + parser.positionalArguments().constFirst());

    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(lightPalette());
    if (rendering) {
        const QString error = renderPages(parser.value(render));
        return error.isEmpty() ? 0 : fail(error);
    }
    MainWindow window;
    window.show();
    return QApplication::exec();
}
