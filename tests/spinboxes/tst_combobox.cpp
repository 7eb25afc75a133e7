// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The combo box: how wide its list is, and what it says when the list opens and closes.
#include "QLxComboBox.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <QWindow>

namespace {

const QStringList threeItems = {QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};

void watch(SignalLog &log, QLxComboBox *box)
{
    log.watch(box, &QLxComboBox::popupShown, "popupShown");
    log.watch(box, &QLxComboBox::popupHidden, "popupHidden");
    log.watch(box, QOverload<int>::of(&QLxComboBox::currentIndexChanged), "currentIndexChanged");
    log.watch(box, QOverload<int>::of(&QLxComboBox::activated), "activated");
}

/// A box with three items, which has the keyboard focus, in an active window.
struct Window : QWidget
{
    Window()
        : box(new QLxComboBox)
    {
        (new QVBoxLayout(this))->addWidget(box);
        box->addItems(threeItems);
        box->setFocus();
        show();
        if (!QTest::qWaitForWindowActive(this))
            qWarning("the window is not active"); // fails the test
    }
    QPointer<QLxComboBox> box;
};

bool isOpen(const QLxComboBox *box)
{
    return box->view()->isVisible();
}

void clickItem(QLxComboBox *box, int row)
{
    const QModelIndex index = box->model()->index(row, box->modelColumn(), box->rootModelIndex());
    const QPoint at(8, box->view()->visualRect(index).center().y());
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {}, at);
}

/// As the window system does: a press anywhere goes to the window that is open on top.
void clickOutside(QLxComboBox *box)
{
    QTest::mouseClick(box->view()->window()->windowHandle(), Qt::LeftButton, {}, QPoint(-20, -20));
}

struct Closing
{
    const char *name;
    void (*act)(QLxComboBox *box);
};

const Closing closings[] = {
    {"item clicked", [](QLxComboBox *box) { clickItem(box, 1); }},
    {"Escape", [](QLxComboBox *box) { QTest::keyClick(box->view(), Qt::Key_Escape); }},
    {"Return", [](QLxComboBox *box) { QTest::keyClick(box->view(), Qt::Key_Return); }},
    {"F4", [](QLxComboBox *box) { QTest::keyClick(box->view(), Qt::Key_F4); }},
    {"click outside", clickOutside},
    {"by program", [](QLxComboBox *box) { box->hidePopup(); }},
    {"disabled", [](QLxComboBox *box) { box->setEnabled(false); }},
    {"hidden", [](QLxComboBox *box) { box->hide(); }},
};

struct Deed
{
    const char *name;
    void (*act)(QLxComboBox *box);
};

const Deed deeds[] = {
    {"deletes it later", [](QLxComboBox *box) { box->deleteLater(); }},
    {"hides it", [](QLxComboBox *box) { box->hide(); }},
    {"disables it", [](QLxComboBox *box) { box->setEnabled(false); }},
    {"clears it", [](QLxComboBox *box) { box->clear(); }},
    {"gives it another model", [](QLxComboBox *box) { box->setModel(new QStandardItemModel(2, 1, box)); }},
    {"closes the list", [](QLxComboBox *box) { box->hidePopup(); }},
    {"opens the list", [](QLxComboBox *box) { box->showPopup(); }},
};

} // namespace

class TestComboBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listFitsTheLongestText_data();
    void listFitsTheLongestText();
    void listFollowsTheTexts();
    void listFollowsItsFont();
    void emptyBox();
    void saysTheCurrentIndex();
    void saysSoAfterwards();
    void opensByEvents_data();
    void opensByEvents();
    void closesByEvents_data();
    void closesByEvents();
    void chosenByTheKeyboard();
    void everyCallIsTold();
    void receivers_data();
    void receivers();
    void destroyedWhileOpen();
};

void TestComboBox::initTestCase()
{
    QApplication::setDoubleClickInterval(0); // a list that just opened takes no clicks for so long
}

void TestComboBox::listFitsTheLongestText_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<int>("maxVisible");
    QTest::addColumn<QString>("longest");
    QTest::addColumn<bool>("scrollBar");
    const QString wide(40, QLatin1Char('W'));
    QStringList ten = threeItems + threeItems + threeItems;
    ten.append(wide);
    QTest::newRow("no item") << QStringList() << 10 << QString() << false;
    QTest::newRow("an item without text") << QStringList{QString()} << 10 << QString() << false;
    QTest::newRow("longest last") << threeItems << 10 << QStringLiteral("three") << false;
    QTest::newRow("longest first") << QStringList{wide, QStringLiteral("i")} << 10 << wide << false;
    QTest::newRow("wide letters beat many")
        << QStringList{QStringLiteral("iiii"), QStringLiteral("WWW"), QStringLiteral("lllll")} << 10
        << QStringLiteral("WWW") << false;
    QTest::newRow("as many items as are visible") << ten << 10 << wide << false;
    QTest::newRow("one more") << ten + QStringList(QString()) << 10 << wide << true;
    QTest::newRow("as many as the host wants to see") << threeItems << 3 << QStringLiteral("three") << false;
    QTest::newRow("more than the host wants to see") << threeItems << 2 << QStringLiteral("three") << true;
    QTest::newRow("none visible") << QStringList{QString()} << 0 << QString() << true;
}

void TestComboBox::listFitsTheLongestText()
{
    QFETCH(QStringList, items);
    QFETCH(int, maxVisible);
    QFETCH(QString, longest);
    QFETCH(bool, scrollBar);
    QLxComboBox box;
    QCOMPARE(box.maxVisibleItems(), 10);
    box.setMaxVisibleItems(maxVisible);
    box.addItems(items);
    QStyle *const style = box.style();
    const int barWidth = style->pixelMetric(QStyle::PM_ScrollBarExtent);
    QVERIFY(barWidth > 0);
    box.show();
    box.showPopup();
    const int width = QFontMetrics(box.view()->font()).horizontalAdvance(longest);
    QVERIFY(width > 0 || longest.isEmpty());
    QCOMPARE(box.view()->minimumWidth(), width + (scrollBar ? barWidth : 0));
    QVERIFY(box.view()->width() >= box.view()->minimumWidth() || items.isEmpty());
    box.hidePopup();
    QCOMPARE(box.view()->minimumWidth(), width + (scrollBar ? barWidth : 0)); // never reset
}

void TestComboBox::listFollowsTheTexts()
{
    Window window;
    QLxComboBox *const box = window.box;
    const QFontMetrics metrics(box->view()->font());
    const QString wide(60, QLatin1Char('W'));
    box->addItem(wide);
    QCOMPARE(box->view()->minimumWidth(), 0); // not before the list opens
    box->showPopup();
    QCOMPARE(box->view()->minimumWidth(), metrics.horizontalAdvance(wide));
    box->setItemText(3, QStringLiteral("narrow"));
    QCOMPARE(box->view()->minimumWidth(), metrics.horizontalAdvance(wide)); // only at the next opening
    box->hidePopup();
    QCOMPARE(box->view()->minimumWidth(), metrics.horizontalAdvance(wide));
    box->showPopup();
    QCOMPARE(box->view()->minimumWidth(), metrics.horizontalAdvance(QStringLiteral("narrow")));
    box->hidePopup();
    box->view()->setMinimumWidth(777); // a host's own width lasts until then, too
    static_cast<QComboBox *>(box)->showPopup();
    QCOMPARE(box->view()->minimumWidth(), metrics.horizontalAdvance(QStringLiteral("narrow")));
}

void TestComboBox::listFollowsItsFont()
{
    Window window;
    QFont font = window.box->view()->font();
    font.setPointSize(font.pointSize() * 3);
    const int before = QFontMetrics(window.box->view()->font()).horizontalAdvance(QStringLiteral("three"));
    window.box->view()->setFont(font); // not the box's own
    window.box->showPopup();
    QCOMPARE(window.box->view()->minimumWidth(),
             QFontMetrics(font).horizontalAdvance(QStringLiteral("three")));
    QVERIFY(window.box->view()->minimumWidth() > 2 * before);
}

void TestComboBox::emptyBox()
{
    Window window;
    window.box->clear();
    SignalLog log;
    watch(log, window.box);
    window.box->showPopup();
    COMPARE_LOG(log, {"popupShown(-1)"});
    QVERIFY(!isOpen(window.box));
    QTest::keyClick(window.box, Qt::Key_Down, Qt::AltModifier);
    COMPARE_LOG(log, {"popupShown(-1)"});
}

void TestComboBox::saysTheCurrentIndex()
{
    Window window;
    SignalLog log;
    watch(log, window.box);
    for (const int index : {0, 2, -1}) {
        window.box->setCurrentIndex(index);
        log.take();
        window.box->showPopup();
        QCOMPARE(log.take(), QStringList(QStringLiteral("popupShown(%1)").arg(index)));
        window.box->hidePopup();
    }
}

void TestComboBox::saysSoAfterwards()
{
    Window window;
    SignalLog log;
    const auto note = [&](const char *signal) {
        return [&, signal] {
            log.note(QLatin1String(signal) + QLatin1String(isOpen(window.box) ? ": open" : ": closed"));
        };
    };
    connect(window.box, &QLxComboBox::popupShown, log.context(), note("shown"));
    connect(window.box, &QLxComboBox::popupHidden, log.context(), note("hidden"));
    window.box->showPopup();
    window.box->hidePopup();
    COMPARE_LOG(log, {"shown: open", "hidden: closed"});
}

void TestComboBox::opensByEvents_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("editable");
    for (const bool editable : {false, true}) {
        const char *const kind = editable ? "editable" : "plain";
        QTest::addRow("mouse, %s", kind) << 0 << editable;
        QTest::addRow("F4, %s", kind) << int(Qt::Key_F4) << editable;
        QTest::addRow("Alt+Down, %s", kind) << int(Qt::Key_Down) << editable;
    }
    QTest::newRow("Space, plain") << int(Qt::Key_Space) << false;
}

void TestComboBox::opensByEvents()
{
    QFETCH(int, key);
    QFETCH(bool, editable);
    Window window;
    window.box->setEditable(editable);
    SignalLog log;
    watch(log, window.box);
    if (key == 0)
        QTest::mousePress(window.box, Qt::LeftButton, {}, QPoint(window.box->width() - 6, 8)); // the arrow
    else
        QTest::keyClick(window.box, static_cast<Qt::Key>(key),
                        key == Qt::Key_Down ? Qt::AltModifier : Qt::NoModifier);
    COMPARE_LOG(log, {"popupShown(0)"});
    QVERIFY(isOpen(window.box));
}

void TestComboBox::closesByEvents_data()
{
    QTest::addColumn<int>("closing");
    QTest::addColumn<bool>("editable");
    for (const bool editable : {false, true}) {
        for (int i = 0; i < int(std::size(closings)); ++i)
            QTest::addRow("%s, %s", closings[i].name, editable ? "editable" : "plain") << i << editable;
    }
}

void TestComboBox::closesByEvents()
{
    QFETCH(int, closing);
    QFETCH(bool, editable);
    Window window;
    window.box->setEditable(editable);
    SignalLog log;
    watch(log, window.box);
    for (int i = 0; i < 2; ++i) {
        window.box->setEnabled(true);
        window.box->show();
        window.box->setCurrentIndex(0);
        window.box->showPopup();
        log.take();
        closings[closing].act(window.box);
        QVERIFY(!isOpen(window.box));
        const QByteArray how = closings[closing].name;
        if (how == "item clicked")
            COMPARE_LOG(log, {"popupHidden()", "currentIndexChanged(1)", "activated(1)"});
        else if (how == "Return")
            COMPARE_LOG(log, {"popupHidden()", "activated(0)"});
        else
            COMPARE_LOG(log, {"popupHidden()"});
    }
}

void TestComboBox::chosenByTheKeyboard()
{
    Window window;
    SignalLog log;
    watch(log, window.box);
    QTest::keyClick(window.box, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(window.box->view(), Qt::Key_Down);
    QTest::keyClick(window.box->view(), Qt::Key_Down);
    COMPARE_LOG(log, {"popupShown(0)"});
    QTest::keyClick(window.box->view(), Qt::Key_Return);
    COMPARE_LOG(log, {"popupHidden()", "currentIndexChanged(2)", "activated(2)"});
    // Without the list, keys change the item and nothing opens.
    QTest::keyClick(window.box, Qt::Key_Up);
    COMPARE_LOG(log, {"currentIndexChanged(1)", "activated(1)"});
}

void TestComboBox::everyCallIsTold()
{
    Window window;
    SignalLog log;
    watch(log, window.box);
    window.box->hidePopup(); // was not open
    window.box->showPopup();
    window.box->showPopup();
    window.box->hidePopup();
    window.box->hidePopup();
    COMPARE_LOG(log, {"popupHidden()", "popupShown(0)", "popupShown(0)", "popupHidden()", "popupHidden()"});
}

void TestComboBox::receivers_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<int>("closing");
    QTest::addColumn<int>("deed");
    for (int i = 0; i < int(std::size(deeds)); ++i) {
        QTest::addRow("shown: %s", deeds[i].name) << true << 5 << i;
        for (int j = 0; j < int(std::size(closings)); ++j)
            QTest::addRow("%s: %s", closings[j].name, deeds[i].name) << false << j << i;
    }
}

void TestComboBox::receivers()
{
    QFETCH(bool, shown);
    QFETCH(int, closing);
    QFETCH(int, deed);
    Window window;
    QLxComboBox *const box = window.box;
    bool received = false;
    const auto receive = [&] {
        if (!std::exchange(received, true))
            deeds[deed].act(box);
    };
    if (shown)
        connect(box, &QLxComboBox::popupShown, &window, receive);
    else
        connect(box, &QLxComboBox::popupHidden, &window, receive);
    box->showPopup();
    closings[closing].act(box);
    QVERIFY(received);
    if (qstrcmp(deeds[deed].name, "deletes it later") == 0) {
        QTRY_VERIFY(!window.box);
        QVERIFY(!QApplication::activePopupWidget());
        return;
    }
    // Whatever happened, it works as ever.
    box->hidePopup();
    QVERIFY(!isOpen(box));
    box->setEnabled(true);
    box->show();
    box->clear();
    box->addItems(threeItems);
    SignalLog log;
    watch(log, box);
    box->showPopup();
    QVERIFY(isOpen(box));
    clickItem(box, 2);
    COMPARE_LOG(log, {"popupShown(0)", "popupHidden()", "currentIndexChanged(2)", "activated(2)"});
}

void TestComboBox::destroyedWhileOpen()
{
    Window window;
    window.box->showPopup();
    const QPointer<QWidget> list = window.box->view();
    QVERIFY(list->isVisible());
    delete window.box;
    QVERIFY(!list);
    QVERIFY(!QApplication::activePopupWidget());
}

QLX_TEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
