// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ObjectsBox.h"

#include "QLxDoubleSpiner.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

double widthOf(const QTreeWidgetItem *object)
{
    return object->data(1, Qt::UserRole).toDouble();
}

double applied(RelativeOperator op, double value, double operand)
{
    switch (op) {
    case RelOpAdd:
        return value + operand;
    case RelOpSubtract:
        return value - operand;
    case RelOpMultiply:
        return value * operand;
    case RelOpDivide:
        return operand == 0.0 ? value : value / operand;
    case RelOpAssign:
        return operand;
    case RelOpNone:
        break;
    }
    return value;
}

} // namespace

ObjectsBox::ObjectsBox(QLxDoubleSpiner *width, QWidget *parent)
    : QGroupBox(QStringLiteral("One box for all selected objects"), parent)
    , m_width(width)
    , m_objects(new QTreeWidget)
{
    m_objects->setHeaderLabels({QStringLiteral("Object"), QStringLiteral("Width")});
    m_objects->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    m_objects->header()->setSectionsMovable(false);
    m_objects->setRootIsDecorated(false);
    m_objects->setSelectionMode(QAbstractItemView::ExtendedSelection);
    addObjects();

    m_width->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    connect(m_width, &QLxDoubleSpiner::relativeOperatorApplied, this, &ObjectsBox::edit);
    connect(m_width, QOverload<double>::of(&QLxDoubleSpiner::valueChanged), this,
            [this](double value) { edit(RelOpAssign, value); });
    connect(m_objects, &QTreeWidget::itemSelectionChanged, this, &ObjectsBox::refresh);
    m_objects->setCurrentItem(m_objects->topLevelItem(0));

    auto *const grid = new QGridLayout(this);
    grid->setHorizontalSpacing(12);
    grid->addWidget(new QLabel(QStringLiteral("Select several: +=5 or *=1.5 changes each.")), 0, 0, 1, 2);
    grid->addWidget(m_objects, 1, 0, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("Width")), 2, 0);
    grid->addWidget(m_width, 2, 1, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
}

void ObjectsBox::addObjects()
{
    struct Object
    {
        const char *name;
        double width;
    };
    constexpr Object objects[] = {{"Table", 120.0}, {"Chair", 45.0}, {"Lamp", 22.5}, {"Shelf", 80.0}};
    const int rowHeight = m_objects->fontMetrics().height() + 6;
    for (const Object &object : objects) {
        auto *const item = new QTreeWidgetItem(m_objects, {QLatin1String(object.name)});
        item->setSizeHint(0, {0, rowHeight});
        item->setData(1, Qt::UserRole, object.width);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    m_objects->setFixedHeight(m_objects->header()->sizeHint().height() +
                              m_objects->topLevelItemCount() * rowHeight + 2 * m_objects->frameWidth());
}

void ObjectsBox::edit(RelativeOperator op, double operand)
{
    const QList<QTreeWidgetItem *> selected = m_objects->selectedItems();
    for (QTreeWidgetItem *object : selected)
        object->setData(1, Qt::UserRole, applied(op, widthOf(object), operand));
    refresh();
}

void ObjectsBox::refresh()
{
    const QSignalBlocker blocker(m_width);
    const QTreeWidgetItem *shown = nullptr; // the first selected one
    for (int i = 0; i < m_objects->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const object = m_objects->topLevelItem(i);
        object->setText(1, m_width->textFromValue(widthOf(object)) + m_width->suffix());
        if (!shown && object->isSelected())
            shown = object;
    }
    m_width->setEnabled(shown);
    if (shown)
        m_width->setValue(widthOf(shown));
}
