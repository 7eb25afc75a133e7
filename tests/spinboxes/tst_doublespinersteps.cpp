// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The step of a double spin box, and how many decimals it shows.
#include "QLxDoubleSpiner_p.h"
#include "SpinerProbe.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

class TestDoubleSpinerSteps : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void smallestStep_data();
    void smallestStep();
    void displayDecimals_data();
    void displayDecimals();
    void shownText_data();
    void shownText();
    void textFollowsWhenItIsWrittenNext();
    void sizeHint();
    void leavingTheStepEditorRestoresTheBox_data();
    void leavingTheStepEditorRestoresTheBox();
    void dragInTheStepEditorIsSilent();
};

void TestDoubleSpinerSteps::smallestStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<bool>("taken");
    QTest::newRow("the smallest") << 1e-8 << true;
    QTest::newRow("just below") << std::nextafter(1e-8, 0.0) << false;
    QTest::newRow("half of it") << 5e-9 << false;
    QTest::newRow("just above") << std::nextafter(1e-8, 1.0) << true;
    QTest::newRow("0") << 0.0 << false;
    QTest::newRow("negative") << -1.0 << false;
    QTest::newRow("more digits than the value has") << 0.123456789012345 << true;
    QTest::newRow("the same again") << 0.5 << true;
    QTest::newRow("large") << 1e300 << true;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << true;
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << false;
}

void TestDoubleSpinerSteps::smallestStep()
{
    QFETCH(double, step);
    QFETCH(bool, taken);
    QLxDoubleSpiner box;
    QCOMPARE(box.singleStep(), 1.0);
    box.setSingleStep(0.5);
    SignalLog log;
    watch(log, &box);
    box.setSingleStep(step);
    QVERIFY(QMetaObject::invokeMethod(&box, "setSingleStep", Q_ARG(double, step)));
    QVERIFY(box.singleStep() == (taken ? step : 0.5)); // exactly
    const QString line = QStringLiteral("singleStepChanged(%1)").arg(asText(step));
    QCOMPARE(log.take(), taken ? (QStringList{line, line}) : QStringList());
}

void TestDoubleSpinerSteps::displayDecimals_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("stored");
    for (const int same : {0, 1, 6, 322, 323})
        QTest::addRow("%d", same) << same << same;
    QTest::newRow("-3") << -3 << 0;
    QTest::newRow("324") << 324 << 323;
    QTest::newRow("400") << 400 << 323;
    QTest::newRow("smallest int") << std::numeric_limits<int>::min() << 0;
    QTest::newRow("greatest int") << std::numeric_limits<int>::max() << 323;
}

void TestDoubleSpinerSteps::displayDecimals()
{
    QFETCH(int, decimals);
    QFETCH(int, stored);
    QLxDoubleSpiner box;
    box.setDisplayDecimals(decimals);
    QCOMPARE(box.displayDecimals(), stored);
    QVERIFY(box.setProperty("displayDecimals", 2));
    QCOMPARE(box.displayDecimals(), 2);
    QVERIFY(box.setProperty("displayDecimals", decimals));
    QCOMPARE(box.property("displayDecimals"), QVariant(stored));
    QCOMPARE(box.decimals(), 10); // the precision is another thing
}

void TestDoubleSpinerSteps::shownText_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("exact");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](int decimals, bool exact, double value, const char *text) {
        QTest::addRow("%s with %d%s", text, decimals, exact ? ", exact" : "")
            << decimals << exact << value << QString::fromLatin1(text);
    };
    row(6, false, 1.0, "1.00");
    row(6, false, 0.5, "0.50");
    row(6, false, 0.125, "0.125");
    row(6, false, 1234.5, "1234.50");
    row(6, false, 0.1234567, "0.123457");
    row(6, false, -1234.5, "-1234.50");
    row(6, false, 1234567.25, "1234567.25");
    row(6, false, 0.0000001, "0.00");
    row(3, true, 2.0, "2.000");
    row(3, false, 2.0, "2.00");
    row(3, true, 0.12345, "0.123");
    row(0, true, 2.75, "3");
    row(0, true, 1999.0, "1999");
    row(0, false, 2.25, "2.25");
    row(1, false, 2.25, "2.25"); // two at least
    row(1, true, 1000.75, "1000.8");
    row(12, false, 0.1234567891, "0.1234567891");
}

void TestDoubleSpinerSteps::shownText()
{
    QFETCH(int, decimals);
    QFETCH(bool, exact);
    QFETCH(double, value);
    for (const QLocale::Language language : {QLocale::C, QLocale::English}) {
        QLxDoubleSpiner box;
        box.setLocale(QLocale(language)); // one without and one with group separators
        box.setDisplayDecimals(decimals);
        box.setUseExactDisplayDecimals(exact);
        QCOMPARE(box.useExactDisplayDecimals(), exact);
        box.setValue(value);
        QTEST(box.text(), "text");
    }
}

void TestDoubleSpinerSteps::textFollowsWhenItIsWrittenNext()
{
    QLxDoubleSpiner box;
    box.setValue(0.123456);
    box.setDisplayDecimals(3);
    QCOMPARE(box.text(), QStringLiteral("0.123456"));
    box.setSuffix(QStringLiteral(" x"));
    QCOMPARE(box.text(), QStringLiteral("0.123 x"));
    QCOMPARE(box.value(), 0.123456);
}

void TestDoubleSpinerSteps::sizeHint()
{
    QLxDoubleSpiner box;
    QCOMPARE(box.sizeHint(), QSize(90, 16));
    box.setPrefix(QString(100, QLatin1Char('m')));
    box.setFont(QFont(box.font().family(), 50));
    QCOMPARE(box.sizeHint(), QSize(90, 16));
}

void TestDoubleSpinerSteps::leavingTheStepEditorRestoresTheBox_data()
{
    QTest::addColumn<double>("edited");
    QTest::addColumn<double>("step");
    QTest::newRow("a step") << 25.0 << 25.0;
    QTest::newRow("the smallest") << 1e-8 << 1e-8;
    QTest::newRow("too small") << 1e-9 << 1.0;
    QTest::newRow("0") << 0.0 << 1.0;
}

// Nothing enters the editor in this class, so a state of its own stands in.
void TestDoubleSpinerSteps::leavingTheStepEditorRestoresTheBox()
{
    QFETCH(double, edited);
    QFETCH(double, step);
    QLxDoubleSpiner box;
    QLxDoubleSpinerPrivate state(&box);
    state.stepEditing = true;
    state.savedMinimum = 2000.0;
    state.savedMaximum = 3000.0;
    state.savedValue = 2500.0;
    state.savedPrefix = QStringLiteral("about ");
    state.savedSuffix = QStringLiteral(" K");
    box.setPrefix(QStringLiteral("step "));
    box.setDecimals(12);
    box.setRange(0.0, 1000.0);
    box.setValue(edited);
    SignalLog log;
    watch(log, &box);
    state.leaveStepEditing();
    QCOMPARE(box.singleStep(), step);
    QCOMPARE(box.minimum(), 2000.0);
    QCOMPARE(box.maximum(), 3000.0);
    QCOMPARE(box.text(), QStringLiteral("about 2500.00 K"));
    QVERIFY(!state.stepEditing);
    QStringList expected{QStringLiteral("value(2000)"), QStringLiteral("value(2500)")}; // range, then value
    if (step == edited)
        expected.prepend(QStringLiteral("singleStepChanged(%1)").arg(asText(step)));
    QCOMPARE(log.take(), expected);
}

void TestDoubleSpinerSteps::dragInTheStepEditorIsSilent()
{
    for (const RelativeOperatorHandlingMode mode : {ApplyRelativeOperator, EmitRelativeOperator}) {
        QLxDoubleSpiner box;
        QLxDoubleSpinerPrivate state(&box);
        state.handlingMode = mode;
        state.stepEditing = true;
        SignalLog log;
        watch(log, &box);
        state.dragBy(2.5);
        COMPARE_LOG(log, {});
        QCOMPARE(box.value(), 2.5);
        QVERIFY(!box.signalsBlocked());
    }
}

QLX_TEST_MAIN(TestDoubleSpinerSteps)
#include "tst_doublespinersteps.moc"
