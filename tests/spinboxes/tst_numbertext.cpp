// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The spin boxes' plain functions: what a typed text is, what it evaluates to, how a number is written, and
// how far a drag goes.
#include "Expression_p.h"
#include "NumberText_p.h"
#include "RelativeOperator_p.h"
#include "SignalLog.h"
#include "TestCase.h"
#include "ValueDrag_p.h"

#include <QRegExp>

#include <cfenv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace {

using QLx::TextForm;

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

QString repeated(const char *part, int times)
{
    return QString::fromLatin1(part).repeated(times);
}

QStringList separated(const char *textsBetweenBars)
{
    return QString::fromUtf8(textsBetweenBars).split(QLatin1Char('|'));
}

void addOutcomeColumns()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("outcome");
}

void addOutcomes(const char *outcome, const QStringList &texts)
{
    for (const QString &text : texts)
        QTest::newRow(qPrintable(text.left(20))) << text << QString::fromLatin1(outcome);
}

// The definition of a text's form, in regular expressions.
TextForm formByPatterns(const QString &text)
{
    static const QRegExp characters(QStringLiteral("^[0-9 .()=+*/-]*$"));
    static const QRegExp operatorPair(QStringLiteral("[+*/-]{2,}"));
    static const QRegExp pointPair(QStringLiteral("\\.{2,}"));
    static const QRegExp splitOperatorPair(QStringLiteral("[+*/-][ .][+*/-]"));
    static const QRegExp relativeOperator(QStringLiteral("^[+*/-]="));
    static const QRegExp number(QStringLiteral("^-?[0-9.]*$"));
    if (!characters.exactMatch(text) || text.count(QLatin1Char('=')) >= 2)
        return TextForm::Forbidden;
    if (operatorPair.indexIn(text) >= 0 || pointPair.indexIn(text) >= 0 ||
        splitOperatorPair.indexIn(text) >= 0)
        return TextForm::Forbidden;
    if (text.contains(QLatin1Char('=')))
        return relativeOperator.indexIn(text) >= 0 ? TextForm::RelativeOperator : TextForm::Forbidden;
    return number.exactMatch(text) ? TextForm::Number : TextForm::Expression;
}

const char *formName(TextForm form)
{
    static const char *const names[] = {"Forbidden", "Number", "RelativeOperator", "Expression"};
    return names[static_cast<int>(form)];
}

// How many decimals a double has when it is written out to the last of them.
int fractionSize(double value)
{
    char text[1500]; // DBL_MAX has 309 digits before the point, the smallest double 1074 after it
    QByteArray digits(text, std::snprintf(text, sizeof text, "%.1074f", value));
    while (digits.endsWith('0'))
        digits.chop(1);
    return digits.size() - 1 - digits.indexOf('.');
}

// Without a sign. What lies halfway goes to the even neighbour in printf, away from 0 here. A double ends in
// 5, so it lies halfway if it has just one decimal too many.
QByteArray rounded(double value, int fraction, int decimals)
{
    char text[1500];
    std::fesetround(fraction == decimals + 1 ? FE_UPWARD : FE_TONEAREST);
    const int size = std::snprintf(text, sizeof text, "%.*f", decimals, std::fabs(value));
    std::fesetround(FE_TONEAREST);
    return {text, size};
}

struct NumberSetting
{
    int displayDecimals;
    bool exactDecimals;
    const char *locale;
};

int decimalsToShow(double value, int fraction, const NumberSetting &setting)
{
    if (setting.exactDecimals)
        return setting.displayDecimals;
    const QByteArray digits = rounded(value, fraction, setting.displayDecimals);
    int zeros = 0;
    while (zeros < setting.displayDecimals && digits.at(digits.size() - 1 - zeros) == '0')
        ++zeros;
    return qMax(2, setting.displayDecimals - zeros);
}

QString referenceText(double value, int fraction, const NumberSetting &setting, const QLocale &locale)
{
    const QByteArray digits = rounded(value, fraction, decimalsToShow(value, fraction, setting));
    // Numbers from 1000 on have no group separators. One that is only rounded up to 1000 keeps its own.
    const bool grouped = std::fabs(value) < 1000.0 && digits.startsWith("1000") &&
                         !(locale.numberOptions() & QLocale::OmitGroupSeparator);
    QString text = value < 0.0 ? QString(locale.negativeSign()) : QString();
    for (const char c : digits)
        text += c == '.' ? locale.decimalPoint() : QChar(locale.zeroDigit().unicode() + (c - '0'));
    if (grouped)
        text.insert(value < 0.0 ? 2 : 1, locale.groupSeparator());
    return text;
}

// Numbers of all magnitudes and those around which rounding and grouping change.
QVector<double> numbersToWrite(int count)
{
    QVector<double> numbers{0.0,        -0.0,     999.9999999, 999.995,
                            999.994999, 999.9995, 1000.0,      2147483647.0,
                            1e22,       1e23,     5e-324,      std::numeric_limits<double>::max()};
    double below = 1000.0;
    double above = 1000.0;
    for (int i = 0; i < 20; ++i) {
        below = std::nextafter(below, 0.0);
        above = std::nextafter(above, 2000.0);
        numbers << below << above << 1000.0 - std::pow(10.0, -i) << 1000.0 - 0.5 * std::pow(10.0, -i);
    }
    const int byHand = numbers.size();
    for (int i = 0; i < byHand; ++i)
        numbers << -numbers.at(i);
    std::mt19937 random(20261);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> whole(-2000, 2000);
    std::uniform_int_distribution<int> exponent(-12, 12);
    std::uniform_int_distribution<int> small(0, 7);
    while (numbers.size() < count) {
        numbers << mantissa(random) * std::pow(10.0, exponent(random));
        numbers << std::ldexp(whole(random), -small(random)); // halfway between two decimals
        numbers << whole(random) / std::pow(10.0, small(random));
        numbers << (whole(random) + 0.5) / std::pow(10.0, small(random));
        numbers << whole(random);
    }
    return numbers;
}

const NumberSetting settings[] = {
    {6, false, "C"},      {0, false, "C"},     {1, false, "C"},     {2, false, "C"},      {3, false, "C"},
    {10, false, "C"},     {17, false, "C"},    {40, false, "C"},    {0, true, "C"},       {2, true, "C"},
    {6, true, "C"},       {17, true, "C"},     {6, false, "en_US"}, {0, true, "en_US"},   {3, true, "en_US"},
    {6, false, "de_DE"},  {2, true, "de_DE"},  {1, true, "fr_FR"},  {10, false, "fr_FR"}, {2, false, "hi_IN"},
    {1, true, "hi_IN"},   {2, false, "de_CH"}, {3, true, "de_CH"},  {2, true, "ar_EG"},   {6, false, "fa_IR"},
    {323, false, "de_DE"}};

} // namespace

class TestNumberText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanedText_data();
    void cleanedText();
    void textForm_data();
    void textForm();
    void textFormOfRandomTexts();
    void parseRelativeOperator_data();
    void parseRelativeOperator();
    void appliedRelativeOperator();
    void evaluateExpression_data();
    void evaluateExpression();
    void clampedNumber();
    void numberText();
    void numberTextOfRandomNumbers();
    void dragDelta();
    void draggedValueAtTheExtremes();
};

void TestNumberText::cleanedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("cleaned");
    const auto row = [](const char *name, const char *text, const char *prefix, const char *suffix,
                        const char *cleaned) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(prefix)
                            << QString::fromUtf8(suffix) << QString::fromUtf8(cleaned);
    };
    row("empty", "", "", "", "");
    row("empty, with affixes", "", "x ", " mm", "");
    row("no affixes", "12.5", "", "", "12.5");
    row("both affixes", "x 12.5 mm", "x ", " mm", "12.5");
    row("affixes alone", "x  mm", "x ", " mm", "");
    row("suffix missing", "12345", "", " mm", "12");
    row("prefix missing", "12345", "x ", "", "345");
    row("both missing", "1234567", "x ", " mm", "34");
    row("suffix twice", "5 mm mm", "", " mm", "5 mm");
    row("prefix twice", "x x 5", "x ", "", "x 5");
    row("as long as the suffix", "123", "", " mm", "");
    row("shorter than the suffix", "12", "", " mm", "");
    row("shorter than both", "1234", "x ", " mm", "");
    row("blanks at the ends", "  7  ", "", "", "7");
    row("blanks inside", "1  +   2", "", "", "1 + 2");
    row("blanks between affix and number", "x   7   mm", "x ", " mm", "7");
    row("tab, newlines and others", "\t1\r\n+\v2\f", "", "", "1 + 2");
    row("no-break space", "1\u00a0+2", "", "", "1 +2");
    row("line separator", "1+\u2028\u20292", "", "", "1+ 2");
    row("zero-width space stays", "1\u200b2", "", "", "1\u200b2");
    row("only blanks", " \t\n ", "", "", "");
    row("blank before the prefix counts", " x 5", "x ", "", "5");
}

void TestNumberText::cleanedText()
{
    QFETCH(QString, text);
    QFETCH(QString, prefix);
    QFETCH(QString, suffix);
    QTEST(QLx::cleanedText(text, prefix, suffix), "cleaned");
}

void TestNumberText::textForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("form");
    const auto rows = [](TextForm form, const QStringList &texts) {
        for (const QString &text : texts)
            QTest::addRow("%s: '%s'", formName(form), qPrintable(text.left(20)))
                << text << QString::fromLatin1(formName(form));
    };
    rows(TextForm::Number, separated("|-|.|-.|0|12.5|-12.5|.5|5.|010|1.2.3|-1.2.3."));
    rows(TextForm::RelativeOperator,
         separated("+=|-=|*=|/=|+=5|-=-5|+= 5|*=(|/=5/|+=1.2.3|/=.|+= +5|+=()|-=-"));
    rows(TextForm::Expression,
         separated("2*(3+4)|2*(|+5|+|*|/|5-|1 2|- 5|1+ 2|1+  +2|1+. +2|1+ .+2|(1)(2)|1/0|"
                   "1-.|()|1. .2|( )| "));
    rows(TextForm::Forbidden,
         separated("=|5=|=5|+=5=|==|+==|5+=3| +=5|+ =5|1++2|1+-2|--|1..2|..|+ +|+.+|1+ +2|"
                   "1+.+2|1/*|//|-.-|+=5+-|+=5..|a|1e5|1,5|0x1|1\t+2|1\n|%=5|^=5|[1]|1;|"
                   "\u00a0|\u00b2|\u00d7|\u0661|\uff11|\u22125"));
    rows(TextForm::Forbidden, {QString(QChar(0)), repeated("1", 30000) + QLatin1Char('e')});
    rows(TextForm::Number, {repeated("1", 30000)});
    rows(TextForm::Expression, {repeated("(", 10000), repeated("1+", 15000)});
}

void TestNumberText::textForm()
{
    QFETCH(QString, text);
    QFETCH(QString, form);
    QCOMPARE(QString::fromLatin1(formName(formByPatterns(text))), form);
    QCOMPARE(QString::fromLatin1(formName(QLx::textForm(text))), form);
}

void TestNumberText::textFormOfRandomTexts()
{
    const QString allowed = QStringLiteral("0123456789012345.. ()=+*/-");
    const QString forbidden = QStringLiteral("ae,%\t\n\u00a0\u0661\uff11\u2212") + QChar(0);
    std::mt19937 random(20262);
    std::uniform_int_distribution<int> any(0, 1 << 30);
    const auto below = [&](int limit) { return any(random) % limit; };
    int found[4] = {};
    for (int i = 0; i < 200000; ++i) {
        QString text;
        if (below(4) == 0) // otherwise few texts begin as a relative operator
            text = QString(allowed.at(allowed.size() - 1 - below(4))) + QLatin1Char('=');
        for (int left = below(9); left > 0; --left) {
            const QString &characters = below(60) == 0 ? forbidden : allowed;
            text += characters.at(below(characters.size()));
        }
        const TextForm expected = formByPatterns(text);
        const TextForm actual = QLx::textForm(text);
        if (actual != expected)
            QFAIL(qPrintable(text + QLatin1String(" is taken for ") + QLatin1String(formName(actual))));
        ++found[static_cast<int>(expected)];
    }
    for (const int count : found)
        QVERIFY2(count > 10000, qPrintable(QString::number(count)));
}

void TestNumberText::parseRelativeOperator_data()
{
    addOutcomeColumns();
    addOutcomes("Add 5", separated("+=5|+=+5|+= 5|+=  5  |+=5.|+=(5)|+=2+3|+=1,5"));
    addOutcomes("Add 0.5", separated("+=.5|+=1/2"));
    addOutcomes("Add 10", separated("+=010|+=10."));    // a number is read in decimal
    addOutcomes("Add 8", separated("+=010+0|+=(010)")); // in an expression 010 is octal
    addOutcomes("Add 1000", separated("+=1e3"));
    addOutcomes("Subtract 2", separated("-=2|-=-(-2)"));
    addOutcomes("Subtract -5", separated("-=-5|-=(-5)"));
    addOutcomes("Multiply 1.5", separated("*=1.5|*=3/2"));
    addOutcomes("Multiply 14", separated("*=2*(3+4)|*=2+3*4"));
    addOutcomes("Divide 4", separated("/=4|/= 4.00"));
    addOutcomes("Divide 0", separated("/=0|/=0.0|/=1-1"));
    addOutcomes("Divide nan", separated("/=0/0|/=5/0*0"));
    addOutcomes("Add inf", {QStringLiteral("+=1/0"), QStringLiteral("+=") + repeated("9", 400)});
    addOutcomes("Add -inf", separated("+=-1/0"));
    addOutcomes("untouched", separated("|+|=|5|-5|5+=3| +=5|+ =5|=+5|%=5|+5=|+=|+= |+=-|+=.|+=(|+=()|+=1 2|"
                                       "+=1.2.3|+=(1)(2)|/=5/|+=*5|+=abc|+==5|2*(3+4)"));
}

void TestNumberText::parseRelativeOperator()
{
    QFETCH(QString, text);
    QFETCH(QString, outcome);
    RelativeOperator op = RelOpAssign;
    double operand = -77.0;
    const bool parsed = QLx::parseRelativeOperator(text, op, operand);
    QCOMPARE(parsed, outcome != QLatin1String("untouched"));
    QCOMPARE(asText(op) + QLatin1Char(' ') + asText(operand),
             parsed ? outcome : QStringLiteral("Assign -77"));
}

void TestNumberText::appliedRelativeOperator()
{
    const auto applied = QLx::appliedRelativeOperator;
    QCOMPARE(applied(RelOpNone, 10.0, 4.0), 10.0);
    QCOMPARE(applied(RelOpAdd, 10.0, 4.0), 14.0);
    QCOMPARE(applied(RelOpSubtract, 10.0, 4.0), 6.0);
    QCOMPARE(applied(RelOpMultiply, 10.0, 4.0), 40.0);
    QCOMPARE(applied(RelOpDivide, 10.0, 4.0), 2.5);
    QCOMPARE(applied(RelOpAssign, 10.0, 4.0), 4.0);
    QCOMPARE(applied(static_cast<RelativeOperator>(42), 10.0, 4.0), 10.0);
    QCOMPARE(applied(RelOpDivide, 10.0, 0.0), 10.0);
    QCOMPARE(applied(RelOpDivide, 10.0, -0.0), 10.0);
    QCOMPARE(applied(RelOpDivide, 0.0, 0.0), 0.0);
    QCOMPARE(applied(RelOpDivide, 10.0, Nan), Nan);
    QCOMPARE(applied(RelOpDivide, 10.0, Infinity), 0.0);
    QCOMPARE(applied(RelOpDivide, 10.0, 5e-324), Infinity);
    QCOMPARE(applied(RelOpMultiply, -10.0, Infinity), -Infinity);
    QCOMPARE(applied(RelOpMultiply, 0.0, Infinity), Nan);
    QCOMPARE(applied(RelOpSubtract, 10.0, Infinity), -Infinity);
    QCOMPARE(applied(RelOpAdd, 10.0, Nan), Nan);
    QCOMPARE(applied(RelOpAssign, 10.0, Nan), Nan);
}

void TestNumberText::evaluateExpression_data()
{
    addOutcomeColumns();
    addOutcomes("7", separated("7| 7 |+7|7.|07|(7)|-(-7)|1+ 6|3+2*2|(1)+(6)|28/2/2|(28)/2/(2)|28. /2 "
                               "/2|7//8|7/*8*/|/*8*/7|10-2-1|7.0"));
    addOutcomes("-7.25", separated("-7.25|- 7.25|-(7+1/4)|1-8.25"));
    addOutcomes("0.25", separated(".25|1/4|0.5*.5"));
    addOutcomes("8", separated("010|8|08"));
    addOutcomes("-8", separated("-010"));
    addOutcomes("1000", separated("1e3|0x3e8"));
    addOutcomes("inf", {QStringLiteral("1/0"), repeated("9", 400)});
    addOutcomes("-inf", separated("-1/0"));
    addOutcomes("nan", separated("0/0|5/0*0"));
    addOutcomes(
        "none",
        separated("|-|+|.|(|2*(|1 "
                  "2|1.2.3|010.5|()|(1)(2)|5)|/5/|/=5/|(/5/)-1|1+(/5/)|7/*|*/7|5=|=5|+=5|-=|abc|'5'|1<2|[5]|"
                  "null|7;8;x"));
    addOutcomes("none", {repeated("(", 10000), QStringLiteral("(/(1*)*2/)(%1)").arg(repeated("1", 60))});
    addOutcomes("7", {repeated("(", 1000) + QLatin1Char('7') + repeated(")", 1000)});
    addOutcomes("2001", {repeated("1+", 2000) + QLatin1Char('1')});
}

void TestNumberText::evaluateExpression()
{
    QFETCH(QString, text);
    const std::optional<double> result = QLx::evaluateExpression(text);
    QTEST(result ? asText(*result) : QStringLiteral("none"), "outcome");
}

void TestNumberText::clampedNumber()
{
    QCOMPARE(QLx::clampedNumber(3.5, -1.0, 5.0), 3.5);
    QCOMPARE(QLx::clampedNumber(-1.0, -1.0, 5.0), -1.0);
    QCOMPARE(QLx::clampedNumber(5.0, -1.0, 5.0), 5.0);
    QCOMPARE(QLx::clampedNumber(-1.5, -1.0, 5.0), -1.0);
    QCOMPARE(QLx::clampedNumber(5.5, -1.0, 5.0), 5.0);
    QCOMPARE(QLx::clampedNumber(Infinity, -1.0, 5.0), 5.0);
    QCOMPARE(QLx::clampedNumber(-Infinity, -1.0, 5.0), -1.0);
    QCOMPARE(QLx::clampedNumber(Nan, -1.0, 5.0), -1.0);
    QCOMPARE(QLx::clampedNumber(9.0, 4.0, 4.0), 4.0);
    QCOMPARE(QLx::clampedNumber(5.0, 8.0, 2.0), 2.0); // limits that cross: the maximum has the last word
}

void TestNumberText::numberText()
{
    const auto written = [](double value, const NumberSetting &setting) {
        return QLx::numberText(value, setting.displayDecimals, setting.exactDecimals,
                               QLocale(QLatin1String(setting.locale)));
    };
    const NumberSetting usual = {6, false, "C"};
    QCOMPARE(written(1.0, usual), QStringLiteral("1.00"));
    QCOMPARE(written(0.0, usual), QStringLiteral("0.00"));
    QCOMPARE(written(0.5, usual), QStringLiteral("0.50"));
    QCOMPARE(written(0.125, usual), QStringLiteral("0.125"));
    QCOMPARE(written(1234.5, usual), QStringLiteral("1234.50"));
    QCOMPARE(written(0.1234567, usual), QStringLiteral("0.123457"));
    QCOMPARE(written(0.9999999, usual), QStringLiteral("1.00"));
    QCOMPARE(written(999.9999999, usual), QStringLiteral("1000.00"));
    QCOMPARE(written(2.0, {3, true, "C"}), QStringLiteral("2.000"));
    QCOMPARE(written(2.5, {0, true, "C"}), QStringLiteral("3"));
    QCOMPARE(written(2.345, {0, false, "C"}), QStringLiteral("2.35")); // two decimals, not all three
    QCOMPARE(written(0.26, {1, false, "C"}), QStringLiteral("0.26"));
    QCOMPARE(written(0.26, {1, true, "C"}), QStringLiteral("0.3"));
    QCOMPARE(written(-1234.5, {6, false, "en_US"}), QStringLiteral("-1234.50"));
    QCOMPARE(written(-1234.5, {6, false, "de_DE"}), QStringLiteral("-1234,50"));
    QCOMPARE(written(1234567.125, {6, false, "fr_FR"}), QStringLiteral("1234567,125"));
    QCOMPARE(written(1234567.0, {6, false, "hi_IN"}), QStringLiteral("1234567.00"));
    QCOMPARE(written(1000.0, {6, false, "de_CH"}), QStringLiteral("1000.00"));
    QCOMPARE(written(1234.5, {6, false, "ar_EG"}),
             QStringLiteral("\u0661\u0662\u0663\u0664\u066b\u0665\u0660"));
    // Below 1000, but only just: the rounded text is grouped.
    QCOMPARE(written(999.9999999, {6, false, "en_US"}), QStringLiteral("1,000.00"));
    QCOMPARE(written(-999.9999999, {6, false, "de_DE"}), QStringLiteral("-1.000,00"));
    QCOMPARE(written(999.9999999, {6, false, "de_CH"}), QStringLiteral("1\u2019000.00"));
}

void TestNumberText::numberTextOfRandomNumbers()
{
    const QVector<double> numbers = numbersToWrite(10000);
    QVector<int> fractions;
    for (const double value : numbers)
        fractions.append(fractionSize(value));
    for (const NumberSetting &setting : settings) {
        const QLocale locale(QLatin1String(setting.locale));
        for (int i = 0; i < numbers.size(); ++i) {
            const double value = numbers.at(i);
            const QString expected = referenceText(value, fractions.at(i), setting, locale);
            const QString actual =
                QLx::numberText(value, setting.displayDecimals, setting.exactDecimals, locale);
            if (actual != expected)
                QFAIL(qPrintable(QStringLiteral("%1, %2 decimals (exact: %3), %4: '%5' instead of '%6'")
                                     .arg(asText(value), asText(setting.displayDecimals),
                                          asText(setting.exactDecimals), locale.name(), actual, expected)));
        }
    }
}

void TestNumberText::dragDelta()
{
    QCOMPARE(QLx::dragDelta(0.1, 5, 15), 1.0);
    QCOMPARE(QLx::dragDelta(0.5, 3, -7), -5.0);
    QCOMPARE(QLx::dragDelta(0.5, 3, 3), 0.0);
    QCOMPARE(QLx::dragDelta(Infinity, 3, 3), 0.0);
    QCOMPARE(QLx::dragDelta(Nan, 3, 3), 0.0);
    QCOMPARE(QLx::dragDelta(Infinity, 3, 2), -Infinity);
    QCOMPARE(QLx::dragDelta(0.0, 3, 20), 0.0);
    QCOMPARE(QLx::dragDelta(1.0, Lowest, Highest), 4294967295.0);
    QCOMPARE(QLx::dragDelta(2.0, Highest, Lowest), -8589934590.0);
    QCOMPARE(QLx::dragDelta(std::numeric_limits<double>::max(), 0, 2), Infinity);
}

void TestNumberText::draggedValueAtTheExtremes()
{
    __extension__ using Wide = __int128;
    const std::pair<int, int> ranges[] = {{Lowest, Highest}, {0, 100}, {-1000, Highest},
                                          {Lowest, -1},      {-5, -5}, {Highest, Highest},
                                          {Lowest, Lowest}};
    const int numbers[] = {Lowest, Lowest + 1, -65536, -1000, -1, 0, 1, 999, 65535, Highest - 1, Highest};
    for (const auto &[minimum, maximum] : ranges)
        for (const int step : {0, 1, 3, 1000, 65536, Highest - 1, Highest})
            for (const int value : numbers)
                for (const int from : numbers)
                    for (const int to : numbers) {
                        const Wide wide = value + (static_cast<Wide>(to) - from) * step;
                        const int actual = QLx::draggedValue(value, step, from, to, minimum, maximum);
                        if (actual != qBound<Wide>(minimum, wide, maximum))
                            QFAIL(
                                qPrintable(QString::asprintf("%d from %d to %d by %d in %d to %d: %d", value,
                                                             from, to, step, minimum, maximum, actual)));
                    }
}

QLX_TEST_MAIN(TestNumberText)
#include "tst_numbertext.moc"
