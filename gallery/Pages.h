// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PAGES_H
#define GALLERY_PAGES_H

#include <QString>
#include <QVector>

class QWidget;

/// A page of the gallery.
struct Page
{
    QString title;
    /// Makes the page; the caller owns it.
    QWidget *(*create)();
    /// Uses the page as a visitor might, so that its pictures show something happening.
    void (*demonstrate)(QWidget &page);
};

/// All pages, in the order of the list.
const QVector<Page> &pages();

#endif
