// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

#include <QStyle>
#include <QStyleFactory>

namespace {

QtMessageHandler previousHandler = nullptr;
QStringList unexpected;

void watchWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // What the offscreen platform says of window-manager requests is harmless.
    const bool harmless = message.startsWith(QLatin1String("This plugin does not support"));
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !harmless)
        unexpected.append(message);
    previousHandler(type, context, message);
}

} // namespace

void TestCase::init()
{
    unexpected.clear();
    previousHandler = qInstallMessageHandler(watchWarnings);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(previousHandler);
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QLatin1Char('\n'))));
}

void pinTestEnvironment()
{
    const QByteArray platform = qgetenv("QLX_TEST_PLATFORM");
    qputenv("QT_QPA_PLATFORM", platform.isEmpty() ? QByteArrayLiteral("offscreen") : platform);
    qputenv("QT_FONT_DPI", "96");
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_STYLE_OVERRIDE");
    QLocale::setDefault(QLocale::c());
}

void pinTestLook()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
}
