// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// What a double spin box emits while it is typed into, confirmed and stepped, and how it marks what it cannot
// accept.
#include "SpinerProbe.h"
#include "TestCase.h"

#include <QStyle>
#include <QTimer>

class TestDoubleSpiner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void constructed();
    void typedOperatorApplied();
    void typedOperatorReported();
    void operatorTypedStepByStep();
    void outOfRangeModeAnnouncesAndGoesOn();
    void returnThenFocusLossAppliesOnce_data();
    void returnThenFocusLossAppliesOnce();
    void plainNumberReportedOnlyByReturnOrEnter();
    void valueChangesDropPendingOperator();
    void arrowWithoutChangeKeepsOperator();
    void receiverThatTakesFocusHearsOneReport();
    void commaIsAPoint();
    void focusGainedOncePerEvent();
    void focusGainedBeforeAnythingElse();
    void unacceptableTextIsMarkedAfterAPause();
    void everyEditStartsThePauseAnew();
    void acceptableEditUnmarksAtOnce();
    void finishingUnmarks();
    void destroyedBeforeThePauseIsOver();
    void pendingOperatorIsNotMarked();
};

void TestDoubleSpiner::constructed()
{
    const QLxDoubleSpiner box;
    QCOMPARE(box.focusPolicy(), Qt::WheelFocus);
    QCOMPARE(box.alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QCOMPARE(box.minimum(), -2147483647.0);
    QCOMPARE(box.maximum(), 2147483647.0);
    QVERIFY(!box.keyboardTracking());
    QCOMPARE(box.locale(), QLocale(QLocale::C, QLocale::AnyCountry));
    QCOMPARE(box.decimals(), 10);
    QCOMPARE(box.value(), 0.0);
    QCOMPARE(box.text(), QStringLiteral("0.00"));
    QVERIFY(!box.property("inputAcceptable").isValid());
    for (const char *off : {"useExactDisplayDecimals", "displaySceneUnit"})
        QCOMPARE(box.property(off), QVariant(false));
    QCOMPARE(box.property("showStepHint"), QVariant(true));
    QCOMPARE(box.property("displayDecimals"), QVariant(6));
}

void TestDoubleSpiner::typedOperatorApplied()
{
    SpinerPair pair;
    pair.box->setValue(10.0);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("*=1.5");
    COMPARE_LOG(log, {"changed(Multiply, 1)", "changed(Multiply, 1)", "changed(Multiply, 1.5)"});
    QCOMPARE(pair.box->value(), 10.0);
    QTest::keyClick(pair.box, Qt::Key_Return);
    COMPARE_LOG(log, {"value(15)", "editingFinished()"});
    QCOMPARE(pair.box->text(), QStringLiteral("15.00"));
}

void TestDoubleSpiner::typedOperatorReported()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    pair.box->setValue(10.0);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("+=5");
    COMPARE_LOG(log, {"changed(None, 0)", "changed(None, 0)", "changed(None, 0)", "changed(Add, 5)"});
    QTest::keyClick(pair.box, Qt::Key_Return);
    COMPARE_LOG(log, {"applied(Add, 5)", "changed(None, 0)", "editingFinished()"});
    QCOMPARE(pair.box->value(), 10.0);
    QCOMPARE(pair.box->text(), QStringLiteral("10.00")); // reverts
}

void TestDoubleSpiner::operatorTypedStepByStep()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("-=1");
    log.take();
    QTest::keyClicks(pair.box, QStringLiteral("0"));
    COMPARE_LOG(log, {"changed(None, 0)", "changed(Subtract, 10)"});
    QTest::keyClicks(pair.box, QStringLiteral("*"));
    COMPARE_LOG(log, {"changed(None, 0)"}); // "10*" is no operand any more
    QTest::keyClicks(pair.box, QStringLiteral("3"));
    COMPARE_LOG(log, {"changed(None, 0)", "changed(Subtract, 30)"});
    QTest::keyClick(pair.box, Qt::Key_Enter);
    COMPARE_LOG(log, {"applied(Subtract, 30)", "changed(None, 0)", "editingFinished()"});
}

void TestDoubleSpiner::outOfRangeModeAnnouncesAndGoesOn()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(static_cast<RelativeOperatorHandlingMode>(7));
    pair.box->setValue(10.0);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("+=5");
    COMPARE_LOG(log, {"changed(Add, 5)"});
    QTest::keyClick(pair.box, Qt::Key_Return);
    COMPARE_LOG(log, {"editingFinished()"}); // no script evaluates "+=5"
    QCOMPARE(pair.box->value(), 10.0);
}

void TestDoubleSpiner::returnThenFocusLossAppliesOnce_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("committed");
    QTest::newRow("applied") << int(ApplyRelativeOperator) << QStringLiteral("value(15)\neditingFinished()");
    QTest::newRow("reported") << int(EmitRelativeOperator)
                              << QStringLiteral("applied(Add, 5)\nchanged(None, 0)\neditingFinished()");
}

void TestDoubleSpiner::returnThenFocusLossAppliesOnce()
{
    QFETCH(int, mode);
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(static_cast<RelativeOperatorHandlingMode>(mode));
    pair.box->setValue(10.0);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("+=5");
    log.take();
    QTest::keyClick(pair.box, Qt::Key_Return);
    QTEST(log.take().join(QLatin1Char('\n')), "committed");
    pair.other->setFocus();
    COMPARE_LOG(log, {"editingFinished()"});
}

void TestDoubleSpiner::plainNumberReportedOnlyByReturnOrEnter()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    SignalLog log;
    watch(log, pair.box);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        pair.box->setValue(1.0);
        pair.box->type("7");
        log.take();
        QTest::keyClick(pair.box, key);
        COMPARE_LOG(log, {"changed(None, 0)", "value(7)", "applied(Assign, 7)", "changed(None, 0)",
                          "editingFinished()"});
    }
    pair.box->type("8");
    log.take();
    pair.other->setFocus();
    COMPARE_LOG(log, {"changed(None, 0)", "value(8)", "editingFinished()"});
    // A Return that was followed by another key is forgotten.
    pair.box->setFocus();
    QTest::keyClick(pair.box, Qt::Key_Return);
    QTest::keyClick(pair.box, Qt::Key_End);
    log.take();
    pair.box->clearFocus();
    COMPARE_LOG(log, {"editingFinished()"});
}

void TestDoubleSpiner::valueChangesDropPendingOperator()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("+=5");
    log.take();
    pair.box->setValue(3.0);
    COMPARE_LOG(log, {"changed(None, 0)", "value(3)"});
    pair.other->setFocus();
    COMPARE_LOG(log, {"editingFinished()"}); // nothing is pending any more

    pair.box->setFocus();
    pair.box->type("+=5");
    pair.box->type("6"); // replaces the operator with a number
    log.take();
    QTest::keyClick(pair.box, Qt::Key_Up);
    COMPARE_LOG(log, {"changed(None, 0)", "value(7)"});
}

void TestDoubleSpiner::arrowWithoutChangeKeepsOperator()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    pair.box->setValue(10.0);
    SignalLog log;
    watch(log, pair.box);
    pair.box->type("+=5");
    log.take();
    QTest::keyClick(pair.box, Qt::Key_Up);
    COMPARE_LOG(log, {});
    QCOMPARE(pair.box->text(), QStringLiteral("10.00"));
    QWheelEvent wheel(QPointF(5, 5), pair.box->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(pair.box, &wheel);
    COMPARE_LOG(log, {"changed(None, 0)", "value(11)"}); // this one changes the value
    pair.box->type("+=5");
    log.take();
    QTest::keyClick(pair.box, Qt::Key_Up); // reverts the text only
    pair.other->setFocus();
    COMPARE_LOG(log, {"applied(Add, 5)", "changed(None, 0)", "editingFinished()"});
}

void TestDoubleSpiner::receiverThatTakesFocusHearsOneReport()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    SignalLog log;
    watch(log, pair.box);
    connect(pair.box, &QLxDoubleSpiner::relativeOperatorApplied, pair.other,
            [&pair] { pair.other->setFocus(); });
    pair.box->type("+=5");
    log.take();
    QTest::keyClick(pair.box, Qt::Key_Return);
    COMPARE_LOG(log, {"applied(Add, 5)", "editingFinished()", "changed(None, 0)", "editingFinished()"});
    pair.box->setFocus();
    pair.box->type("7");
    log.take();
    QTest::keyClick(pair.box, Qt::Key_Return);
    COMPARE_LOG(log, {"changed(None, 0)", "value(7)", "applied(Assign, 7)", "editingFinished()",
                      "changed(None, 0)", "editingFinished()"});
}

void TestDoubleSpiner::commaIsAPoint()
{
    SpinerPair pair;
    pair.box->type("1,5");
    QCOMPARE(pair.box->edit()->text(), QStringLiteral("1.5"));
    QTest::keyClick(pair.box, Qt::Key_Return);
    QCOMPARE(pair.box->value(), 1.5);
}

// Handles the keyboard focus all by itself, sometimes.
struct FocusKeeper : SpinerProbe
{
    void handleFocus(bool byItself)
    {
        m_byItself = byItself;
        QFocusEvent event(QEvent::FocusIn);
        QApplication::sendEvent(this, &event);
    }
    void callBase(QFocusEvent *event) { SpinerProbe::focusInEvent(event); }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        if (!m_byItself)
            SpinerProbe::focusInEvent(event);
    }

private:
    bool m_byItself = false;
};

void TestDoubleSpiner::focusGainedOncePerEvent()
{
    FocusKeeper box;
    SignalLog log;
    watch(log, &box);
    box.handleFocus(false);
    COMPARE_LOG(log, {"focusGained()"});
    box.handleFocus(true);
    COMPARE_LOG(log, {"focusGained()"});
    QFocusEvent direct(QEvent::FocusIn);
    box.callBase(&direct);
    COMPARE_LOG(log, {"focusGained()"});
}

void TestDoubleSpiner::focusGainedBeforeAnythingElse()
{
    SpinerPair pair;
    SignalLog log;
    watch(log, pair.other);
    QString selected = QStringLiteral("not asked");
    connect(pair.other, &QLxDoubleSpiner::focusGained, this,
            [&] { selected = pair.other->edit()->selectedText(); });
    pair.other->edit()->deselect();
    pair.other->setFocus(Qt::TabFocusReason);
    COMPARE_LOG(log, {"focusGained()"});
    QCOMPARE(selected, QString()); // the text is selected afterwards
    QCOMPARE(pair.other->edit()->selectedText(), QStringLiteral("0.00"));
    QFocusEvent again(QEvent::FocusIn);
    QApplication::sendEvent(pair.other, &again);
    COMPARE_LOG(log, {"focusGained()"});
}

// The style sheet makes the text red where the box says that it is not acceptable.
static bool isMarked(const SpinerProbe *box)
{
    const bool red = box->edit()->palette().color(QPalette::Text) == QColor(Qt::red);
    const QVariant acceptable = box->property("inputAcceptable");
    if (red != (acceptable == QVariant(false)))
        qWarning("the property and the look differ"); // fails the test
    return red;
}

static const char *const feedbackSheet =
    "QLxDoubleSpiner[inputAcceptable=\"false\"] { color: rgb(255, 0, 0); }";

static QTimer *feedbackTimer(const SpinerProbe *box)
{
    return box->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

void TestDoubleSpiner::unacceptableTextIsMarkedAfterAPause()
{
    SpinerPair pair;
    pair.window->setStyleSheet(QLatin1String(feedbackSheet));
    QVERIFY(!feedbackTimer(pair.box)); // made when it is needed first
    pair.box->type("2*(");
    QVERIFY(!isMarked(pair.box));
    const QTimer *const timer = feedbackTimer(pair.box);
    QVERIFY(timer && timer->isActive() && timer->isSingleShot());
    QCOMPARE(timer->interval(), 800);
    QTRY_VERIFY(isMarked(pair.box));
    QVERIFY(!timer->isActive());
    QCOMPARE(pair.box->edit()->text(), QStringLiteral("2*("));
}

void TestDoubleSpiner::everyEditStartsThePauseAnew()
{
    SpinerPair pair;
    pair.box->type("2*");
    QTimer *const timer = feedbackTimer(pair.box);
    QTRY_VERIFY(timer->remainingTime() < 700);
    QTest::keyClicks(pair.box, QStringLiteral("("));
    QVERIFY(timer->remainingTime() > 700);
    QCOMPARE(timer, feedbackTimer(pair.box));
}

void TestDoubleSpiner::acceptableEditUnmarksAtOnce()
{
    SpinerPair pair;
    pair.window->setStyleSheet(QLatin1String(feedbackSheet));
    pair.box->type("2*(");
    QTRY_VERIFY(isMarked(pair.box));
    QTest::keyClicks(pair.box, QStringLiteral("3"));
    QVERIFY(isMarked(pair.box)); // still not closed
    QTest::keyClicks(pair.box, QStringLiteral(")"));
    QVERIFY(!isMarked(pair.box));
    QVERIFY(!feedbackTimer(pair.box)->isActive());
    QTest::keyClick(pair.box, Qt::Key_Backspace); // and unacceptable again, but corrected in time
    QVERIFY(feedbackTimer(pair.box)->isActive());
    QTest::keyClicks(pair.box, QStringLiteral(")"));
    QVERIFY(!feedbackTimer(pair.box)->isActive());
    QVERIFY(!isMarked(pair.box));
}

void TestDoubleSpiner::finishingUnmarks()
{
    SpinerPair pair;
    pair.window->setStyleSheet(QLatin1String(feedbackSheet));
    pair.box->setValue(4.0);
    pair.box->type("2*(");
    QTRY_VERIFY(isMarked(pair.box));
    QTest::keyClick(pair.box, Qt::Key_Return);
    QVERIFY(!isMarked(pair.box));
    QCOMPARE(pair.box->text(), QStringLiteral("4.00"));
    pair.box->type("2*(");
    pair.other->setFocus(); // before it was marked
    QVERIFY(!feedbackTimer(pair.box)->isActive());
    QVERIFY(!isMarked(pair.box));
}

void TestDoubleSpiner::destroyedBeforeThePauseIsOver()
{
    SpinerPair pair;
    pair.box->type("2*(");
    const QPointer<QTimer> timer = feedbackTimer(pair.box);
    QVERIFY(timer->isActive());
    delete pair.box;
    QVERIFY(!timer);
}

void TestDoubleSpiner::pendingOperatorIsNotMarked()
{
    SpinerPair pair;
    pair.box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    pair.box->type("+=");
    QVERIFY(feedbackTimer(pair.box)->isActive());
    QTest::keyClicks(pair.box, QStringLiteral("5"));
    QVERIFY(!feedbackTimer(pair.box)->isActive());
}

QLX_TEST_MAIN(TestDoubleSpiner)
#include "tst_doublespiner.moc"
