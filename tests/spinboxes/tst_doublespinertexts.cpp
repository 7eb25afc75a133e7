// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// What the double spin box makes of a text: asked directly, typed key by key, and pasted; in each mode of
// relative operators, with affixes and without.
#include "QLxDoubleSpiner.h"
#include "SignalLog.h"
#include "TestCase.h"
#include "TextRows.h"

#include <QClipboard>
#include <QLineEdit>

#include <cmath>
#include <memory>
#include <tuple>

namespace {

using namespace TextRows;

const char *stateName(QValidator::State state)
{
    static const char *const names[] = {"Invalid", "Intermediate", "Acceptable"};
    return names[state];
}

QString changedLine(RelativeOperator op, double operand)
{
    return QStringLiteral("relativeOperatorChanged(%1, %2)").arg(asText(op), asText(operand));
}
QString appliedLine(RelativeOperator op, double operand)
{
    return QStringLiteral("relativeOperatorApplied(%1, %2)").arg(asText(op), asText(operand));
}
const QString resetLine = changedLine(RelOpNone, 0.0);
const QString finishedLine = QStringLiteral("editingFinished()");

RelativeOperator operatorOf(const QString &text)
{
    const int at = QStringLiteral("+-*/").indexOf(text.at(0));
    return static_cast<RelativeOperator>(RelOpAdd + at);
}

// Of a box with a range from 5 to 100.
QVector<TextRow> inLimitedRange()
{
    return {
        plain("inside", "30", 30),
        plain("at the limit", "100", 100),
        unfinished("below the minimum", "3").reads(5, 5),
        unfinished("below the minimum, with decimals", "3.25").reads(5, 5),
        unfinished("empty", "").reads(5, 5),
        refused("401 digits", QStringLiteral("9").repeated(401), 100).typed("99", 99),
        unfinished("bracket to come", "20*(").reads(5, 5),
        refused("above the maximum", "101", 100).typed("10", 10),
        refused("above the maximum, with decimals", "100.5", 100).typed("100.", 100),
        refused("minus", "-", 5).typedInVain(),
        refused("negative", "-50", 5).typed("50", 50),
        refused("word", "abc", 5).typedInVain(),
        plain("sum above the maximum", "0+400", 100),
        plain("difference below the minimum", "2-3", 5),
        plain("first operand above the maximum", "400-399", 5).typed("40-399", 5),
        plain("infinity", "1/0", 100),
        plain("not a number", "0/0", 5),
        relative("operator above the maximum", "+=1000", RelOpAdd, 1000, 100, "1 10 100 1000").reads(100, 5),
        relative("operator below the minimum", "/=10", RelOpDivide, 10, 5, "1 10").reads(5, 5),
        // The minus, on its own a number's, is refused where none is negative.
        relative("operator that cannot be typed", "-=1", RelOpSubtract, 1, 9, "")
            .reads(9, 5)
            .typed("1", Nothing),
        relative("operator without a number", "/=0/0", RelOpDivide, Nothing, 5, "0 _ nan").reads(5, 5),
        relative("operator with an expression below the minimum", "+=50-120", RelOpAdd, -70, 5,
                 "5 50 _ 49 38 -70")
            .reads(5, 5),
    };
}

// What a box with the prefix "x " and the suffix " mm" makes of texts in which one is missing or doubled.
QVector<TextRow> withWrongAffixes()
{
    return {
        plain("right", "x 5 mm", 5),
        plain("none", "1234567", 34).becomes("x 1234567 mm"),
        plain("none, few digits", "12", 0).becomes("x 12 mm"),
        plain("none, an expression is cut", "12+3456", 3).becomes("12+3456"),
        relative("none, an operator is cut", "12+=5678", RelOpAdd, 5, 15, ""),
        plain("no suffix", "x 5", 0).becomes("x 5 mm"),
        plain("no suffix, more digits", "x 54321", 54).becomes("x 54321 mm"),
        plain("no prefix", "5 mm", 0).becomes("x 5 mm"),
        plain("no prefix, more digits", "54321 mm", 321).becomes("x 54321 mm"),
        unfinished("nothing", "").becomes("x  mm"),
        unfinished("the affixes alone", "x  mm"),
        unfinished("the suffix alone", " mm").becomes("x  mm"),
        unfinished("the prefix alone", "x ").becomes("x  mm"),
        refused("none, too many digits", "123456789012345", Highest).becomes("x 123456789012345 mm"),
        refused("none, an expression is cut to a number", "12345+67", 345).becomes("x 12345+67 mm"),
        refused("suffix twice", "x 5 mm mm"),
        refused("prefix twice", "x x 5 mm"),
        refused("both twice", "x x 5 mm mm"),
        refused("another unit", "x 5 cm", 5).becomes("x 5 cm mm"),
        refused("blank behind the suffix", "x 5 mm ", 5).becomes("x 5 mm mm"),
        refused("blank before the prefix", " x 5 mm", 5).becomes("x x 5 mm"),
        refused("suffix without its blank", "x 57mm", 5).becomes("x 57mm mm"),
        refused("capital suffix", "x 5 MM", 5).becomes("x 5 MM mm"),
    };
}

} // namespace

class TestDoubleSpinerTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void asked_data() { addRows(all()); }
    void asked();
    void typedThenReturn_data() { addRows(all(), true); }
    void typedThenReturn() { typedThen(Qt::Key_Return); }
    void typedThenEnter_data() { addRows(all(), true); }
    void typedThenEnter() { typedThen(Qt::Key_Enter); }
    void typedThenFocusLost_data() { addRows(all(), true); }
    void typedThenFocusLost() { typedThen(Qt::Key_Tab); }
    void pastedThenReturn_data() { addRows(all()); }
    void pastedThenReturn();
    void neitherMode_data() { addRows(relativeOperators()); }
    void neitherMode();
    void numbersAreJudgedByTheBaseClass_data() { addRows(numbers()); }
    void numbersAreJudgedByTheBaseClass();
    void limitedRange_data() { addRows(inLimitedRange()); }
    void limitedRange();
    void wrongAffixes_data() { addRows(withWrongAffixes()); }
    void wrongAffixes();
    void germanBox();
    void appliesOnce();
    void appliesAgainWhenTypedAgain();
    void cleanup();

private:
    void addRows(const QVector<TextRow> &rows, bool onlyTyped = false);
    void makeBox();
    void focusBox();
    void type(const QString &text);
    QString edited() const { return m_box->findChild<QLineEdit *>()->text(); }
    QString around(const QString &text) const { return m_box->prefix() + text + m_box->suffix(); }
    void compareAnswers(const TextRow &row, const QString &text, const QString &normalized);
    void compareTyping(const TextRow &row, Qt::Key last);
    void typedThen(Qt::Key last);
    // The end of an edit that leaves an operator pending, or RelOpNone, and commits a value, or Nothing.
    QStringList linesOfTheEnd(RelativeOperator pending, double operand, double committed,
                              bool confirmed) const;
    void compareEnd(double committed);

    std::unique_ptr<QWidget> m_window;
    QWidget *m_neighbour = nullptr;
    std::unique_ptr<QLxDoubleSpiner> m_box;
    std::unique_ptr<SignalLog> m_log;
    RelativeOperatorHandlingMode m_mode = ApplyRelativeOperator;
};

void TestDoubleSpinerTexts::initTestCase_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    const auto row = [](const char *name, int mode, const char *prefix, const char *suffix) {
        QTest::newRow(name) << mode << QString::fromLatin1(prefix) << QString::fromLatin1(suffix);
    };
    row("applied", ApplyRelativeOperator, "", "");
    row("applied, affixes", ApplyRelativeOperator, "x ", " mm");
    row("reported", EmitRelativeOperator, "", "");
    row("reported, affixes", EmitRelativeOperator, "x ", " mm");
}

void TestDoubleSpinerTexts::initTestCase()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 100);
    m_neighbour = new QLineEdit(m_window.get());
    m_neighbour->move(0, 50);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestDoubleSpinerTexts::cleanup()
{
    m_box.reset();
    m_log.reset();
    TestCase::cleanup();
}

void TestDoubleSpinerTexts::addRows(const QVector<TextRow> &rows, bool onlyTyped)
{
    QTest::addColumn<int>("at");
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i).isTyped || !onlyTyped)
            QTest::newRow(rows.at(i).name) << i;
    }
}

// A box of the value 10 as the current mode and affixes want it, and its log.
void TestDoubleSpinerTexts::makeBox()
{
    QFETCH_GLOBAL(int, mode);
    QFETCH_GLOBAL(QString, prefix);
    QFETCH_GLOBAL(QString, suffix);
    m_mode = static_cast<RelativeOperatorHandlingMode>(mode);
    m_box = std::make_unique<QLxDoubleSpiner>(m_window.get());
    m_box->setRelativeOperatorHandlingMode(m_mode);
    m_box->setPrefix(prefix);
    m_box->setSuffix(suffix);
    m_box->setValue(10.0);
    m_log = std::make_unique<SignalLog>();
    using Box = QLxDoubleSpiner;
    m_log->watch(m_box.get(), &Box::relativeOperatorChanged, "relativeOperatorChanged");
    m_log->watch(m_box.get(), &Box::relativeOperatorApplied, "relativeOperatorApplied");
    m_log->watch(m_box.get(), QOverload<double>::of(&Box::valueChanged), "valueChanged");
    m_log->watch(m_box.get(), &Box::editingFinished, "editingFinished");
}

void TestDoubleSpinerTexts::focusBox()
{
    m_box->show();
    m_box->setFocus();
    QVERIFY(m_box->hasFocus());
    m_box->selectAll();
    COMPARE_LOG(*m_log, {});
}

void TestDoubleSpinerTexts::type(const QString &text)
{
    for (const QChar c : text) {
        if (c.unicode() < 0x80)
            QTest::keyClick(m_box.get(), c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, m_box.get(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    if (text.isEmpty())
        QTest::keyClick(m_box.get(), Qt::Key_Delete);
}

QStringList TestDoubleSpinerTexts::linesOfTheEnd(RelativeOperator pending, double operand, double committed,
                                                 bool confirmed) const
{
    const bool reports = m_mode == EmitRelativeOperator;
    const bool changed = !std::isnan(committed) && committed != 10.0;
    QStringList lines;
    if (changed && reports)
        lines << resetLine;
    if (changed)
        lines << QStringLiteral("valueChanged(%1)").arg(asText(committed));
    if (reports && pending != RelOpNone)
        lines << appliedLine(pending, operand) << resetLine;
    else if (reports && confirmed)
        lines << appliedLine(RelOpAssign, std::isnan(committed) ? 10.0 : committed) << resetLine;
    return lines << finishedLine;
}

// The box has, and shows with six decimals, what was committed.
void TestDoubleSpinerTexts::compareEnd(double committed)
{
    const double value = std::isnan(committed) ? 10.0 : committed;
    QCOMPARE(asText(m_box->value()), asText(value));
    QVERIFY2(std::fabs(m_box->cleanText().toDouble() - value) < 0.500001e-6, qPrintable(edited()));
    if (std::isnan(committed))
        QCOMPARE(edited(), around(QStringLiteral("10.00")));
}

// By direct calls: of the two functions that a spin box asks, which emit nothing, and of the slot that
// follows textEdited(), here also with texts that the text field would have refused.
void TestDoubleSpinerTexts::compareAnswers(const TextRow &row, const QString &text, const QString &normalized)
{
    QString input = text;
    int pos = input.size();
    const bool waits = row.isRelative() && m_mode != ApplyRelativeOperator;
    QCOMPARE(stateName(m_box->validate(input, pos)), stateName(waits ? QValidator::Intermediate : row.state));
    QCOMPARE(input, normalized);
    QCOMPARE(asText(m_box->valueFromText(text)),
             asText(m_mode == ApplyRelativeOperator ? row.value : row.valueElsewhere));
    COMPARE_LOG(*m_log, {});

    QVERIFY(QMetaObject::invokeMethod(m_box.get(), "checkInput", Q_ARG(QString, text)));
    QStringList expected;
    if (m_mode == EmitRelativeOperator)
        expected << resetLine;
    if (row.isRelative())
        expected << changedLine(row.op, row.operand);
    QCOMPARE(m_log->take(), expected);
    QCOMPARE(m_box->value(), 10.0);
}

void TestDoubleSpinerTexts::asked()
{
    QFETCH(int, at);
    const TextRow &row = all().at(at);
    makeBox();
    compareAnswers(row, around(row.text), around(row.normalized));
}

void TestDoubleSpinerTexts::compareTyping(const TextRow &row, Qt::Key last)
{
    focusBox();
    type(row.text);
    QCOMPARE(edited(), around(row.left));
    QStringList expected;
    RelativeOperator pending = RelOpNone;
    double operand = 0.0;
    for (int edit = 0; edit < row.edits; ++edit) {
        if (m_mode == EmitRelativeOperator)
            expected << resetLine;
        bool announced = false;
        operand = row.announced.value(edit - 2).toDouble(&announced);
        pending = announced ? operatorOf(row.left) : RelOpNone;
        if (announced)
            expected << changedLine(pending, operand);
    }
    QCOMPARE(m_log->take(), expected);
    QCOMPARE(m_box->value(), 10.0);

    QTest::keyClick(m_box.get(), last);
    QCOMPARE(m_box->hasFocus(), last != Qt::Key_Tab);
    const bool isRelative = row.left.contains(QLatin1Char('='));
    const double committed = isRelative && m_mode != ApplyRelativeOperator ? Nothing : row.committed;
    QCOMPARE(m_log->take(), linesOfTheEnd(pending, operand, committed, last != Qt::Key_Tab));
    compareEnd(committed);
}

void TestDoubleSpinerTexts::typedThen(Qt::Key last)
{
    QFETCH(int, at);
    makeBox();
    compareTyping(all().at(at), last);
}

void TestDoubleSpinerTexts::pastedThenReturn()
{
    QFETCH(int, at);
    const TextRow &row = all().at(at);
    makeBox();
    focusBox();
    QGuiApplication::clipboard()->setText(row.text);
    m_box->findChild<QLineEdit *>()->paste();
    const bool isRefused = row.state == QValidator::Invalid;
    QStringList expected;
    if (m_mode == EmitRelativeOperator && !isRefused)
        expected << resetLine;
    if (row.isRelative())
        expected << changedLine(row.op, row.operand);
    QCOMPARE(m_log->take(), expected);
    QCOMPARE(edited(), around(isRefused ? QStringLiteral("10.00") : row.normalized));

    QTest::keyClick(m_box.get(), Qt::Key_Return);
    const bool waits = row.isRelative() && m_mode != ApplyRelativeOperator;
    const double committed = row.state == QValidator::Acceptable && !waits ? row.value : Nothing;
    QCOMPARE(m_log->take(), linesOfTheEnd(row.op, row.operand, committed, true));
    compareEnd(committed);
}

// A mode outside the enum announces operators, but neither applies nor reports them.
void TestDoubleSpinerTexts::neitherMode()
{
    QFETCH(int, at);
    const QVector<TextRow> rows = relativeOperators();
    const TextRow &row = rows.at(at);
    makeBox();
    m_mode = static_cast<RelativeOperatorHandlingMode>(2);
    m_box->setRelativeOperatorHandlingMode(m_mode);
    compareAnswers(row, around(row.text), around(row.normalized));
    if (row.isTyped)
        compareTyping(row, Qt::Key_Return);
}

// Digits and points are left to QDoubleSpinBox, with all that it makes of them in the box's locale.
void TestDoubleSpinerTexts::numbersAreJudgedByTheBaseClass()
{
    QFETCH(int, at);
    const QVector<TextRow> rows = numbers();
    const TextRow &row = rows.at(at);
    makeBox();
    QDoubleSpinBox reference;
    reference.setDecimals(10);
    reference.setPrefix(m_box->prefix());
    reference.setSuffix(m_box->suffix());
    for (const char *const name : {"C", "en_US", "de_DE", "fr_FR", "hi_IN", "de_CH"}) {
        for (QDoubleSpinBox *const box : {&reference, static_cast<QDoubleSpinBox *>(m_box.get())}) {
            box->setLocale(QLocale(QLatin1String(name)));
            box->setRange(Lowest, Highest); // and forget what the locale before thought of the text
        }
        QString input = around(row.text);
        QString referenceInput = input;
        int pos = input.size();
        int referencePos = pos;
        const QValidator::State state = m_box->validate(input, pos);
        QCOMPARE(stateName(state), stateName(reference.validate(referenceInput, referencePos)));
        QCOMPARE(input, referenceInput);
        QCOMPARE(pos, referencePos);
    }
}

void TestDoubleSpinerTexts::limitedRange()
{
    QFETCH(int, at);
    const QVector<TextRow> rows = inLimitedRange();
    const TextRow &row = rows.at(at);
    makeBox();
    m_box->setRange(5.0, 100.0);
    compareAnswers(row, around(row.text), around(row.normalized));
    if (row.isTyped)
        compareTyping(row, Qt::Key_Return);
}

void TestDoubleSpinerTexts::wrongAffixes()
{
    QFETCH(int, at);
    const QVector<TextRow> rows = withWrongAffixes();
    const TextRow &row = rows.at(at);
    makeBox();
    m_box->setPrefix(QStringLiteral("x "));
    m_box->setSuffix(QStringLiteral(" mm"));
    compareAnswers(row, row.text, row.normalized);
}

// What is typed has a point all the same; what is shown has a comma.
void TestDoubleSpinerTexts::germanBox()
{
    makeBox();
    m_box->setLocale(QLocale(QLocale::German, QLocale::Germany));
    const std::tuple<const char *, double, const char *> edits[] = {{"1,5", 1.5, "1,50"},
                                                                    {"1.5*1000", 1500.0, "1500,00"},
                                                                    {"", 1500.0, "1500,00"},
                                                                    {"1/8", 0.125, "0,125"}};
    for (const auto &[typed, value, shown] : edits) {
        focusBox();
        type(QString::fromLatin1(typed));
        for (int times = 0; times < 2; ++times) { // what is shown is no number that could be committed again
            QTest::keyClick(m_box.get(), Qt::Key_Return);
            QCOMPARE(m_box->value(), value);
            QCOMPARE(edited(), around(QString::fromLatin1(shown)));
        }
        m_log->take();
    }
}

void TestDoubleSpinerTexts::appliesOnce()
{
    makeBox();
    focusBox();
    type(QStringLiteral("+=5"));
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    const double value = m_mode == ApplyRelativeOperator ? 15.0 : 10.0;
    QCOMPARE(m_box->value(), value);
    m_log->take();
    m_neighbour->setFocus();
    COMPARE_LOG(*m_log, {finishedLine});
    QCOMPARE(m_box->value(), value);

    // Nothing was typed since.
    m_box->setFocus();
    QTest::keyClick(m_box.get(), Qt::Key_Return);
    if (m_mode == EmitRelativeOperator)
        COMPARE_LOG(*m_log, {appliedLine(RelOpAssign, 10.0), resetLine, finishedLine});
    else
        COMPARE_LOG(*m_log, {finishedLine});
    QCOMPARE(m_box->value(), value);
}

void TestDoubleSpinerTexts::appliesAgainWhenTypedAgain()
{
    makeBox();
    focusBox();
    for (const double value : {15.0, 20.0, 25.0}) {
        type(QStringLiteral("+=5"));
        m_log->take();
        QTest::keyClick(m_box.get(), Qt::Key_Return); // and selects all
        if (m_mode == ApplyRelativeOperator)
            COMPARE_LOG(*m_log, {QStringLiteral("valueChanged(%1)").arg(asText(value)), finishedLine});
        else if (m_mode == EmitRelativeOperator)
            COMPARE_LOG(*m_log, {appliedLine(RelOpAdd, 5.0), resetLine, finishedLine});
        else
            COMPARE_LOG(*m_log, {finishedLine});
        QCOMPARE(m_box->value(), m_mode == ApplyRelativeOperator ? value : 10.0);
    }
}

QLX_TEST_MAIN(TestDoubleSpinerTexts)
#include "tst_doublespinertexts.moc"
