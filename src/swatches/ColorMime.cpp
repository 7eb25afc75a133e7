// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ColorMime_p.h"

#include "QLxColorSpaces.h"

#include <QDrag>
#include <QMimeData>
#include <QPixmap>
#include <QWidget>

namespace QLx {

bool hasColor(const QMimeData *mime)
{
    return mime && mime->colorData().value<QColor>().isValid();
}

QLxColor colorFrom(const QMimeData *mime)
{
    const auto color = mime->colorData().value<QColor>();
    return rgbToHsv(static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                    static_cast<float>(color.blueF()));
}

void dragColor(QWidget *source, const QLxColor &color, const QPixmap &swatch)
{
    auto *const mime = new QMimeData;
    mime->setColorData(toQColorF(color));
    auto *const drag = new QDrag(source); // Qt deletes it, and the data with it, once it has ended
    drag->setMimeData(mime);
    drag->setPixmap(swatch);
    // Qt would go on dragging what its source took along.
    const auto cancelling = QObject::connect(source, &QObject::destroyed, [] { QDrag::cancel(); });
    drag->exec(Qt::CopyAction);
    QObject::disconnect(cancelling);
}

} // namespace QLx
