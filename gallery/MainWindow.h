// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_MAINWINDOW_H
#define GALLERY_MAINWINDOW_H

#include <QMainWindow>

class QAction;
class QListWidget;
class QStackedWidget;

/// The list of pages at the left and the chosen page beside it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    void showPage(int index);
    QWidget *page(int index) const;
    /// Sets the palette of the whole application.
    void setDark(bool dark);

private:
    void makeMenus();

    QListWidget *m_list = nullptr;
    QStackedWidget *m_stack = nullptr;
    QAction *m_dark = nullptr;
};

#endif
