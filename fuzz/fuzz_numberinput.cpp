// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxDoubleSpiner.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegExp>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Any text in a double spin box: validated, evaluated, typed and committed. The first byte sets the box up,
// the others are the text in UTF-8.

namespace {

void require(bool holds, const char *what, const QString &text)
{
    if (holds)
        return;
    std::fprintf(stderr, "violated: %s, with \"%s\"\n", what, qUtf8Printable(text));
    std::abort();
}

/// A relative operator and its operand, as the box emits them.
struct Edit
{
    RelativeOperator op = RelOpNone;
    double operand = 0.0;
};

bool operator==(const Edit &a, const Edit &b)
{
    return a.op == b.op && (a.operand == b.operand || (std::isnan(a.operand) && std::isnan(b.operand)));
}

/// Keeps what it emits, and lets the fuzzer at the line edit.
class Box : public QLxDoubleSpiner
{
public:
    Box()
    {
        connect(this, &QLxDoubleSpiner::relativeOperatorChanged, this,
                [this](RelativeOperator op, double operand) {
                    pending = {op, operand};
                });
        connect(this, &QLxDoubleSpiner::relativeOperatorApplied, this,
                [this](RelativeOperator op, double operand) {
                    ++reports;
                    reported = {op, operand};
                });
    }
    QLineEdit *edit() const { return lineEdit(); }

    Edit pending;
    Edit reported;
    int reports = 0;
};

/// How the first byte sets the box up; a blank leaves all but the value as it is when new. The affixes are
/// those of real boxes and some of the characters that a number is made of.
struct Setup
{
    explicit Setup(unsigned char byte)
        : mode(static_cast<RelativeOperatorHandlingMode>(byte & 3U))
        , prefix(choose(byte >> 2U, {"", "Step: ", "-", "1"}))
        , suffix(choose(byte >> 4U, {"5", "=", "", " mm"}))
        , minimum((byte & 0x40U) != 0U ? 0.0 : -2147483647.0)
        , maximum((byte & 0x40U) != 0U ? 1.0 : 2147483647.0)
        , value((byte & 0x80U) != 0U ? 0.0 : 0.75)
    {
    }

    template <typename SpinBox>
    void apply(SpinBox *box) const
    {
        box->setPrefix(prefix);
        box->setSuffix(suffix);
        box->setRange(minimum, maximum);
        box->setValue(value);
    }

    RelativeOperatorHandlingMode mode; // two of the four are neither
    QString prefix;
    QString suffix;
    double minimum;
    double maximum;
    double value;

private:
    static QString choose(unsigned index, const char *const (&texts)[4])
    {
        return QString::fromLatin1(texts[index & 3U]);
    }
};

bool contains(const QString &text, const char *pattern)
{
    return QRegExp(QString::fromLatin1(pattern)).indexIn(text) >= 0;
}

bool matches(const QString &text, const char *pattern)
{
    return QRegExp(QString::fromLatin1(pattern)).exactMatch(text);
}

QString inside(const QString &text, const Setup &setup)
{
    const int length = text.size() - setup.prefix.size() - setup.suffix.size();
    return length > 0 ? text.mid(setup.prefix.size(), length).simplified() : QString();
}

/// What the box refuses, once more as regular expressions.
bool isForbidden(const QString &text)
{
    const int equalSigns = text.count(QLatin1Char('='));
    return !matches(text, "[0-9 .()=+*/-]*") || equalSigns > 1 || contains(text, "[+*/-]{2,}") ||
           contains(text, "\\.{2,}") || contains(text, "[+*/-][ .][+*/-]") ||
           (equalSigns == 1 && !contains(text, "^[+*/-]="));
}

/// By RelativeOperator.
constexpr const char *operatorTexts[] = {"", "\\+=", "-=", "\\*=", "/="};

bool isInRange(double value, const Setup &setup)
{
    return std::isfinite(value) && value >= setup.minimum && value <= setup.maximum;
}

/// Numbers are left to QDoubleSpinBox, which may correct the text. All other texts stay as they are, and are
/// Invalid only if forbidden.
QValidator::State checkValidation(const Box &box, const QDoubleSpinBox &plain, const Setup &setup,
                                  const QString &text)
{
    QString input = text;
    int pos = text.size();
    const QValidator::State state = box.validate(input, pos);
    QString expectedInput = text;
    int expectedPos = text.size();
    const QString number = inside(text, setup);
    if (!isForbidden(number) && matches(number, "-?[0-9.]*"))
        require(state == plain.validate(expectedInput, expectedPos), "as QDoubleSpinBox has it", text);
    else
        require((state == QValidator::Invalid) == isForbidden(number), "Invalid exactly when forbidden",
                text);
    require(input == expectedInput && pos == expectedPos, "validate() leaves the text alone", text);
    return state;
}

void type(Box &box, const QString &text)
{
    box.edit()->selectAll();
    box.edit()->insert(text.left(text.size() / 2));
    box.edit()->insert(text.mid(text.size() / 2)); // over nothing: the cursor is where the first half ends
    QMetaObject::invokeMethod(&box, "updateVisualInputFeedback"); // what 800 ms without an edit would do
}

void checkTyping(Box &box, const Setup &setup, const QString &text)
{
    box.pending = {}; // in the modes that report nothing, nobody takes an operator back
    type(box, text);
    const QString typed = box.edit()->text();
    QString input = typed;
    int pos = box.edit()->cursorPosition();
    require(box.validate(input, pos) != QValidator::Invalid, "nothing forbidden stays in the line edit",
            text);

    const Edit pending = setup.mode == EmitRelativeOperator ? box.pending : Edit();
    if (pending.op != RelOpNone)
        require(matches(inside(typed, setup).left(2), operatorTexts[pending.op]),
                "the operator typed is pending", text);

    const double before = box.value();
    box.reports = 0;
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&box, &key);
    QCoreApplication::sendPostedEvents();
    require(isInRange(box.value(), setup), "the committed value is finite and in the range", text);
    require(box.edit()->text() == setup.prefix + box.textFromValue(box.value()) + setup.suffix,
            "the committed value is shown", text);
    require(!box.property("inputAcceptable").isValid(), "no mark stays after the editing", text);
    require(box.reports == (setup.mode == EmitRelativeOperator ? 1 : 0), "Return is reported where wanted",
            text);
    if (box.reports == 0)
        return;
    if (pending.op == RelOpNone) {
        require(box.reported == Edit{RelOpAssign, box.value()}, "a plain number is reported as assigned",
                text);
    } else {
        require(box.reported == pending, "what is pending is reported", text);
        require(box.value() == before, "a reported operator leaves the value alone", text);
    }
}

Box *box = nullptr;
QDoubleSpinBox *plain = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static char name[] = "fuzz_numberinput";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    new QApplication(count, arguments); // these live as long as the process
    box = new Box;
    plain = new QDoubleSpinBox;
    plain->setLocale(box->locale());
    plain->setDecimals(box->decimals());
    plain->setKeyboardTracking(box->keyboardTracking());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const Setup setup(data[0]);
    const auto *const bytes = reinterpret_cast<const char *>(data);
    const QString text = QString::fromUtf8(bytes + 1, static_cast<int>(size - 1));
    setup.apply(plain);
    setup.apply(box);
    box->setRelativeOperatorHandlingMode(setup.mode);

    // What is forbidden could be a program that never ends; nothing evaluates it.
    if (checkValidation(*box, *plain, setup, text) != QValidator::Invalid)
        require(isInRange(box->valueFromText(text), setup), "valueFromText() is finite and in the range",
                text);
    checkTyping(*box, setup, text);
    return 0;
}
