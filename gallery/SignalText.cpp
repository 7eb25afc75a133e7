// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SignalText.h"

QString number(float value, int decimals)
{
    return QString::number(static_cast<double>(value), 'f', decimals);
}

QString call(const char *signal, const QString &arguments)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(signal), arguments);
}

QString call(const char *signal, const QLxColor &color)
{
    return call(signal, QStringLiteral("QLxColor{%1, %2, %3}")
                            .arg(number(color.hue, 2), number(color.saturation, 4), number(color.value, 4)));
}

QString call(const char *signal, int red, int green, int blue)
{
    return call(signal, QStringLiteral("int %1, %2, %3").arg(red).arg(green).arg(blue));
}

QString call(const char *signal, float value)
{
    return call(signal, number(value, 4));
}

QString call(const char *signal, float red, float green, float blue)
{
    return call(signal,
                QStringLiteral("float %1, %2, %3").arg(number(red, 4), number(green, 4), number(blue, 4)));
}
