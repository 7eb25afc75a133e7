// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Thousands of random edits, of every kind in every state, after each of which the whole dialog must hold and
// have said what an independent computation says.
#include "RandomEdits.h"
#include "TestCase.h"

#include <functional>
#include <memory>
#include <set>
#include <tuple>

namespace {

#if defined(__SANITIZE_ADDRESS__)
const int dialogCount = 3;
const int editsPerDialog = 480;
const int wantedOfEachTriple = 1;
const int shownEdits = 44;
#else
const int dialogCount = 42;
const int editsPerDialog = 480;
const int wantedOfEachTriple = 20;
const int shownEdits = 264;
#endif
const int wantedColors = 500;

/// Of a widget's state, what it was when the widget was painted last.
class PaintedState : public QObject
{
public:
    PaintedState(QWidget *widget, std::function<QString()> state)
        : m_state(std::move(state))
        , m_painted(m_state())
    {
        widget->installEventFilter(this);
    }
    bool isCurrent() const { return m_painted == m_state(); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted = m_state();
        return false;
    }

private:
    const std::function<QString()> m_state;
    QString m_painted;
};

QString stateOf(const QLxColorSlider *slider)
{
    return QStringLiteral("%1, %2, %3, %4")
        .arg(slider->getMode())
        .arg(exactText(slider->getValue()), exactText(slider->getMinColor()),
             exactText(slider->getMaxColor()));
}

QString stateOf(const QLxColorField *field)
{
    return QStringLiteral("%1, %2, %3")
        .arg(field->getMode())
        .arg(exactText(field->getColor()), exactText(field->getConstantChannel()));
}

/// Another edit or two of a wild color may overflow.
bool isTame(const QLxColor &c)
{
    return std::fabs(c.saturation) < 1e7F && std::fabs(c.value) < 1e7F;
}

QString stateText(const DialogOracle &oracle)
{
    return QStringLiteral("before, the linear color was %1, sRGB %2, the field mode %3")
        .arg(exactText(oracle.color), asText(oracle.useGamma),
             QLatin1String(ChannelNames[oracle.field.mode]));
}

QString failure(int number, int kind, const QString &done, const QString &before, const QStringList &found)
{
    return QStringLiteral("edit %1: %2 %3\n  %4\n  %5")
        .arg(number)
        .arg(kindText(kind), done, before, QStringList(found.mid(0, 12)).join(QLatin1String("\n  ")));
}

} // namespace

class TestDialogEdits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theComparisonNotices_data();
    void theComparisonNotices();
    void allControlsFollowEveryEdit();
    void shownDialogPaintsWhatItHolds();

private:
    // The custom colours stay, as nothing can free a cell: each dialog here starts from those that it finds.
    const bool m_useGammaBefore = QLx::colorUseGamma;
};

void TestDialogEdits::cleanup()
{
    QLx::colorUseGamma = m_useGammaBefore;
    TestCase::cleanup();
}

using Disturb = void (*)(ComparedDialog &);
Q_DECLARE_METATYPE(Disturb)

void TestDialogEdits::theComparisonNotices_data()
{
    QTest::addColumn<Disturb>("disturb");
    QTest::addColumn<QString>("notice");
    const auto row = [](const char *name, Disturb disturb, const char *notice) {
        QTest::newRow(name) << disturb << QString::fromLatin1(notice);
    };
    using C = ComparedDialog;
    row(
        "nothing", [](C &) {}, "");
    row(
        "a slider's position", [](C &c) { c.sliders[OnBlue]->setValue(0.25F); },
        "_blueSlider position is 0.25, should be 0.5");
    row(
        "a slider's end",
        [](C &c) {
            c.sliders[OnLstar]->setMaxColor({1, 1, 1});
        },
        "_lstarSlider maximum color");
    row(
        "the sign of a zero", [](C &c) { c.sliders[OnRed]->setMinColor(-0.0F, -0.0F, -0.0F); },
        "_redSlider minimum color is hsv 0 0 -0, should be hsv 0 0 0");
    row(
        "the field slider's mode", [](C &c) { c.dialog._colorFieldSlider->setMode(QLxColorSlider::Bstar); },
        "_colorFieldSlider mode is 8, should be 0");
    row(
        "a spin box", [](C &c) { c.spiners[OnAstar]->setValue(7); }, "_astarSpiner value is 7");
    row(
        "a label", [](C &c) { c.labels[OnLstar]->clear(); }, "_Lstar_label text is \"\"");
    row(
        "a mode button", [](C &c) { c.buttons[OnGreen]->setChecked(true); }, "_hueButton checked is false");
    row(
        "the field's color", [](C &c) { c.dialog._colorField->setValue(0.125F); }, "_colorField color");
    row(
        "the field's constant", [](C &c) { c.dialog._colorField->setHue(30); },
        "_colorField constant channel is 30, should be 0");
    row(
        "a swatch", [](C &c) { c.dialog._current_color->setColor({}); }, "_current_color color");
    row(
        "a swatch's look", [](C &c) { c.dialog._previous_color->setStyleSheet({}); },
        "_previous_color look is \"\"");
    row(
        "the check box", [](C &c) { c.dialog._useGamma->setChecked(false); }, "_useGamma checked is false");
    row(
        "a custom color",
        [](C &c) {
            c.dialog._custom_colors->addColor({1, 1, 1});
        },
        "_custom_colors 0");
    row(
        "an emission too many", [](C &c) { Q_EMIT c.dialog.colorChanged({}); },
        "emitted:\n    dialog: colorChanged(hsv 0 0 0)");
}

void TestDialogEdits::theComparisonNotices()
{
    QFETCH(Disturb, disturb);
    QFETCH(QString, notice);
    QLx::colorUseGamma = true;
    ComparedDialog compared({0, 0, Reference::srgbToLinear(0.5F)});
    QCOMPARE(compared.differences().join(QLatin1Char('\n')), QString());
    // Unheard by the dialog, but for its own signal.
    const bool itself = notice.startsWith(QLatin1String("emitted"));
    const auto children = compared.dialog.findChildren<QWidget *>();
    for (QWidget *const child : children)
        child->blockSignals(!itself);
    disturb(compared);
    const QStringList noticed = compared.differences();
    QCOMPARE(noticed.isEmpty(), notice.isEmpty());
    const auto names = [&](const QString &text) { return text.startsWith(notice); };
    QVERIFY2(notice.isEmpty() || std::any_of(noticed.begin(), noticed.end(), names),
             qPrintable(noticed.join(QLatin1Char('\n'))));
}

void TestDialogEdits::allControlsFollowEveryEdit()
{
    std::array<std::array<int, KindCount>, 18> counts = {}; // by sRGB switch and field mode
    std::set<std::tuple<float, float, float>> colors;
    Random random(20260);
    int number = 0;
    for (int opened = 0; opened < dialogCount; ++opened) {
        QLx::colorUseGamma = opened % 2 == 0;
        ComparedDialog compared(random.color());
        RandomEditor editor(compared, 7000U + static_cast<unsigned>(opened));
        const QStringList atFirst = compared.differences();
        QVERIFY2(atFirst.isEmpty(), qPrintable(failure(number, ChangeTab, QStringLiteral("(not yet)"),
                                                       stateText(compared.oracle), atFirst)));
        for (int i = 0; i < editsPerDialog; ++i, ++number) {
            const DialogOracle &oracle = compared.oracle;
            const QString before = stateText(oracle);
            auto &done = counts[size_t(oracle.field.mode + (oracle.useGamma ? 9 : 0))];
            const int kind = isTame(oracle.color) ? random.leastOf(done) : SetColor;
            ++done[size_t(kind)];
            colors.emplace(oracle.color.hue, oracle.color.saturation, oracle.color.value);
            const QString text = editor.edit(kind);
            const QStringList found = compared.differences();
            QVERIFY2(found.isEmpty(), qPrintable(failure(number, kind, text, before, found)));
        }
    }
    for (size_t state = 0; state < counts.size(); ++state) {
        for (int kind = 0; kind < KindCount; ++kind) {
            const QString triple = QStringLiteral("%1, sRGB %2, field mode %3: %4 times")
                                       .arg(kindText(kind), asText(state >= 9), asText(int(state % 9)))
                                       .arg(counts[state][size_t(kind)]);
            QVERIFY2(counts[state][size_t(kind)] >= wantedOfEachTriple, qPrintable(triple));
        }
    }
    QVERIFY2(colors.size() >= wantedColors, qPrintable(QString::number(colors.size())));
}

void TestDialogEdits::shownDialogPaintsWhatItHolds()
{
    Random random(5);
    ComparedDialog compared({30, 0.5F, 0.5F});
    QLxColorDialog &dialog = compared.dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    RandomEditor editor(compared, 6);

    // Painted at once, and painted when the event loop comes to it.
    std::vector<std::unique_ptr<PaintedState>> labels;
    std::vector<std::unique_ptr<PaintedState>> sliders;
    for (size_t i = 0; i < 9; ++i) {
        const QLabel *const label = compared.labels[i];
        const QLxColorSlider *const slider = compared.sliders[i];
        labels.push_back(std::make_unique<PaintedState>(compared.labels[i], [=] { return label->text(); }));
        sliders.push_back(
            std::make_unique<PaintedState>(compared.sliders[i], [=] { return stateOf(slider); }));
    }
    PaintedState field(dialog._colorField, [&] { return stateOf(dialog._colorField); });
    PaintedState fieldSlider(dialog._colorFieldSlider, [&] { return stateOf(dialog._colorFieldSlider); });

    std::array<int, KindCount> done = {};
    for (int number = 0; number < shownEdits; ++number) {
        const QString before = stateText(compared.oracle);
        const int refreshes = compared.oracle.refreshes;
        const int kind = random.leastOf(done);
        ++done[size_t(kind)];
        QCoreApplication::processEvents();
        const QString text = editor.edit(kind);
        QStringList found = compared.differences();
        const bool refreshed = compared.oracle.refreshes > refreshes;
        for (size_t i = 0; i < 9; ++i) {
            if (refreshed && !labels[i]->isCurrent())
                found << compared.labels[i]->objectName() + QStringLiteral(" is not repainted at once");
            if (!sliders[i]->isCurrent())
                found << compared.sliders[i]->objectName() + QStringLiteral(" is not repainted at once");
        }
        QCoreApplication::processEvents();
        if (!field.isCurrent())
            found << QStringLiteral("_colorField is not repainted");
        if (!fieldSlider.isCurrent())
            found << QStringLiteral("_colorFieldSlider is not repainted");
        QVERIFY2(found.isEmpty(), qPrintable(failure(number, kind, text, before, found)));
    }
    QVERIFY(dialog.isVisible());
}

QLX_TEST_MAIN(TestDialogEdits)
#include "tst_dialogedits.moc"
