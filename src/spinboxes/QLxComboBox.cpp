// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxComboBox.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QStyle>

#include <algorithm>

QLxComboBox::QLxComboBox(QWidget *parent)
    : QComboBox(parent)
{
}

void QLxComboBox::showPopup()
{
    const QFontMetrics metrics(view()->font());
    int width = 0;
    for (int i = 0; i < count(); ++i) {
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED // the renamed one is the same
            width = std::max(width, metrics.width(itemText(i)));
        QT_WARNING_POP
    }
    if (count() > maxVisibleItems())
        width += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(width);
    QComboBox::showPopup();
    Q_EMIT popupShown(currentIndex());
}

void QLxComboBox::hidePopup()
{
    QComboBox::hidePopup();
    Q_EMIT popupHidden();
}
