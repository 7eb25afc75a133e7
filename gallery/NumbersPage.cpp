// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "NumbersPage.h"

#include "NumberSignals.h"
#include "ObjectsBox.h"
#include "QLxComboBox.h"
#include "QLxDoubleSpiner.h"
#include "QLxSceneUnit.h"
#include "QLxSpiner.h"
#include "SignalLog.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>

#include <memory>

namespace {

/// Legible in light and dark palettes, neither of which it takes anything from.
const char feedbackStyle[] =
    "QLxDoubleSpiner[inputAcceptable=\"false\"] { color: white; background-color: #b5404a }";

/// The size hint of these boxes is small, for crowded panels.
void makeRoomy(QWidget *box)
{
    const int unit = box->fontMetrics().height();
    box->setFixedSize(8 * unit, unit + 10);
}

class NumbersPage : public QWidget
{
public:
    NumbersPage();

private:
    QGroupBox *makeBoxes();
    QLxDoubleSpiner *makeDoubleSpiner(const QString &name, double value);
    QLxSpiner *makeSpiner();
    QLxComboBox *makeFormats();
    QWidget *makeUnits();
    void setFormat(int decimals, bool exact);
    void setUnit(float millimetres);

    SignalLog *m_log;
    ObjectsBox *m_objects;
};

NumbersPage::NumbersPage()
    : m_log(new SignalLog)
    , m_objects(new ObjectsBox(makeDoubleSpiner(QStringLiteral("Width"), 0.0)))
{
    setStyleSheet(QLatin1String(feedbackStyle));

    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(14, 12, 14, 14);
    grid->setSpacing(14);
    grid->addWidget(makeBoxes(), 0, 0);
    grid->addWidget(m_objects, 0, 1);
    grid->addWidget(m_log, 1, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
}

QGroupBox *NumbersPage::makeBoxes()
{
    struct Row
    {
        const char *title;
        QWidget *box;
        const char *hint;
    };
    const Row rows[] = {
        {"Length", makeDoubleSpiner(QStringLiteral("Length"), 1.0), "Takes 2*(3+4)/5, *=1.5"},
        {"Height", makeDoubleSpiner(QStringLiteral("Height"), 12.5), "Marks what it cannot take"},
        {"Whole number", makeSpiner(), "Edits its step in place"},
        {"Decimals", makeFormats(), "Opens as wide as its texts"},
    };
    auto *const box = new QGroupBox(QStringLiteral("Spin boxes and a combo box"));
    auto *const grid = new QGridLayout(box);
    grid->setHorizontalSpacing(12);
    int line = 0;
    for (const Row &row : rows) {
        grid->addWidget(new QLabel(QLatin1String(row.title)), line, 0);
        grid->addWidget(row.box, line, 1);
        grid->addWidget(new QLabel(QLatin1String(row.hint)), line++, 2);
    }
    grid->addWidget(new QLabel(QStringLiteral("Scene unit")), line, 0);
    grid->addWidget(makeUnits(), line++, 1, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("Right button: the step. Middle button: drags the value.")),
                    line, 0, 1, 3);
    return box;
}

QLxDoubleSpiner *NumbersPage::makeDoubleSpiner(const QString &name, double value)
{
    auto *const box = new QLxDoubleSpiner;
    box->setObjectName(name);
    box->setDisplaySceneUnit(true);
    box->setValue(value);
    makeRoomy(box);
    watch(box, m_log);
    return box;
}

QLxSpiner *NumbersPage::makeSpiner()
{
    auto *const box = new QLxSpiner;
    box->setObjectName(QStringLiteral("Whole number"));
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    box->setDisplaySceneUnit(true);
    box->setValue(250);
    box->setSingleStep(25);
    makeRoomy(box);
    connect(box, QOverload<int>::of(&QLxSpiner::valueChanged), m_log,
            logger<int>(box, "valueChanged", m_log));
    connect(box, &QLxSpiner::singleStepChanged, m_log, logger<int>(box, "singleStepChanged", m_log));
    connect(box, &QLxSpiner::editingFinished, m_log, logger<>(box, "editingFinished", m_log));
    return box;
}

QLxComboBox *NumbersPage::makeFormats()
{
    struct Format
    {
        const char *text;
        int decimals;
        bool exact;
    };
    static constexpr Format formats[] = {{"2 to 6", 6, false},
                                         {"Always 3 digits, zeros included, as in 2.500", 3, true},
                                         {"Always 4 digits, zeros included, as in 2.5000", 4, true},
                                         {"Whole numbers, with 2.5 shown as 3, but kept", 0, true}};
    auto *const box = new QLxComboBox;
    box->setObjectName(QStringLiteral("Decimals"));
    for (const Format &format : formats)
        box->addItem(QLatin1String(format.text));
    makeRoomy(box);
    connect(box, QOverload<int>::of(&QLxComboBox::currentIndexChanged), this,
            [this](int index) { setFormat(formats[index].decimals, formats[index].exact); });
    connect(box, &QLxComboBox::popupShown, m_log, logger<int>(box, "popupShown", m_log));
    connect(box, &QLxComboBox::popupHidden, m_log, logger<>(box, "popupHidden", m_log));
    return box;
}

QWidget *NumbersPage::makeUnits()
{
    struct Unit
    {
        const char *title;
        float millimetres;
    };
    constexpr Unit units[] = {{"mm", 1.0F}, {"cm", 10.0F}, {"m", 1000.0F}, {"none", 0.0F}};
    auto *const choice = new QWidget;
    auto *const layout = new QHBoxLayout(choice);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    for (const Unit &unit : units) {
        auto *const radio = new QRadioButton(QLatin1String(unit.title));
        radio->setObjectName(radio->text());
        radio->setChecked(QLx::sceneUnit() == unit.millimetres);
        connect(radio, &QRadioButton::clicked, this, [=] { setUnit(unit.millimetres); });
        layout->addWidget(radio);
    }
    layout->addStretch();
    return choice;
}

void NumbersPage::setFormat(int decimals, bool exact)
{
    const QList<QLxDoubleSpiner *> boxes = findChildren<QLxDoubleSpiner *>();
    for (QLxDoubleSpiner *box : boxes) {
        box->setDisplayDecimals(decimals);
        box->setUseExactDisplayDecimals(exact);
        box->setDecimals(box->decimals()); // writes the text anew
    }
    m_objects->refresh();
}

void NumbersPage::setUnit(float millimetres)
{
    QLx::setSceneUnit(millimetres);
    QLxDoubleSpiner::updateInstancesWithSceneUnit();
    QLxSpiner::updateInstancesWithSceneUnit();
    m_objects->refresh();
}

void press(QWidget &widget, int key, const QString &text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
}

/// Types over what the box shows.
void type(QAbstractSpinBox &box, const QString &text)
{
    box.selectAll();
    for (const QChar c : text)
        press(box, Qt::Key_unknown, c);
}

void enter(QAbstractSpinBox &box, const QString &text)
{
    type(box, text);
    press(box, Qt::Key_Return);
    box.findChild<QLineEdit *>()->deselect(); // as it does when the keyboard focus leaves
}

/// Chooses "Step...", the last entry of the context menu.
void chooseStep(QLxSpiner &box)
{
    QTimer soon;
    soon.setSingleShot(true);
    QObject::connect(&soon, &QTimer::timeout, &box, [] {
        if (auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            menu->setActiveAction(menu->actions().constLast());
            press(*menu, Qt::Key_Return);
        }
    });
    soon.start(0);
    const QPoint pos = box.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, box.mapToGlobal(pos));
    QApplication::sendEvent(&box, &event);
}

} // namespace

QWidget *createNumbersPage()
{
    return std::make_unique<NumbersPage>().release();
}

void demonstrateNumbersPage(QWidget &page)
{
    const auto box = [&](const char *name) -> QLxDoubleSpiner & {
        return *page.findChild<QLxDoubleSpiner *>(QLatin1String(name));
    };
    page.findChild<QRadioButton *>(QStringLiteral("cm"))->click();
    enter(box("Length"), QStringLiteral("2*(3+4)/5"));
    page.findChild<QTreeWidget *>()->selectAll();
    enter(box("Width"), QStringLiteral("*=1.5"));
    chooseStep(*page.findChild<QLxSpiner *>());
    type(box("Height"), QStringLiteral("2*(3+"));
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(5000);
    while (!box("Height").property("inputAcceptable").isValid() && limit.isActive()) // takes 800 ms
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
