// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The menu that edits the step of a double spin box.
#include "StepMenu.h"
#include "TestCase.h"

#include <QTranslator>

#include <limits>

class TestDoubleSpinerMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void menuStructure();
    void menuIsBuiltOnce();
    void menuPosition_data();
    void menuPosition();
    void menuTextIsTranslated();
    void typedStep_data();
    void typedStep();
    void stepwiseEdits_data();
    void stepwiseEdits();
    void escapeClosesTheMenu();
    void openingLeavesTheStepAlone_data();
    void openingLeavesTheStepAlone();
    void menuOfReadOnlyAndDisabledBoxes();
    void stepEditingFinishedHidesTheMenu();
    void receivers_data();
    void receivers();
    void destroyedWhileMenuIsOpen_data();
    void destroyedWhileMenuIsOpen();
};

void TestDoubleSpinerMenu::menuStructure()
{
    Pair pair;
    pair.box->setShowStepHint(false); // changes nothing
    pair.box->setSingleStep(0.25);
    QVERIFY(!menuOf(pair.box)); // made when it is needed first
    openMenu(pair.box);
    const QMenu *const menu = menuOf(pair.box);
    QVERIFY(menu->isVisible()); // and we are here: it does not block
    QCOMPARE(QApplication::activePopupWidget(), menu);
    QCOMPARE(menu->parent(), pair.box->edit());
    QCOMPARE(menu->actions().size(), 1);
    QVERIFY(qobject_cast<QWidgetAction *>(menu->actions().constFirst()));
    QCOMPARE(menu->actions().constFirst()->parent(), pair.box.data());
    QCOMPARE(menu->defaultAction(), menu->actions().constFirst());
    const QLxDoubleSpiner *const editor = editorOf(pair.box);
    QVERIFY(editor);
    QCOMPARE(editor->minimum(), 0.0); // 1e-7, rounded to the precision
    QCOMPARE(editor->maximum(), 100000.0);
    QCOMPARE(editor->decimals(), 6);
    QCOMPARE(editor->minimumWidth(), 102);
    QCOMPARE(editor->maximumWidth(), 102);
    QCOMPARE(editor->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(editor->prefix(), QStringLiteral("Step: "));
    QCOMPARE(editor->text(), QStringLiteral("Step: 0.25"));
    QCOMPARE(editor->value(), 0.25);
    QCOMPARE(editor->singleStep(), 1.0);
    QCOMPARE(editor->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(editor->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(!editor->keyboardTracking());
    QVERIFY(editor->hasFocus());
    QCOMPARE(selectionIn(editor), QStringLiteral("0.25"));
}

void TestDoubleSpinerMenu::menuIsBuiltOnce()
{
    Pair pair;
    openMenu(pair.box);
    const QPointer<QMenu> menu = menuOf(pair.box);
    const QPointer<QLxDoubleSpiner> editor = editorOf(pair.box);
    menu->hide();
    pair.box->setSingleStep(5.0); // does not reach the editor
    openMenu(pair.box);
    QVERIFY(menu && menu == menuOf(pair.box) && menu->isVisible());
    QVERIFY(editor && editor == editorOf(pair.box));
    QCOMPARE(pair.box->edit()->findChildren<QMenu *>().size(), 1);
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(editor->value(), 1.0);
    SignalLog log;
    watch(log, pair.box);
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("2"));
    QTest::keyClick(editor, Qt::Key_Return);
    COMPARE_LOG(log, {"singleStepChanged(2)"}); // once
    QVERIFY(!menu->isVisible());
}

void TestDoubleSpinerMenu::menuPosition_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QPoint>("expected"); // in the box, which is 90 x 16
    const int mouse = QContextMenuEvent::Mouse;
    const int key = QContextMenuEvent::Keyboard;
    QTest::newRow("mouse") << mouse << QPoint(30, 7) << QPoint(30, 7);
    QTest::newRow("key, at the left edge") << key << QPoint(0, 7) << QPoint(45, 8);
    QTest::newRow("key, further in") << key << QPoint(30, 2) << QPoint(75, 8);
    QTest::newRow("other") << int(QContextMenuEvent::Other) << QPoint(30, 99) << QPoint(75, 8);
}

void TestDoubleSpinerMenu::menuPosition()
{
    QFETCH(int, reason);
    QFETCH(QPoint, at);
    Pair pair;
    pair.box->setFixedSize(90, 16);
    QCoreApplication::processEvents();
    for (int i = 0; i < 2; ++i) { // the same menu, at each position anew
        openMenu(pair.box, static_cast<QContextMenuEvent::Reason>(reason), at);
        QTEST(pair.box->mapFromGlobal(menuOf(pair.box)->pos()), "expected");
        menuOf(pair.box)->hide();
        openMenu(pair.box, QContextMenuEvent::Mouse, {1, 1});
        QCOMPARE(pair.box->mapFromGlobal(menuOf(pair.box)->pos()), QPoint(1, 1));
        menuOf(pair.box)->hide();
    }
}

void TestDoubleSpinerMenu::menuTextIsTranslated()
{
    struct Translator : QTranslator
    {
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                          int /*n*/) const override
        {
            return qstrcmp(context, "QLxDoubleSpiner") == 0 ? QLatin1Char('_') + QLatin1String(text)
                                                            : QString();
        }
    } translator;
    QVERIFY(QApplication::installTranslator(&translator));
    Pair pair;
    openMenu(pair.box);
    QCOMPARE(editorOf(pair.box)->text(), QStringLiteral("_Step: 1.00"));
}

void TestDoubleSpinerMenu::typedStep_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("step"); // or nothing
    const auto row = [](const char *name, const char *keys, const char *step) {
        QTest::newRow(name) << QString::fromLatin1(keys) << QString::fromLatin1(step);
    };
    row("number", "0.25", "0.25");
    row("with a comma", "0,25", "0.25");
    row("expression", "1/4", "0.25");
    row("relative operator", "*=3", "1.5");
    row("greatest", "100000", "100000");
    row("greater: the last 0 is refused", "1000000", "100000");
    row("greater by an expression", "100000*2", "100000");
    row("finest", "0.000001", "9.9999999999999995e-07");
    row("finer: the last 1 is refused", "0.0000001", "");
    row("0 is no step", "0", "");
    row("negative by an expression", "1-2", ""); // clamped to 0
    row("the same", "0.5", "");
    row("unfinished", "2*(", "");
    row("nothing", "", "");
}

void TestDoubleSpinerMenu::typedStep()
{
    QFETCH(QString, keys);
    QFETCH(QString, step);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Pair pair;
        pair.box->setSingleStep(0.5);
        pair.box->setValue(42.0);
        SignalLog log;
        watch(log, pair.box);
        openMenu(pair.box);
        QTest::keyClicks(editorOf(pair.box), keys);
        COMPARE_LOG(log, {});
        QTest::keyClick(editorOf(pair.box), key);
        QCOMPARE(log.take().join(QLatin1Char('\n')),
                 step.isEmpty() ? QString() : QStringLiteral("singleStepChanged(%1)").arg(step));
        QCOMPARE(pair.box->singleStep(), step.isEmpty() ? 0.5 : step.toDouble());
        QCOMPARE(pair.box->value(), 42.0);
        QVERIFY(!menuOf(pair.box)->isVisible());
        QVERIFY(!QApplication::activePopupWidget());
    }
}

void TestDoubleSpinerMenu::stepwiseEdits_data()
{
    QTest::addColumn<int>("edit");
    for (int i = 1; i < int(std::size(edits)); ++i)
        QTest::newRow(edits[i].name) << i;
}

void TestDoubleSpinerMenu::stepwiseEdits()
{
    QFETCH(int, edit);
    const bool drag = qstrcmp(edits[edit].name, "drag") == 0; // two pixels
    Pair pair;
    pair.box->setSingleStep(0.5);
    SignalLog log;
    watch(log, pair.box);
    openMenu(pair.box);
    edits[edit].act(editorOf(pair.box));
    QCOMPARE(log.take().join(QLatin1Char('\n')),
             drag ? QStringLiteral("singleStepChanged(2.5)") : QStringLiteral("singleStepChanged(1.5)"));
    QVERIFY(menuOf(pair.box)->isVisible()); // goes on
    edits[edit].act(editorOf(pair.box));
    QCOMPARE(pair.box->singleStep(), drag ? 4.5 : 2.5);
    QTest::keyClick(editorOf(pair.box), Qt::Key_Return);
    QVERIFY(!menuOf(pair.box)->isVisible());
    QTest::keyClick(pair.box, Qt::Key_Up);
    QCOMPARE(pair.box->value(), drag ? 4.5 : 2.5);
}

void TestDoubleSpinerMenu::escapeClosesTheMenu()
{
    Pair pair;
    SignalLog log;
    watch(log, pair.box);
    openMenu(pair.box);
    QTest::keyClick(editorOf(pair.box), Qt::Key_Escape);
    QVERIFY(!menuOf(pair.box)->isVisible());
    COMPARE_LOG(log, {});
    QVERIFY(pair.other->hasFocus());
}

void TestDoubleSpinerMenu::openingLeavesTheStepAlone_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("shown");
    QTest::newRow("the finest") << 1e-8 << 0.0;
    QTest::newRow("finer than is shown") << 4e-7 << 0.0;
    QTest::newRow("rounded up") << 6e-7 << 1e-6;
    QTest::newRow("more digits than are shown") << 0.12345678 << 0.123457;
    QTest::newRow("beyond the editor's range") << 1e9 << 100000.0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 100000.0;
}

void TestDoubleSpinerMenu::openingLeavesTheStepAlone()
{
    QFETCH(double, step);
    Pair pair;
    pair.box->setSingleStep(step);
    SignalLog log;
    watch(log, pair.box);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        openMenu(pair.box);
        QTEST(editorOf(pair.box)->value(), "shown");
        QTest::keyClick(editorOf(pair.box), key);
        QVERIFY(!menuOf(pair.box)->isVisible());
    }
    COMPARE_LOG(log, {});
    QVERIFY(pair.box->singleStep() == step); // exactly
}

void TestDoubleSpinerMenu::menuOfReadOnlyAndDisabledBoxes()
{
    Pair pair;
    pair.box->setReadOnly(true);
    openMenu(pair.box);
    edits[0].act(editorOf(pair.box));
    QCOMPARE(pair.box->singleStep(), 2.0);
    pair.box->setEnabled(false);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {4, 5}, pair.box->mapToGlobal({4, 5}));
    QApplication::sendEvent(pair.box->edit(), &event);
    QVERIFY(!menuOf(pair.box)->isVisible());
    // The editor has no menu of its own.
    pair.box->setEnabled(true);
    openMenu(pair.box);
    QContextMenuEvent inEditor(QContextMenuEvent::Mouse, {4, 5}, editorOf(pair.box)->mapToGlobal({4, 5}));
    QApplication::sendEvent(editorOf(pair.box), &inEditor);
    QCOMPARE(QApplication::activePopupWidget(), menuOf(pair.box));
    QVERIFY(editorOf(pair.box)->findChildren<QMenu *>().isEmpty());
}

void TestDoubleSpinerMenu::stepEditingFinishedHidesTheMenu()
{
    Pair pair;
    pair.box->stepEditingFinished(); // no menu
    openMenu(pair.box);
    QVERIFY(QMetaObject::invokeMethod(pair.box, "stepEditingFinished"));
    QVERIFY(!menuOf(pair.box)->isVisible());
    pair.box->stepEditingFinished();
    openMenu(pair.box);
    QVERIFY(menuOf(pair.box)->isVisible());
    Q_EMIT editorOf(pair.box)->editingFinished();
    QVERIFY(!menuOf(pair.box)->isVisible());
}

namespace {

struct Deed
{
    const char *name;
    void (*act)(const SpinerPair &pair);
};

const Deed deeds[] = {
    {"deletes it later", [](const SpinerPair &p) { p.box->deleteLater(); }},
    {"deletes its window later", [](const SpinerPair &p) { p.window->deleteLater(); }},
    {"hides it", [](const SpinerPair &p) { p.box->hide(); }},
    {"disables it", [](const SpinerPair &p) { p.box->setEnabled(false); }},
    {"makes it read-only", [](const SpinerPair &p) { p.box->setReadOnly(true); }},
    {"sets the step again", [](const SpinerPair &p) { p.box->setSingleStep(0.75); }},
    {"hides the menu", [](const SpinerPair &p) { p.box->stepEditingFinished(); }},
    {"takes the focus", [](const SpinerPair &p) { p.other->setFocus(); }},
    {"edits in the menu", [](const SpinerPair &p) { editorOf(p.box)->setValue(0.75); }},
};

} // namespace

void TestDoubleSpinerMenu::receivers_data()
{
    QTest::addColumn<int>("edit");
    QTest::addColumn<int>("deed");
    for (int i = 0; i < int(std::size(edits)); ++i) {
        for (int j = 0; j < int(std::size(deeds)); ++j)
            QTest::addRow("%s: %s", edits[i].name, deeds[j].name) << i << j;
    }
}

void TestDoubleSpinerMenu::receivers()
{
    QFETCH(int, edit);
    QFETCH(int, deed);
    Pair pair;
    pair.box->setSingleStep(0.5);
    openMenu(pair.box);
    bool received = false;
    connect(pair.box, &QLxDoubleSpiner::singleStepChanged, this, [&] {
        if (!std::exchange(received, true))
            deeds[deed].act(pair);
    });
    edits[edit].act(editorOf(pair.box));
    QVERIFY(received);
    if (deed < 2) {
        QTRY_VERIFY(!pair.box);
        QVERIFY(!QApplication::activePopupWidget());
        return;
    }
    // Whatever happened, it works as ever.
    pair.box->stepEditingFinished();
    QVERIFY(!QApplication::activePopupWidget());
    pair.box->show();
    pair.box->setEnabled(true);
    SignalLog log;
    watch(log, pair.box);
    openMenu(pair.box);
    editorOf(pair.box)->selectAll();
    QTest::keyClicks(editorOf(pair.box), QStringLiteral("7"));
    QTest::keyClick(editorOf(pair.box), Qt::Key_Return);
    COMPARE_LOG(log, {"singleStepChanged(7)"});
    QVERIFY(!menuOf(pair.box)->isVisible());
}

void TestDoubleSpinerMenu::destroyedWhileMenuIsOpen_data()
{
    QTest::addColumn<int>("how");
    int how = 0;
    for (const char *name : {"deleted", "later", "with its window", "with its window later"})
        QTest::newRow(name) << how++;
}

void TestDoubleSpinerMenu::destroyedWhileMenuIsOpen()
{
    QFETCH(int, how);
    Pair pair;
    openMenu(pair.box);
    const QPointer<QMenu> menu = menuOf(pair.box);
    const QPointer<QLxDoubleSpiner> editor = editorOf(pair.box);
    QTest::keyClicks(editor, QStringLiteral("2")); // not confirmed
    if (how == 0)
        delete pair.box;
    else if (how == 1)
        pair.box->deleteLater();
    else if (how == 2)
        delete pair.window;
    else
        pair.window->deleteLater();
    QTRY_VERIFY(!pair.box);
    QVERIFY(!menu);
    QVERIFY(!editor);
    QVERIFY(!QApplication::activePopupWidget());
}

QLX_TEST_MAIN(TestDoubleSpinerMenu)
#include "tst_doublespinermenu.moc"
