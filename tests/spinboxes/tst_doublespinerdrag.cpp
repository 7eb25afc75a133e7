// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The mouse on the text of a double spin box: drags by the middle button, and the cursor that they show.
#include "Pointer.h"
#include "SpinerProbe.h"
#include "TestCase.h"

#include <limits>

class TestDoubleSpinerDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void middleDrag_data();
    void middleDrag();
    void dragsOfOtherButtonsSelectText();
    void moveWithoutPressIsNotOurs();
    void disabledBoxLeavesMouseAlone();
    void dragWithInfiniteStep();
    void hostsBlockingStays();
    void overrideCursorOfADrag();
    void lostReleaseLeavesNoCursor();
    void lostReleaseOfAnInterruptedDragIsForgotten();
    void releasePopsWhicheverButton();
    void interruptedDragGivesCursorBack_data();
    void interruptedDragGivesCursorBack();
};

void TestDoubleSpinerDrag::middleDrag_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("moves");
    QTest::newRow("applied") << int(ApplyRelativeOperator) << false
                             << QStringLiteral("value(11)\nvalue(10.5)\n");
    QTest::newRow("reported") << int(EmitRelativeOperator) << false
                              << QStringLiteral("applied(Add, 1)\napplied(Add, -0.5)\n");
    QTest::newRow("read-only") << int(ApplyRelativeOperator) << true << QString();
    QTest::newRow("read-only, reported") << int(EmitRelativeOperator) << true << QString();
    QTest::newRow("neither mode") << -1 << false << QStringLiteral("value(11)\nvalue(10.5)\n");
}

void TestDoubleSpinerDrag::middleDrag()
{
    QFETCH(int, mode);
    QFETCH(bool, readOnly);
    QFETCH(QString, moves);
    SpinerProbe box;
    box.setRelativeOperatorHandlingMode(static_cast<RelativeOperatorHandlingMode>(mode));
    box.setReadOnly(readOnly);
    box.setValue(10.0);
    box.setSingleStep(0.1);
    SignalLog log;
    watch(log, &box);
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton);
    pointer.move({30, 5});
    pointer.move({30, 9}); // down only
    pointer.move({25, 9});
    pointer.release({80, 9}, Qt::MiddleButton);
    pointer.move({90, 9}); // over
    QCOMPARE(log.take().join(QLatin1Char('\n')),
             QStringLiteral("mouseButtonPressed()\n") + moves + QStringLiteral("mouseButtonReleased()"));
}

void TestDoubleSpinerDrag::dragsOfOtherButtonsSelectText()
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::ExtraButton1}) {
        SpinerProbe box;
        SignalLog log;
        watch(log, &box);
        box.resize(120, 30);
        Pointer pointer(box.edit());
        pointer.press({0, 5}, button);
        pointer.move({100, 5});
        QCOMPARE(box.edit()->selectedText(), button == Qt::LeftButton ? QStringLiteral("0.00") : QString());
        pointer.release({100, 5}, button);
        COMPARE_LOG(log, {"mouseButtonPressed()", "mouseButtonReleased()"});
        QCOMPARE(box.value(), 0.0);
    }
}

void TestDoubleSpinerDrag::moveWithoutPressIsNotOurs()
{
    SpinerProbe box;
    SignalLog log;
    watch(log, &box);
    Pointer(box.edit()).move({50, 5});
    COMPARE_LOG(log, {});
    QLineEdit stranger; // its events are nobody's business
    stranger.installEventFilter(&box);
    Pointer(&stranger).press({5, 5});
    COMPARE_LOG(log, {});
}

void TestDoubleSpinerDrag::disabledBoxLeavesMouseAlone()
{
    SpinerProbe box;
    box.setEnabled(false);
    SignalLog log;
    watch(log, &box);
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton);
    pointer.move({30, 5});
    pointer.release({30, 5}, Qt::MiddleButton);
    COMPARE_LOG(log, {});
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(box.value(), 0.0);
}

void TestDoubleSpinerDrag::dragWithInfiniteStep()
{
    SpinerProbe box;
    box.setSingleStep(std::numeric_limits<double>::infinity());
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton);
    pointer.move({20, 6});
    QCOMPARE(box.value(), 0.0);
    pointer.move({21, 6});
    QCOMPARE(box.value(), 2147483647.0);
    pointer.move({-1000000000, 6});
    QCOMPARE(box.value(), -2147483647.0);
    pointer.release({0, 0}, Qt::MiddleButton);
    box.setSingleStep(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(box.singleStep(), std::numeric_limits<double>::infinity());
}

void TestDoubleSpinerDrag::hostsBlockingStays()
{
    SpinerProbe box;
    box.blockSignals(true);
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton);
    pointer.move({30, 5});
    pointer.release({30, 5}, Qt::MiddleButton);
    QVERIFY(box.signalsBlocked());
    QCOMPARE(box.value(), 10.0);
}

void TestDoubleSpinerDrag::overrideCursorOfADrag()
{
    SpinerProbe box;
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton);
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
    pointer.release({20, 5}, Qt::MiddleButton);
    QVERIFY(!QApplication::overrideCursor());
    box.setReadOnly(true);
    pointer.press({20, 5}, Qt::MiddleButton);
    QVERIFY(!QApplication::overrideCursor());
    pointer.release({20, 5}, Qt::MiddleButton);
}

void TestDoubleSpinerDrag::lostReleaseLeavesNoCursor()
{
    SpinerProbe box;
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton); // whose release goes to a window that opens now
    pointer.press({20, 5}, Qt::MiddleButton);
    pointer.release({20, 5}, Qt::MiddleButton);
    QVERIFY(!QApplication::overrideCursor());
}

void TestDoubleSpinerDrag::lostReleaseOfAnInterruptedDragIsForgotten()
{
    SpinerProbe box;
    QApplication::setOverrideCursor(Qt::WaitCursor); // a host's
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::MiddleButton);
    box.setReadOnly(true);
    box.setReadOnly(false);
    pointer.press({20, 5}, Qt::LeftButton);
    pointer.release({20, 5}, Qt::LeftButton);
    QVERIFY(!QApplication::overrideCursor()); // as by any other click
}

void TestDoubleSpinerDrag::releasePopsWhicheverButton()
{
    SpinerProbe box;
    QApplication::setOverrideCursor(Qt::WaitCursor); // a host's
    QApplication::setOverrideCursor(Qt::BusyCursor);
    Pointer pointer(box.edit());
    pointer.press({20, 5}, Qt::LeftButton);
    pointer.release({20, 5}, Qt::LeftButton);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    box.setReadOnly(true);
    pointer.press({20, 5}, Qt::LeftButton);
    pointer.release({20, 5}, Qt::LeftButton);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

void TestDoubleSpinerDrag::interruptedDragGivesCursorBack_data()
{
    QTest::addColumn<int>("how");
    QTest::addColumn<bool>("revived");
    int how = 0;
    for (const char *name :
         {"disabled", "parent disabled", "hidden", "parent hidden", "read-only", "destroyed"}) {
        QTest::newRow(name) << how << false;
        if (how < 5)
            QTest::addRow("%s, undone before the release", name) << how << true;
        ++how;
    }
}

void TestDoubleSpinerDrag::interruptedDragGivesCursorBack()
{
    QFETCH(int, how);
    QFETCH(bool, revived);
    QApplication::setOverrideCursor(Qt::WaitCursor); // a host's, which stays
    {
        SpinerPair pair;
        Pointer pointer(pair.box->edit());
        pointer.press({20, 5}, Qt::MiddleButton);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
        switch (how) {
        case 0:
            pair.box->setEnabled(false);
            break;
        case 1:
            pair.window->setEnabled(false);
            break;
        case 2:
            pair.box->hide();
            break;
        case 3:
            pair.window->hide();
            break;
        case 4:
            pair.box->setReadOnly(true);
            break;
        default:
            delete pair.box;
        }
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        if (revived) {
            pair.window->setEnabled(true);
            pair.window->show();
            pair.box->setEnabled(true);
            pair.box->show();
            pair.box->setReadOnly(false);
            pointer.release({20, 5}, Qt::MiddleButton); // has nothing left to take away
        } else if (how == 0 || how == 1 || how == 4) {
            const double value = pair.box->value();
            pointer.move({60, 5});
            QCOMPARE(pair.box->value(), value);
            pointer.release({60, 5}, Qt::MiddleButton);
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        }
    }
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
    QVERIFY(!QApplication::overrideCursor());
}

QLX_TEST_MAIN(TestDoubleSpinerDrag)
#include "tst_doublespinerdrag.moc"
