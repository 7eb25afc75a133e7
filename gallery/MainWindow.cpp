// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "Pages.h"
#include "Palettes.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStyledItemDelegate>

namespace {

/// Keeps the titles off the edge of the window. The selection alone shows the current row.
class TitleDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration; // an empty one
        option->decorationSize = QSize(option->fontMetrics.height() / 2, 1);
        option->state &= ~QStyle::State_HasFocus;
    }
};

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_list(new QListWidget)
    , m_stack(new QStackedWidget)
{
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setItemDelegate(new TitleDelegate(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int unit = fontMetrics().height();
    m_list->setFixedWidth(9 * unit);
    for (const Page &page : pages()) {
        auto *const item = new QListWidgetItem(page.title, m_list);
        item->setSizeHint({0, 2 * unit});
        m_stack->addWidget(page.create());
    }
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_list->setCurrentRow(0);

    auto *const area = new QWidget;
    auto *const layout = new QHBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_list);
    layout->addWidget(m_stack, 1);
    setCentralWidget(area);
    makeMenus();
    resize(900, 640);
}

void MainWindow::makeMenus()
{
    QMenu *const file = menuBar()->addMenu(QStringLiteral("&File"));
    QAction *const quit = file->addAction(QStringLiteral("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);

    QMenu *const view = menuBar()->addMenu(QStringLiteral("&View"));
    m_dark = view->addAction(QStringLiteral("&Dark palette"));
    m_dark->setCheckable(true);
    m_dark->setShortcut(QKeySequence(QStringLiteral("Ctrl+D")));
    connect(m_dark, &QAction::toggled, this,
            [](bool dark) { QApplication::setPalette(dark ? darkPalette() : lightPalette()); });
}

void MainWindow::showPage(int index)
{
    m_list->setCurrentRow(index);
}

QWidget *MainWindow::page(int index) const
{
    return m_stack->widget(index);
}

void MainWindow::setDark(bool dark)
{
    m_dark->setChecked(dark);
}
