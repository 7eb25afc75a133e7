// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The step of an integer spin box, edited in the box itself.
#include "IntegerProbe.h"
#include "Pointer.h"
#include "TestCase.h"

class TestSpinerSteps : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dragWhileEditingTheStepIsSilent();
    void editedStep_data();
    void editedStep();
    void restorationIntoAnotherRange_data();
    void restorationIntoAnotherRange();
    void enteredTwice();
    void menuFinishesTheEditFirst();
    void receiverThatTakesTheFocusHearsOneStep();
};

void TestSpinerSteps::dragWhileEditingTheStepIsSilent()
{
    Window window;
    window.box->setValue(42);
    window.box->setSingleStep(4);
    chooseFromMenu(window.box, "Step...");
    SignalLog log;
    watch(log, window.box);
    Pointer pointer(window.box->edit());
    pointer.press({0, 3}, Qt::MiddleButton);
    pointer.move({2, 3}); // by the step in force, which is still 4
    QCOMPARE(window.box->value(), 12);
    QVERIFY(!window.box->signalsBlocked());
    window.box->blockSignals(true);
    pointer.move({-2, 3});
    QVERIFY(window.box->signalsBlocked()); // the host's own blocking stays
    QCOMPARE(window.box->value(), 1);
    pointer.move({1000, 3});
    QCOMPARE(window.box->value(), 1000);
    window.box->blockSignals(false);
    pointer.release({1000, 3}, Qt::MiddleButton);
    COMPARE_LOG(log, {});
    QTest::keyClick(window.box, Qt::Key_Return);
    COMPARE_LOG(log, {"singleStepChanged(1000)", "value(42)", "editingFinished()"});
}

void TestSpinerSteps::editedStep_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("log");
    const auto row = [](const char *name, int step, const char *keys, const char *shown, const LogLine &log) {
        QTest::newRow(name) << step << QString::fromLatin1(keys) << QString::fromLatin1(shown)
                            << QString(log);
    };
    const QString all = QStringLiteral("singleStepChanged(%1)\nvalue(1234)\neditingFinished()");
    const QString typed = QStringLiteral("value(%1)\n") + all;
    row("untouched", 7, "", "7", all.arg(7));
    row("typed", 7, "20", "20", typed.arg(20));
    row("the same", 7, "7", "7", all.arg(7));
    row("greatest", 7, "1000", "1000", typed.arg(1000));
    row("2000: the last 0 is refused", 7, "2000", "200", typed.arg(200));
    row("0 is left behind", 7, "0", "0", all.arg(7));
    row("deleted", 7, "\b", "", all.arg(7));
    row("step 0 is shown as 1", 0, "", "1", all.arg(1));
    row("step 5000 is shown as 1000", 5000, "", "1000", all.arg(1000));
    row("equal to the value", 7, "1234", "123", typed.arg(123));
}

void TestSpinerSteps::editedStep()
{
    QFETCH(int, step);
    QFETCH(QString, keys);
    QFETCH(QString, shown);
    for (const char *way : {"Return", "Enter", "focus loss", "without hint"}) {
        Window window;
        window.box->setPrefix(QStringLiteral("a "));
        window.box->setSuffix(QStringLiteral(" b"));
        window.box->setRange(-50, 5000);
        window.box->setValue(1234);
        window.box->setSingleStep(step);
        const bool hint = qstrcmp(way, "without hint") != 0;
        window.box->setShowStepHint(hint);
        SignalLog log;
        watch(log, window.box);
        chooseFromMenu(window.box, "Step...");
        COMPARE_LOG(log, {"editingFinished()"}); // by the menu, which took the focus
        QCOMPARE(window.box->prefix(), hint ? QStringLiteral("step ") : QString());
        QCOMPARE(window.box->suffix(), QString());
        QCOMPARE(window.box->minimum(), 1);
        QCOMPARE(window.box->maximum(), 1000);
        QCOMPARE(window.box->singleStep(), step);
        QCOMPARE(window.box->edit()->selectedText(), QString::number(qBound(1, step, 1000)));
        for (const QChar key : keys)
            key == QLatin1Char('\b') ? QTest::keyClick(window.box, Qt::Key_Backspace)
                                     : QTest::keyClicks(window.box, key);
        QCOMPARE(window.box->edit()->text(), window.box->prefix() + shown);
        COMPARE_LOG(log, {});
        if (qstrcmp(way, "focus loss") == 0)
            window.other->setFocus();
        else
            QTest::keyClick(window.box, qstrcmp(way, "Enter") == 0 ? Qt::Key_Enter : Qt::Key_Return);
        QTEST(log.take().join(QLatin1Char('\n')), "log");
        QCOMPARE(window.box->text(), QStringLiteral("a 1234 b"));
        QCOMPARE(window.box->minimum(), -50);
        QCOMPARE(window.box->maximum(), 5000);
        window.box->setFocus();
        QTest::keyClick(window.box, Qt::Key_Return); // it is over
        COMPARE_LOG(log, {"editingFinished()"});
    }
}

void TestSpinerSteps::restorationIntoAnotherRange_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("values");
    QTest::newRow("above") << 2000 << 3000 << 2500 << QStringLiteral("value(2000)\nvalue(2500)\n");
    QTest::newRow("below") << -10 << 0 << -5 << QStringLiteral("value(0)\nvalue(-5)\n");
    QTest::newRow("within") << 3 << 90 << 50 << QStringLiteral("value(50)\n");
    QTest::newRow("value is the step") << 0 << 90 << 7 << QString();
}

void TestSpinerSteps::restorationIntoAnotherRange()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(QString, values);
    Window window;
    window.box->setRange(minimum, maximum);
    window.box->setValue(value);
    window.box->setSingleStep(7);
    chooseFromMenu(window.box, "Step...");
    SignalLog log;
    watch(log, window.box);
    QTest::keyClick(window.box, Qt::Key_Return);
    QCOMPARE(log.text(),
             QStringLiteral("singleStepChanged(7)\n") + values + QStringLiteral("editingFinished()"));
    QCOMPARE(window.box->value(), value);
    QCOMPARE(window.box->minimum(), minimum);
    QCOMPARE(window.box->maximum(), maximum);
}

void TestSpinerSteps::enteredTwice()
{
    Window window;
    window.box->clearFocus(); // or the second menu would finish the edit
    window.box->setValue(42);
    window.box->setSuffix(QStringLiteral(" b"));
    window.box->setMinimum(-7);
    SignalLog log;
    watch(log, window.box);
    chooseFromMenu(window.box, "Step...");
    window.box->setShowStepHint(false);
    chooseFromMenu(window.box, "Step...");
    COMPARE_LOG(log, {});
    QCOMPARE(window.box->text(), QStringLiteral("1"));
    window.box->setValue(4000); // clamped
    QTest::keyClick(window.box, Qt::Key_Return);
    COMPARE_LOG(log, {"value(1000)", "singleStepChanged(1000)", "value(42)", "editingFinished()"});
    QCOMPARE(window.box->text(), QStringLiteral("42 b"));
    QCOMPARE(window.box->minimum(), -7);
}

void TestSpinerSteps::menuFinishesTheEditFirst()
{
    Window window;
    SignalLog log;
    watch(log, window.box);
    window.box->selectAll();
    QTest::keyClicks(window.box, QStringLiteral("42"));
    chooseFromMenu(window.box, "Step...");
    COMPARE_LOG(log, {"value(42)", "editingFinished()"});
    QTest::keyClicks(window.box, QStringLiteral("20"));
    openMenu(window.box, [](QMenu *) {}); // leaves step editing
    COMPARE_LOG(log, {"value(20)", "singleStepChanged(20)", "value(42)", "editingFinished()"});
    QCOMPARE(window.box->text(), QStringLiteral("42"));
}

void TestSpinerSteps::receiverThatTakesTheFocusHearsOneStep()
{
    Window window;
    window.box->setValue(42);
    chooseFromMenu(window.box, "Step...");
    SignalLog log;
    watch(log, window.box);
    connect(window.box, &QLxSpiner::singleStepChanged, window.other, [&] { window.other->setFocus(); });
    QTest::keyClicks(window.box, QStringLiteral("20"));
    QTest::keyClick(window.box, Qt::Key_Return);
    COMPARE_LOG(
        log, {"value(20)", "singleStepChanged(20)", "editingFinished()", "value(42)", "editingFinished()"});
    QCOMPARE(window.box->text(), QStringLiteral("42"));
}

QLX_TEST_MAIN(TestSpinerSteps)
#include "tst_spinersteps.moc"
