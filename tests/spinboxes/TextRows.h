// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef TEXTROWS_H
#define TEXTROWS_H

#include "QLxRelativeOperator.h"

#include <QString>
#include <QStringList>
#include <QValidator>
#include <QVector>

#include <limits>

/// A text and what a double spin box makes of it whose value is 10 and whose range is the initial one.
struct TextRow
{
    const char *name;
    QString text;
    /// Where relative operators are applied.
    QValidator::State state = QValidator::Invalid;
    /// Read from a text that is not refused.
    RelativeOperator op = RelOpNone;
    double operand = 0.0;
    /// What valueFromText() gives where relative operators are applied, and elsewhere.
    double value = 0.0;
    double valueElsewhere = 0.0;
    /// What validate() makes of the text.
    QString normalized;

    /// The text typed key by key over the selected number: what stands there in the end, how many keys were
    /// not refused, and the operands that were announced from the third of them on ("_" for none).
    QString left;
    int edits = 0;
    QStringList announced;
    /// What is then committed where relative operators are applied; NaN for nothing.
    double committed = 0.0;
    bool isTyped = true;

    bool isRelative() const { return op != RelOpNone; }

    /// For texts of which some keys are refused, or some blanks taken away: those are edits all the same.
    TextRow typed(const char *leaves, double commits, int keys = -1, const char *announces = "") const
    {
        TextRow row = *this;
        row.left = QString::fromUtf8(leaves);
        row.committed = commits;
        row.edits = keys < 0 ? row.left.size() : keys;
        row.announced = QString::fromLatin1(announces).split(QLatin1Char(' '));
        row.isTyped = true;
        return row;
    }
    /// All keys are refused.
    TextRow typedInVain() const { return typed("10.00", std::numeric_limits<double>::quiet_NaN(), 0); }
    /// What valueFromText() gives, if that is not the number of the state.
    TextRow reads(double whereApplied, double elsewhere) const
    {
        TextRow row = *this;
        row.value = whereApplied;
        row.valueElsewhere = elsewhere;
        return row;
    }
    /// Too long, or made of characters that no key has.
    TextRow onlyPasted() const
    {
        TextRow row = *this;
        row.isTyped = false;
        return row;
    }
    /// A plain number loses the blanks around it, and gets the affixes that it has not.
    TextRow becomes(const char *other) const
    {
        TextRow row = *this;
        row.normalized = QString::fromUtf8(other);
        return row;
    }
};

namespace TextRows {

constexpr double Nothing = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Highest = 2147483647.0;
constexpr double Lowest = -2147483647.0;

struct RowText : QString
{
    RowText(const char *utf8)
        : QString(QString::fromUtf8(utf8))
    {
    }
    RowText(const QString &text)
        : QString(text)
    {
    }
};

inline TextRow textRow(const char *name, const QString &text, QValidator::State state, double value)
{
    TextRow row;
    row.name = name;
    row.text = row.normalized = row.left = text;
    row.state = state;
    row.value = row.valueElsewhere = value;
    row.edits = qMax(1, text.size());
    row.committed = state == QValidator::Acceptable ? value : Nothing;
    return row;
}
/// Accepted in any mode: a plain number or an expression.
inline TextRow plain(const char *name, const RowText &text, double value)
{
    return textRow(name, text, QValidator::Acceptable, value);
}
/// Not yet, or never, a number, but may be typed.
inline TextRow unfinished(const char *name, const RowText &text)
{
    return textRow(name, text, QValidator::Intermediate, 0.0);
}
inline TextRow relative(const char *name, const RowText &text, RelativeOperator op, double operand,
                        double value, const char *announced)
{
    TextRow row = textRow(name, text, QValidator::Acceptable, value).reads(value, 0.0);
    row.op = op;
    row.operand = operand;
    row.announced = QString::fromLatin1(announced).split(QLatin1Char(' '));
    return row;
}
/// Contains what must not be typed. valueFromText() looks at it all the same.
inline TextRow refused(const char *name, const RowText &text, double value = 0.0)
{
    return textRow(name, text, QValidator::Invalid, value).onlyPasted();
}

inline QVector<TextRow> numbers()
{
    const QString zeros(400, QLatin1Char('0'));
    return {
        plain("zero", "0", 0),
        plain("a digit", "7", 7),
        plain("the value that is there", "10", 10),
        plain("the value that is there, with decimals", "10.00", 10),
        plain("a fraction", "12.5", 12.5),
        plain("negative", "-12.5", -12.5),
        plain("negative zero", "-0", 0),
        plain("point first", ".5", 0.5),
        plain("minus and point first", "-.5", -0.5),
        plain("point last", "5.", 5),
        plain("octal", "010", 8),
        plain("octal, negative", "-010", -8),
        plain("octal, two zeros", "0017", 15),
        plain("leading zero before 8", "08", 8),
        plain("leading zero before 19", "019", 19),
        plain("octal with a fraction is no script number", "010.5", 0),
        plain("two zeros and a fraction", "00.5", 0),
        plain("400 zeros", zeros, 0).onlyPasted(),
        plain("ten decimals", "1.0123456789", 1.0123456789),
        plain("smallest with ten decimals", "0.0000000001", 1e-10),
        plain("maximum", "2147483647", Highest),
        plain("minimum", "-2147483647", Lowest),
        plain("maximum with decimals", "2147483647.00", Highest),
        plain("blank before", " 7", 7).typed("7", 7, 2).becomes("7"),
        plain("blank behind", "7 ", 7).typed("7", 7, 2).becomes("7"),
        plain("blanks around", "  7  ", 7).typed("7", 7, 5).becomes("7"),
        unfinished("empty", "").typed("", Nothing, 1),
        unfinished("only blanks", "  ").typed("", Nothing, 2).becomes(""),
        unfinished("minus", "-"),
        unfinished("point", "."),
        unfinished("minus and point", "-."),
        refused("above the maximum", "2147483648", Highest).typed("214748364", 214748364),
        refused("just above the maximum", "2147483647.1", Highest).typed("2147483647.", Highest),
        refused("below the minimum", "-2147483648", Lowest).typed("-214748364", -214748364),
        refused("eleven decimals", "1.12345678901", 1.12345678901).typed("1.1234567890", 1.123456789),
        refused("two points", "1.2.3").typed("1.23", 1.23),
        refused("points around", ".5.").typed(".5", 0.5),
        refused("1 and 400 zeros", QLatin1Char('1') + zeros, Highest),
        refused("minus and 400 digits", QStringLiteral("-1") + zeros, Lowest),
        refused("30 000 digits", QString(30000, QLatin1Char('7')), Highest),
    };
}

inline QVector<TextRow> expressions()
{
    const QString brackets(1000, QLatin1Char('('));
    return {
        plain("sum", "2+3", 5),
        plain("difference", "2-3", -1),
        plain("product", "2*3", 6),
        plain("quotient", "1/4", 0.25),
        plain("endless quotient", "1/3", 1.0 / 3.0),
        plain("product before sum", "2+3*4", 14),
        plain("brackets before product", "2*(3+4)", 14),
        plain("brackets, product and quotient", "2*(3+4)/5", 2.8),
        plain("differences from the left", "1-2-3", -4),
        plain("quotients from the left", "8/2/2", 2),
        plain("quotient in brackets", "8/(2/2)", 8),
        plain("negative first", "-3-4", -7),
        plain("negative operand in brackets", "7*(-2)", -14),
        plain("minus before brackets", "-(3)", -3),
        plain("minus twice, by brackets", "-(-3)", 3),
        plain("plus", "+5", 5),
        plain("plus before brackets", "+(5)", 5),
        plain("brackets", "(5)", 5),
        plain("brackets in brackets", "((5))", 5),
        plain("ten pairs of brackets", "((((((((((5))))))))))", 5),
        plain("points first", ".5+.5", 1),
        plain("point before an operator", "5.+1", 6),
        plain("point before two operands", "5.*2+1", 11),
        plain("point after an operator", "1-.2", 0.8),
        plain("binary fractions", "0.1+0.2", 0.1 + 0.2),
        plain("octal operand", "010+1", 9),
        plain("octal operand second", "1+010", 9),
        plain("blank after an operator", "1+ 2", 3),
        plain("blank before an operator", "1 +2", 3).typed("1+2", 3, 4),
        plain("blanks around an operator", "1 + 2", 3).typed("1+ 2", 3, 5),
        plain("two blanks after an operator", "1+  2", 3),
        plain("blanks in brackets", "( 5 )", 5),
        plain("blank after minus", "- 5", -5).typed("-5", -5, 3),
        plain("blank after plus", "+ 5", 5),
        plain("blank after the expression", "1+2 ", 3),
        plain("blank before the expression", " 1+2", 3).typed("1+2", 3, 4),
        plain("gives the value that is there", "5+5", 10),
        plain("gives zero", "5-5", 0),
        plain("above the maximum", "99999*99999", Highest),
        plain("far below the minimum", "-99999*99999", Lowest),
        plain("more decimals than kept", "1.1234567890+0.00000000001", 1.1234567890 + 0.00000000001),
        plain("an out-of-range operand", "4000000000-3999999999", 1).typed("400000000-3999999999", Lowest),
        plain("divided by zero", "1/0", Highest),
        plain("negative, divided by zero", "-1/0", Lowest),
        plain("zero by zero", "0/0", Lowest),
        plain("zero by zero in a sum", "7+0/0", Lowest),
        plain("infinity times zero", "5/0*0", Lowest),
        plain("one by infinity", "1/(1/0)", 0),
        plain("difference of infinities", "1/0-1/0", Lowest),
        plain("400 digits in a sum", QString(400, QLatin1Char('9')) + QStringLiteral("+0"), Highest)
            .onlyPasted(),
        plain("a sum of 2000", QStringLiteral("1+").repeated(2000) + QLatin1Char('1'), 2001).onlyPasted(),
        plain("1000 nested brackets", brackets + QLatin1Char('7') + QString(1000, QLatin1Char(')')), 7)
            .onlyPasted(),
        unfinished("plus alone", "+"),
        unfinished("asterisk", "*"),
        unfinished("slash", "/"),
        unfinished("opening bracket", "("),
        unfinished("closing bracket", ")"),
        unfinished("empty brackets", "()"),
        unfinished("bracket to come", "2*("),
        unfinished("operand to come", "2*(3+"),
        unfinished("closing bracket to come", "2*(3+4"),
        unfinished("one closing bracket too many", "2*3)"),
        unfinished("brackets the wrong way round", ")5("),
        unfinished("sum to come", "1+"),
        unfinished("minus behind", "5-"),
        unfinished("product without a first operand", "*5"),
        unfinished("quotient without a first operand", "/5"),
        unfinished("a pattern", "/5/"),
        unfinished("a pattern in a difference", "(/5/)-1"),
        unfinished("a pattern in a sum", "(/5/)+1"),
        unfinished("a pattern to match for hours", "(/(1*)*2/)(1111111111111111111111111111111111111111)")
            .onlyPasted(),
        unfinished("plus and point", "+."),
        unfinished("point as operand", "1+."),
        unfinished("point as first operand", ".+1"),
        unfinished("two points in an operand", "1+1.2.3"),
        unfinished("octal with a fraction", "1+010.5"),
        unfinished("two numbers", "1 2").typed("12", 12, 3),
        unfinished("two fractions", "1. .2").typed("1.2", 1.2, 4),
        unfinished("point and number", ". 5").typed(".5", 0.5, 3),
        unfinished("two numbers in a sum", "0+1 2"),
        unfinished("brackets side by side", "(1)(2)"),
        unfinished("number before brackets", "2(3)"),
        unfinished("brackets before number", "(2)3"),
        unfinished("point before brackets", "3.(5)"),
        unfinished("point behind brackets", "(3).5"),
        unfinished("ten brackets to close", "(((((((((("),
        unfinished("10 000 brackets", QString(10000, QLatin1Char('('))).onlyPasted(),
        unfinished("10 000 brackets around nothing closed",
                   QString(10000, QLatin1Char('(')) + QLatin1Char('7'))
            .onlyPasted(),
        unfinished("30 000 characters", QStringLiteral("1 ").repeated(15000)).onlyPasted(),
    };
}

inline QVector<TextRow> relativeOperators()
{
    return {
        relative("add", "+=5", RelOpAdd, 5, 15, "5"),
        relative("subtract", "-=2", RelOpSubtract, 2, 8, "2"),
        relative("multiply", "*=1.5", RelOpMultiply, 1.5, 15, "1 1 1.5"),
        relative("divide", "/=4", RelOpDivide, 4, 2.5, "4"),
        relative("add two digits", "+=15", RelOpAdd, 15, 25, "1 15"),
        relative("subtract a negative", "-=-5", RelOpSubtract, -5, 15, "_ -5"),
        relative("add a negative", "+=-5", RelOpAdd, -5, 5, "_ -5"),
        relative("add with a plus", "+=+5", RelOpAdd, 5, 15, "_ 5"),
        relative("multiply by a negative", "*=-1", RelOpMultiply, -1, -10, "_ -1"),
        relative("divide by a negative", "/=-4", RelOpDivide, -4, -2.5, "_ -4"),
        relative("divide by a fraction", "/=.5", RelOpDivide, 0.5, 20, "_ 0.5"),
        relative("endless quotient", "/=3", RelOpDivide, 3, 10.0 / 3.0, "3"),
        relative("point last", "+=5.", RelOpAdd, 5, 15, "5 5"),
        relative("add nothing", "+=0", RelOpAdd, 0, 10, "0"),
        relative("multiply by one", "*=1", RelOpMultiply, 1, 10, "1"),
        relative("multiply by zero", "*=0", RelOpMultiply, 0, 0, "0"),
        relative("divide by zero", "/=0", RelOpDivide, 0, 10, "0"),
        relative("divide by zero with decimals", "/=0.00", RelOpDivide, 0, 10, "0 0 0 0"),
        relative("divide by minus zero", "/=-0", RelOpDivide, 0, 10, "_ 0"),
        relative("divide by an expression that is zero", "/=1-1", RelOpDivide, 0, 10, "1 _ 0"),
        relative("divide by not a number", "/=0/0", RelOpDivide, Nothing, Lowest, "0 _ nan"),
        relative("divide by infinity", "/=1/0", RelOpDivide, Infinity, 0, "1 _ inf"),
        relative("add not a number", "+=0/0", RelOpAdd, Nothing, Lowest, "0 _ nan"),
        relative("add infinity", "+=1/0", RelOpAdd, Infinity, Highest, "1 _ inf"),
        relative("subtract infinity", "-=1/0", RelOpSubtract, Infinity, Lowest, "1 _ inf"),
        relative("multiply by infinity", "*=1/0", RelOpMultiply, Infinity, Highest, "1 _ inf"),
        relative("multiply by minus infinity", "*=-1/0", RelOpMultiply, -Infinity, Lowest, "_ -1 _ -inf"),
        relative("above the maximum", "+=3000000000", RelOpAdd, 3e9, Highest,
                 "3 30 300 3000 30000 300000 3000000 30000000 300000000 3000000000"),
        relative("below the minimum", "*=-300000000", RelOpMultiply, -3e8, Lowest,
                 "_ -3 -30 -300 -3000 -30000 -300000 -3000000 -30000000 -300000000"),
        relative("decimal, as a plain operand", "+=010", RelOpAdd, 10, 20, "0 1 10"),
        relative("octal, as an expression", "+=010+0", RelOpAdd, 8, 18, "0 1 10 _ 8"),
        relative("octal in brackets", "+=(010)", RelOpAdd, 8, 18, "_ _ _ _ 8"),
        relative("decimal with a fraction", "+=010.5", RelOpAdd, 10.5, 20.5, "0 1 10 10 10.5"),
        relative("sum", "+=2+3", RelOpAdd, 5, 15, "2 _ 5"),
        relative("product before sum", "+=2+3*4", RelOpAdd, 14, 24, "2 _ 5 _ 14"),
        relative("brackets", "*=2*(3+4)", RelOpMultiply, 14, 140, "2 _ _ _ _ _ 14"),
        relative("one number in brackets", "-=(1)", RelOpSubtract, 1, 9, "_ _ 1"),
        relative("minus before brackets", "-=-(5)", RelOpSubtract, -5, 15, "_ _ _ -5"),
        relative("quotient as divisor", "/=1/4", RelOpDivide, 0.25, 40, "1 _ 0.25"),
        relative("difference, not subtracted in turn", "-=5-2", RelOpSubtract, 3, 7, "5 _ 3"),
        relative("gives what is there", "+=5-5", RelOpAdd, 0, 10, "5 _ 0"),
        relative("blank after the operator", "+= 5", RelOpAdd, 5, 15, "_ 5"),
        relative("blanks after the operator", "+=   5", RelOpAdd, 5, 15, "_ _ _ 5"),
        relative("blank behind", "+=5 ", RelOpAdd, 5, 15, "5 5"),
        relative("blank before", " +=5", RelOpAdd, 5, 15, "").typed("+=5", 15, 4, "_ 5"),
        relative("blanks in the operand", "+=( 2 + 3 )", RelOpAdd, 5, 15, "_ _ _ _ _ _ _ _ 5"),
        relative("blank after an inner operator", "+=2+ 3", RelOpAdd, 5, 15, "2 _ _ 5"),
        relative("400 digits", QStringLiteral("+=") + QString(400, QLatin1Char('9')), RelOpAdd, Infinity,
                 Highest, "")
            .onlyPasted(),
        relative("1000 zeros and a digit",
                 QStringLiteral("*=") + QString(1000, QLatin1Char('0')) + QLatin1Char('2'), RelOpMultiply, 2,
                 20, "")
            .onlyPasted(),
        unfinished("add what?", "+="),
        unfinished("subtract what?", "-="),
        unfinished("multiply by what?", "*="),
        unfinished("divide by what?", "/="),
        unfinished("operand of blanks", "+=  "),
        unfinished("operand minus", "+=-"),
        unfinished("operand point", "+=."),
        unfinished("operand minus and point", "+=-."),
        unfinished("operand to be closed", "+=("),
        unfinished("operand of empty brackets", "+=()"),
        unfinished("sum to come in the operand", "+=2+").typed("+=2+", Nothing, 4, "2 _"),
        unfinished("two numbers as operand", "+=1 2").typed("+=1 2", Nothing, 5, "1 1 _"),
        unfinished("operand with two points", "+=1.2.3").typed("+=1.2.3", Nothing, 7, "1 1 1.2 _ _"),
        unfinished("operand of two brackets", "+=(1)(2)").typed("+=(1)(2)", Nothing, 8, "_ _ 1 _ _ _"),
        unfinished("operand begins with an asterisk", "+=*5"),
        unfinished("operand is a pattern", "+=/5/"),
        unfinished("a pattern, not a quotient", "/=5/").typed("/=5/", Nothing, 4, "5 _"),
        unfinished("blank between two brackets", "*=( )"),
        unfinished("10 000 brackets as operand", QStringLiteral("+=") + QString(10000, QLatin1Char('(')))
            .onlyPasted(),
    };
}

inline QVector<TextRow> refusals()
{
    return {
        refused("equal sign", "=").typedInVain(),
        refused("equal sign before", "=5").typed("5", 5),
        refused("equal sign behind", "5=").typed("5", 5),
        refused("equal sign inside", "5=5").typed("55", 55),
        refused("two equal signs", "==").typedInVain(),
        refused("two equal signs after the operator", "+==5").typed("+=5", 15, 3, "5"),
        refused("second equal sign behind", "+=5=").typed("+=5", 15, 3, "5"),
        refused("second operator behind", "+=5-=3").typed("+=5-3", 12, 5, "5 _ 2"),
        refused("operator before the equal sign, but not first", "5+=3").typed("5+3", 8),
        refused("operator in brackets", "(+=5)").typed("(+5)", 5),
        refused("blank in the operator", "+ =5").typed("+ 5", 5),
        refused("blank in the operator, after minus", "- =5").typed("-=5", 5, 4, "_ 5"),
        refused("equal sign before the operator", "=+5").typed("+5", 5),
        refused("operator, number, equal sign", "+5=").typed("+5", 5),
        refused("per cent as operator", "%=5").typed("5", 5),
        refused("caret as operator", "^=5").typed("5", 5),
        refused("two pluses", "1++2").typed("1+2", 3),
        refused("plus and minus", "1+-2", -1).typed("1+2", 3),
        refused("two minuses", "--").typed("-", Nothing),
        refused("three minuses", "---5").typed("-5", -5),
        refused("minus twice before a number", "--5").typed("-5", -5),
        refused("power", "2**3").typed("2*3", 6),
        refused("two slashes", "5//3", 5).typed("5/3", 5.0 / 3.0),
        refused("two slashes first", "//5").typed("/5", Nothing),
        refused("start of a comment", "1/*").typed("1/", Nothing),
        refused("comment", "/*5*/").typed("/5*", Nothing),
        refused("number after a comment", "/**/5", 5).typed("/5", Nothing),
        refused("operators at a blank", "1+ +2", 3).typed("1+ 2", 3),
        refused("operators at blanks", "1+  +2", 3).typed("1+  2", 3),
        refused("operators at a point", "1+.+2").typed("1+.2", 1.2),
        refused("minuses at a blank", "- -5", 5).typed("-5", -5, 3),
        refused("minuses at a point", "-.-5").typed("-.5", -0.5),
        refused("comment split by a blank", "1/ *2").typed("1/ 2", 0.5),
        refused("operators in the operand", "+=--5").typed("+=-5", 5, 4, "_ -5"),
        refused("operators at the end of the operand", "+=5+-5").reads(10, 0).typed("+=5+5", 20, 5, "5 _ 10"),
        refused("operators at a blank in the operand", "+=5+ -5")
            .reads(10, 0)
            .typed("+=5+ 5", 20, 6, "5 _ _ 10"),
        refused("two points side by side", "1..2").typed("1.2", 1.2),
        refused("only points", "...").typed(".", Nothing),
        refused("two points in the operand", "+=1..5").typed("+=1.5", 11.5, 5, "1 1 1.5"),
        refused("letter", "a").typedInVain(),
        refused("word", "abc").typedInVain(),
        refused("word after a number", "5abc").typed("5", 5),
        refused("word before a number", "abc5").typed("5", 5),
        refused("unit", "5mm").typed("5", 5),
        refused("exponent", "1e3", 1000).typed("13", 13),
        refused("capital exponent", "1E+3", 1000).typed("1+3", 4),
        refused("hexadecimal", "0x10", 16).typed("010", 8),
        refused("infinity in words", "Infinity", Highest).typedInVain(),
        refused("not a number in words", "NaN", Lowest).typedInVain(),
        refused("truth", "true").typedInVain(),
        refused("constant", "Math.PI", 3.141592653589793).typed(".", Nothing),
        refused("function", "Math.max(1)", 1).typed(".(1)", Nothing),
        refused("assignment", "a=5", 5).typed("5", 5),
        refused("comparison", "5<3").typed("53", 53),
        refused("remainder", "5%3", 2).typed("53", 53),
        refused("caret", "5^2", 7).typed("52", 52),
        refused("complement", "~5", -6).typed("5", 5),
        refused("factorial", "5!").typed("5", 5),
        refused("semicolon", "5;", 5).typed("5", 5),
        refused("two statements", "1+1;7", 7).typed("1+17", 18),
        refused("list", "[5]").typed("5", 5),
        refused("block", "{5}", 5).typed("5", 5),
        refused("text in quotes", "'5'").typed("5", 5),
        refused("backslash", "5\\").typed("5", 5),
        refused("underscore", "1_000").typed("1000", 1000),
        refused("apostrophe", "1'000").typed("1000", 1000),
        refused("currency", "$5").typed("5", 5),
        refused("typed comma is a point", "1,5", 5).typed("1.5", 1.5),
        refused("typed comma after a comma", "1,,5").typed("1.5", 1.5),
        refused("thousands and a decimal comma", "1.234,5", 5).typed("1.2345", 1.2345),
        refused("thousands and a decimal point", "1,234.5", 234.5).typed("1.2345", 1.2345),
        refused("comma in a sum", "1,5+1,5", 5).typed("1.5+1.5", 3),
        refused("comma alone", ",").typed(".", Nothing),
        refused("exponent in the operand", "+=1e3").reads(1010, 0).typed("+=13", 23, 4, "1 13"),
        refused("word behind the operand", "+=5abc").typed("+=5", 15, 3, "5"),
        refused("Arabic digit", "\u0665").typedInVain(),
        refused("full-width digit", "\uff15").typedInVain(),
        refused("Devanagari digit behind a digit", "1\u0967").typed("1", 1),
        refused("Arabic digit in a sum", "1+\u0665").typed("1+", Nothing),
        refused("superscript two", "5\u00b2").typed("5", 5),
        refused("one half", "\u00bd").typedInVain(),
        refused("minus sign", "\u22125").typed("5", 5),
        refused("multiplication sign", "2\u00d73").typed("23", 23),
        refused("full-width plus", "2\uff0b3").typed("23", 23),
        refused("two-unit character", "5\U0001f600").typed("5", 5),
    };
}

inline QVector<TextRow> pastes()
{
    return {
        plain("newline behind", "5\n", 5).becomes("5").onlyPasted(),
        plain("carriage return and newline", "5\r\n", 5).becomes("5").onlyPasted(),
        plain("tab before", "\t5", 5).becomes("5").onlyPasted(),
        plain("no-break space behind", "5\u00a0", 5).becomes("5").onlyPasted(),
        plain("newline in a sum", "1\n+2", 3).onlyPasted(),
        plain("tab in a sum", "1+\t2", 3).onlyPasted(),
        plain("no-break space in a sum", "1+\u00a02", 3).onlyPasted(),
        plain("line separator in a sum", "1+\u20282", 3).onlyPasted(),
        relative("no-break space after the operator", "+=\u00a05", RelOpAdd, 5, 15, "").onlyPasted(),
        relative("newline after the operand", "+=5\n", RelOpAdd, 5, 15, "").onlyPasted(),
        unfinished("only a newline", "\n").becomes("").onlyPasted(),
        unfinished("two lines", "1\n2").onlyPasted(),
        unfinished("thousands in fixed spaces", "1\u00a0234").onlyPasted(),
        unfinished("thousands in narrow fixed spaces", "1\u202f234").onlyPasted(),
        refused("newline in the operator", "+\n=5"),
        refused("operators on two lines", "1+\n+2", 3),
        refused("zero-width space", "1\u200b2"),
        refused("byte order mark", "5\ufeff", 5),
        refused("bell", "5\a"),
        refused("NUL", QLatin1Char('5') + QString(QChar(0))),
        refused("escape sequence", "\x1b[5m"),
        refused("delete", "5\x7f"),
        refused("lone surrogate", QLatin1Char('5') + QString(QChar(0xd800))),
        refused("30 000 points", QString(30000, QLatin1Char('.'))),
        refused("30 000 letters", QString(30000, QLatin1Char('a'))),
        refused("30 000 minuses", QString(30000, QLatin1Char('-'))),
        refused("a letter after 30 000 digits", QString(30000, QLatin1Char('1')) + QLatin1Char('x')),
    };
}

inline const QVector<TextRow> &all()
{
    static const QVector<TextRow> rows =
        numbers() + expressions() + relativeOperators() + refusals() + pastes();
    return rows;
}

} // namespace TextRows

#endif
