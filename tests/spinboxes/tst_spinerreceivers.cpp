// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Receivers of an integer spin box's signals that interfere, and the box destroyed in the middle of things.
#include "IntegerProbe.h"
#include "Pointer.h"
#include "TestCase.h"

namespace {

enum Signal { Value, Step, Finished };

/// How a box comes to emit, and what.
struct Occasion
{
    const char *name;
    QVector<Signal> emitted;
    void (*prepare)(Window &);
    void (*act)(Window &);
    bool opensMenu = false;
};

void nothing(Window & /*window*/) {}
void editStep(Window &w)
{
    chooseFromMenu(w.box, "Step...");
    QTest::keyClicks(w.box, QStringLiteral("20"));
}
void type(Window &w)
{
    w.box->selectAll();
    QTest::keyClicks(w.box, QStringLiteral("7"));
}
void pressReturn(Window &w)
{
    QTest::keyClick(w.box, Qt::Key_Return);
}
void leave(Window &w)
{
    w.other->setFocus();
}
void drag(Window &w)
{
    Pointer pointer(w.box->edit());
    pointer.press({0, 3}, Qt::MiddleButton);
    pointer.move({1, 3});
    pointer.move({2, 3});
    pointer.release({2, 3}, Qt::MiddleButton);
}

const Occasion occasions[] = {
    {"up key", {Value}, nothing, [](Window &w) { QTest::keyClick(w.box, Qt::Key_Up); }},
    {"arrow button",
     {Value},
     nothing,
     [](Window &w) { QTest::mouseClick(w.box, Qt::LeftButton, {}, w.box->arrow(QStyle::SC_SpinBoxUp)); }},
    {"Return", {Value, Finished}, type, pressReturn},
    {"leaving", {Value, Finished}, type, leave},
    {"drag", {Value}, nothing, drag},
    {"menu",
     {Value},
     [](Window &w) { w.box->clearFocus(); },
     [](Window &w) { chooseFromMenu(w.box, "&Step up"); }},
    {"menu opening", {Value, Finished}, type, [](Window &w) { chooseFromMenu(w.box, "Step..."); }, true},
    {"step edited, Return", {Value, Step, Finished}, editStep, pressReturn},
    {"step edited, leaving", {Value, Step, Finished}, editStep, leave},
    {"step edited, menu opening",
     {Value, Step, Finished},
     editStep,
     [](Window &w) { openMenu(w.box, [](QMenu *) {}); },
     true},
    {"set", {Step}, nothing, [](Window &w) { w.box->setSingleStep(3); }},
};

struct Interference
{
    const char *name;
    void (*act)(Window &);
    bool opensMenu = false;
};

const Interference interferences[] = {
    {"deletes it later", [](Window &w) { w.box->deleteLater(); }},
    {"hides it", [](Window &w) { w.box->hide(); }},
    {"disables it", [](Window &w) { w.box->setEnabled(false); }},
    {"makes it read-only", [](Window &w) { w.box->setReadOnly(true); }},
    {"gives it another range", [](Window &w) { w.box->setRange(0, 3); }},
    {"gives it another value", [](Window &w) { w.box->setValue(2); }},
    {"gives it another step", [](Window &w) { w.box->setSingleStep(9); }},
    {"gives it another look", [](Window &w) { w.box->setDisplaySceneUnit(true); }},
    {"enters step editing", [](Window &w) { chooseFromMenu(w.box, "Step..."); }, true},
};

} // namespace

class TestSpinerReceivers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void receiverMayBlockSignalsDuringADrag();
    void receivers_data();
    void receivers();
    void interferenceWhileMenuIsOpen_data();
    void interferenceWhileMenuIsOpen();
    void destroyedWhileMenuIsOpen_data();
    void destroyedWhileMenuIsOpen();
    void destroyedWhileDragged();
};

void TestSpinerReceivers::receiverMayBlockSignalsDuringADrag()
{
    Window window;
    SignalLog log;
    watch(log, window.box);
    connect(window.box, QOverload<int>::of(&QLxSpiner::valueChanged), this,
            [&] { window.box->blockSignals(true); });
    Pointer pointer(window.box->edit());
    pointer.press({0, 3}, Qt::MiddleButton);
    pointer.move({2, 3});
    QVERIFY(window.box->signalsBlocked());
    pointer.move({4, 3});
    COMPARE_LOG(log, {"value(2)"});
    QCOMPARE(window.box->value(), 4);
}

void TestSpinerReceivers::receivers_data()
{
    QTest::addColumn<int>("occasion");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("interference");
    const char *const signalNames[] = {"value", "step", "finished"};
    for (int i = 0; i < int(std::size(occasions)); ++i) {
        for (const Signal signal : occasions[i].emitted) {
            for (int j = 0; j < int(std::size(interferences)); ++j) {
                if (occasions[i].opensMenu && interferences[j].opensMenu)
                    continue; // no menu opens while another one is about to
                QTest::addRow("%s: the receiver of %s %s", occasions[i].name, signalNames[signal],
                              interferences[j].name)
                    << i << int(signal) << j;
            }
        }
    }
}

void TestSpinerReceivers::receivers()
{
    QFETCH(int, occasion);
    QFETCH(int, signal);
    QFETCH(int, interference);
    Window window;
    window.box->setRange(0, 100);
    window.box->setValue(5);
    occasions[occasion].prepare(window);
    bool emitted = false;
    const auto receive = [&](Signal which) {
        if (which == signal && !std::exchange(emitted, true))
            interferences[interference].act(window);
    };
    QLxSpiner *const box = window.box;
    // clazy:excludeall=lambda-in-connect (all of it goes with the window)
    connect(box, QOverload<int>::of(&QLxSpiner::valueChanged), &window, [&] { receive(Value); });
    connect(box, &QLxSpiner::singleStepChanged, &window, [&] { receive(Step); });
    connect(box, &QLxSpiner::editingFinished, &window, [&] { receive(Finished); });
    occasions[occasion].act(window);
    QVERIFY(emitted);
    if (interference == 0) {
        QTRY_VERIFY(!window.box);
        return;
    }
    QVERIFY(box->value() >= box->minimum() && box->value() <= box->maximum());
    // Whatever happened, it works as ever.
    box->setReadOnly(false);
    box->setEnabled(true);
    box->show();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Return);
    SignalLog log;
    watch(log, box);
    QTest::keyClick(box, Qt::Key_Return);
    COMPARE_LOG(log, {"editingFinished()"});
    QCOMPARE(box->prefix(), QString());
    box->setRange(0, 100);
    box->setSingleStep(1);
    box->setValue(50);
    log.take();
    QTest::keyClick(box, Qt::Key_Up);
    COMPARE_LOG(log, {"value(51)"});
}

void TestSpinerReceivers::interferenceWhileMenuIsOpen_data()
{
    QTest::addColumn<int>("interference");
    QTest::addColumn<int>("value");
    // The step up was on offer when the menu opened.
    const int values[] = {-1, 6, 5, 6, 3, 3, 14, 6};
    for (int i = 0; i < int(std::size(values)); ++i)
        QTest::newRow(interferences[i].name) << i << values[i];
}

void TestSpinerReceivers::interferenceWhileMenuIsOpen()
{
    QFETCH(int, interference);
    Window window;
    window.box->setValue(5);
    openMenu(window.box, [&](QMenu *menu) {
        interferences[interference].act(window);
        if (interference == 0)
            QTRY_VERIFY(!window.box);
        else
            choose(menu, "&Step up");
    });
    QTEST(window.box ? window.box->value() : -1, "value");
}

void TestSpinerReceivers::destroyedWhileMenuIsOpen_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("deleted") << 0;
    QTest::newRow("with its window") << 1;
    QTest::newRow("its window later") << 2;
}

void TestSpinerReceivers::destroyedWhileMenuIsOpen()
{
    QFETCH(int, how);
    QPointer<Window> window = new Window;
    const QPointer<Probe> box = window->box;
    openMenu(box, [&](QMenu *opened) {
        const QPointer<QMenu> menu = opened;
        if (how == 0)
            delete box;
        else if (how == 1)
            delete window;
        else
            window->deleteLater();
        QTRY_VERIFY(!menu);
    });
    QVERIFY(!box);
    QVERIFY(!QApplication::activePopupWidget());
    delete window;
}

void TestSpinerReceivers::destroyedWhileDragged()
{
    Window window;
    window.box->setDisplaySceneUnit(true);
    chooseFromMenu(window.box, "Step...");
    Pointer pointer(window.box->edit());
    pointer.press({0, 3}, Qt::MiddleButton);
    pointer.move({2, 3});
    delete window.box;
    pointer.move({4, 3});
    pointer.release({4, 3}, Qt::MiddleButton);
    QLxSpiner::updateInstancesWithSceneUnit();
    QTest::keyClick(window.other, Qt::Key_Up);
    QCOMPARE(window.other->value(), 1);
}

QLX_TEST_MAIN(TestSpinerReceivers)
#include "tst_spinerreceivers.moc"
