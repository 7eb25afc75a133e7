// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The scene unit that both kinds of spin box show, and the broadcast that tells them of another one.
#include "PaintCounter.h"
#include "QLxDoubleSpiner.h"
#include "QLxSceneUnit.h"
#include "QLxSpiner.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <set>
#include <vector>

namespace {

#if defined(__SANITIZE_ADDRESS__)
const std::size_t boxCount = 1000;
#else
const std::size_t boxCount = 10000;
#endif

/// A box that tells when its text is written, as for another suffix.
template <typename Box>
class Member : public Box
{
    using Number = decltype(std::declval<Box>().value());

public:
    explicit Member(QWidget *parent = nullptr)
        : Box(parent)
    {
    }
    QString textFromValue(Number value) const override
    {
        if (written)
            written();
        return Box::textFromValue(value);
    }
    std::function<void()> written;
};

/// Stands in for a translation of all texts in one context, by what it is told to do.
class Translator : public QTranslator
{
public:
    explicit Translator(std::function<QString(const QString &text)> translated)
        : m_translated(std::move(translated))
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "SceneUnit") == 0 ? m_translated(QString::fromLatin1(text)) : QString();
    }

private:
    std::function<QString(const QString &text)> m_translated;
};

/// Both kinds of box, to write each test once.
void kinds()
{
    QTest::addColumn<bool>("integer");
    QTest::newRow("double") << false;
    QTest::newRow("integer") << true;
}

} // namespace

#define FOR_KIND(test)                                                                                       \
    do {                                                                                                     \
        QFETCH(bool, integer);                                                                               \
        integer ? test<QLxSpiner>() : test<QLxDoubleSpiner>();                                               \
    } while (false)

class TestSceneUnit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void initially();
    void suffixes_data();
    void suffixes();
    void switching_data() { kinds(); }
    void switching() { FOR_KIND(checkSwitching); }
    void refreshing_data() { kinds(); }
    void refreshing() { FOR_KIND(checkRefreshing); }
    void writesOnlyAnotherSuffix_data() { kinds(); }
    void writesOnlyAnotherSuffix() { FOR_KIND(checkWritesOnlyAnotherSuffix); }
    void translated_data() { kinds(); }
    void translated() { FOR_KIND(checkTranslated); }
    void separateRegistries();
    void registry_data() { kinds(); }
    void registry() { FOR_KIND(checkRegistry); }
    void interferenceInAVisit_data();
    void interferenceInAVisit() { FOR_KIND(checkInterference); }
    void interferenceByATranslator_data() { kinds(); }
    void interferenceByATranslator() { FOR_KIND(checkTranslatorThatDeletes); }

private:
    template <typename Box>
    void checkSwitching();
    template <typename Box>
    void checkRefreshing();
    template <typename Box>
    void checkWritesOnlyAnotherSuffix();
    template <typename Box>
    void checkTranslated();
    template <typename Box>
    void checkRegistry();
    template <typename Box>
    void checkInterference();
    template <typename Box>
    void checkTranslatorThatDeletes();
};

void TestSceneUnit::cleanup()
{
    QLx::setSceneUnit(1.0F);
    TestCase::cleanup();
}

void TestSceneUnit::initially()
{
    QCOMPARE(QLx::sceneUnit(), 1.0F);
}

void TestSceneUnit::suffixes_data()
{
    QTest::addColumn<float>("unit");
    QTest::addColumn<QString>("suffix");
    using Limits = std::numeric_limits<float>;
    QTest::newRow("1") << 1.0F << QStringLiteral(" mm");
    QTest::newRow("10") << 10.0F << QStringLiteral(" cm");
    QTest::newRow("1000") << 1000.0F << QStringLiteral(" m");
    for (const float known : {1.0F, 10.0F, 1000.0F}) {
        QTest::addRow("just above %g", static_cast<double>(known))
            << std::nextafter(known, Limits::infinity()) << QString();
        QTest::addRow("just below %g", static_cast<double>(known))
            << std::nextafter(known, 0.0F) << QString();
        QTest::addRow("-%g", static_cast<double>(known)) << -known << QString();
    }
    QTest::newRow("0") << 0.0F << QString();
    QTest::newRow("100") << 100.0F << QString();
    QTest::newRow("smallest") << Limits::denorm_min() << QString();
    QTest::newRow("greatest") << Limits::max() << QString();
    QTest::newRow("infinite") << Limits::infinity() << QString();
    QTest::newRow("negatively infinite") << -Limits::infinity() << QString();
    QTest::newRow("NaN") << Limits::quiet_NaN() << QString();
}

void TestSceneUnit::suffixes()
{
    QFETCH(float, unit);
    QFETCH(QString, suffix);
    QLxDoubleSpiner doubles;
    QLxSpiner integers;
    doubles.setDisplaySceneUnit(true);
    integers.setDisplaySceneUnit(true);
    QLx::setSceneUnit(unit);
    QVERIFY(QLx::sceneUnit() == unit || (std::isnan(unit) && std::isnan(QLx::sceneUnit())));
    QCOMPARE(doubles.suffix(), QStringLiteral(" mm")); // nobody is told yet
    QCOMPARE(integers.suffix(), QStringLiteral(" mm"));
    QLxDoubleSpiner::updateInstancesWithSceneUnit();
    QLxSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(doubles.text(), QStringLiteral("0.00") + suffix);
    QCOMPARE(integers.text(), QStringLiteral("0") + suffix);
    QLxDoubleSpiner laterDoubles;
    QLxSpiner laterIntegers;
    laterDoubles.setDisplaySceneUnit(true);
    laterIntegers.setDisplaySceneUnit(true);
    QCOMPARE(laterDoubles.suffix(), suffix);
    QCOMPARE(laterIntegers.suffix(), suffix);
}

template <typename Box>
void TestSceneUnit::checkSwitching()
{
    Box box;
    SignalLog log;
    log.watch(&box, &Box::singleStepChanged, "singleStepChanged");
    log.watch(&box, QOverload<decltype(box.value())>::of(&Box::valueChanged), "value");
    QVERIFY(!box.displaySceneUnit());
    const QString host = QStringLiteral(" kg");
    box.setSuffix(host);
    box.setDisplaySceneUnit(true);
    QVERIFY(box.displaySceneUnit());
    QCOMPARE(box.suffix(), QStringLiteral(" mm"));
    box.setSuffix(host);
    box.setDisplaySceneUnit(true); // once more
    QCOMPARE(box.suffix(), QStringLiteral(" mm"));
    box.setDisplaySceneUnit(false);
    QVERIFY(!box.displaySceneUnit());
    QCOMPARE(box.suffix(), QString());
    box.setSuffix(host);
    box.setDisplaySceneUnit(false); // clears any suffix
    QCOMPARE(box.suffix(), QString());
    QVERIFY(box.setProperty("displaySceneUnit", true));
    QCOMPARE(box.suffix(), QStringLiteral(" mm"));
    COMPARE_LOG(log, {});
}

template <typename Box>
void TestSceneUnit::checkRefreshing()
{
    Box shows;
    Box other;
    Box off;
    Box wasOn;
    for (Box *box : {&shows, &other, &wasOn})
        box->setDisplaySceneUnit(true);
    wasOn.setDisplaySceneUnit(false);
    const QString host = QStringLiteral(" kg");
    for (Box *box : {&off, &wasOn})
        box->setSuffix(host);
    QLx::setSceneUnit(10.0F);
    shows.updateSceneUnit();
    QCOMPARE(shows.suffix(), QStringLiteral(" cm"));
    QCOMPARE(other.suffix(), QStringLiteral(" mm"));
    Box::updateInstancesWithSceneUnit();
    QCOMPARE(other.suffix(), QStringLiteral(" cm"));
    QCOMPARE(off.suffix(), host); // not visited
    QCOMPARE(wasOn.suffix(), host);
    off.updateSceneUnit(); // asked for, and it shows no unit
    QCOMPARE(off.suffix(), QString());
    shows.setSuffix(host);
    Box::updateInstancesWithSceneUnit();
    QCOMPARE(shows.suffix(), QStringLiteral(" cm"));
}

template <typename Box>
void TestSceneUnit::checkWritesOnlyAnotherSuffix()
{
    Member<Box> box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setDisplaySceneUnit(true);
    PaintCounter paints(&box);
    paints.takeScheduled();
    int written = 0;
    box.written = [&] { ++written; };
    box.setDisplaySceneUnit(true);
    QCOMPARE(paints.takeScheduled(), 0);
    box.updateSceneUnit();
    QVERIFY(paints.takeScheduled() > 0); // painted, but not written
    QCOMPARE(written, 0);
    QLx::setSceneUnit(1000.0F);
    box.updateSceneUnit();
    QVERIFY(written > 0);
}

template <typename Box>
void TestSceneUnit::checkTranslated()
{
    Box box;
    box.setDisplaySceneUnit(true);
    QStringList asked;
    auto translator = std::make_unique<Translator>([&](const QString &text) {
        asked.append(text);
        return QLatin1Char('_') + text;
    });
    for (const float unit : {1.0F, 10.0F, 1000.0F, 5.0F}) {
        QLx::setSceneUnit(unit);
        Box::updateInstancesWithSceneUnit();
        const QString translation = asked.isEmpty() ? QString() : QLatin1Char('_') + asked.constLast();
        QCOMPARE(box.suffix(), unit == 5.0F ? QString() : translation);
    }
    QCOMPARE(asked, (QStringList{QStringLiteral(" mm"), QStringLiteral(" cm"), QStringLiteral(" m")}));
    translator.reset();
    QLx::setSceneUnit(10.0F);
    Box::updateInstancesWithSceneUnit();
    QCOMPARE(box.suffix(), QStringLiteral(" cm"));
}

void TestSceneUnit::separateRegistries()
{
    QLxDoubleSpiner doubles;
    QLxSpiner integers;
    doubles.setDisplaySceneUnit(true);
    integers.setDisplaySceneUnit(true);
    QLx::setSceneUnit(10.0F);
    QLxSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(doubles.suffix(), QStringLiteral(" mm"));
    QCOMPARE(integers.suffix(), QStringLiteral(" cm"));
    QLx::setSceneUnit(1000.0F);
    QLxDoubleSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(doubles.suffix(), QStringLiteral(" m"));
    QCOMPARE(integers.suffix(), QStringLiteral(" cm"));
}

/// Boxes come, go, and are switched, in any order; then the broadcast visits those that are there and
/// show the unit, once each and in ascending order, and no other.
template <typename Box>
void TestSceneUnit::checkRegistry()
{
    std::mt19937 random(20260419);
    const auto below = [&random](std::size_t end) { return random() % end; };
    std::vector<std::unique_ptr<Member<Box>>> boxes;
    std::vector<const Box *> visited;
    std::size_t made = 0;
    while (made < boxCount || boxes.size() > 300) {
        if (made < boxCount && (boxes.size() < 200 || below(2) == 0)) {
            boxes.push_back(std::make_unique<Member<Box>>());
            boxes.back()->setDisplaySceneUnit(below(4) != 0);
            ++made;
        } else {
            std::swap(boxes[below(boxes.size())], boxes.back());
            boxes.pop_back();
        }
        if (below(3) == 0 && !boxes.empty()) {
            Box *const box = boxes[below(boxes.size())].get();
            box->setDisplaySceneUnit(!box->displaySceneUnit());
        }
    }
    std::set<const Box *> members;
    for (const auto &box : boxes) {
        if (box->displaySceneUnit())
            members.insert(box.get());
        box->written = [&visited, b = box.get()] {
            if (visited.empty() || visited.back() != b)
                visited.push_back(b);
        };
    }
    QVERIFY(members.size() > 50 && members.size() < boxes.size());
    QLx::setSceneUnit(10.0F);
    Box::updateInstancesWithSceneUnit();
    QVERIFY(std::equal(visited.begin(), visited.end(), members.begin(), members.end()));
    visited.clear();
    boxes.clear();
    QLx::setSceneUnit(1000.0F);
    Box::updateInstancesWithSceneUnit();
    QVERIFY(visited.empty());
}

namespace {

/// Five boxes in ascending order, which show the unit, and the one in the middle does something when it is
/// visited.
template <typename Box>
struct Five
{
    Five()
    {
        std::vector<Member<Box> *> made(5);
        for (Member<Box> *&box : made)
            box = new Member<Box>(&parent);
        std::sort(made.begin(), made.end(), std::less<>());
        std::copy(made.begin(), made.end(), std::begin(boxes));
        for (const QPointer<Member<Box>> &box : boxes)
            box->setDisplaySceneUnit(true);
    }
    /// The suffixes, or "-" for a box that is gone.
    QString suffixes() const
    {
        QStringList texts;
        for (const QPointer<Member<Box>> &box : boxes)
            texts.append(box ? box->suffix().trimmed() : QStringLiteral("-"));
        return texts.join(QLatin1Char(' '));
    }
    QWidget parent;
    QPointer<Member<Box>> boxes[5];
};

enum Deed {
    DeletesItselfLater,
    SwitchesItselfOff,
    SwitchesItselfOffAndOn,
    DeletesTheNext,
    DeletesTheOneBefore,
    DeletesAllOthers,
    SwitchesTheNextOff,
    SwitchesAllOthersOff,
    MakesAnother,
    BroadcastsAgain,
    SetsAnotherUnit,
};

template <typename Box>
void act(Five<Box> &five, Deed deed)
{
    QPointer<Member<Box>> *const boxes = five.boxes;
    const QVector<int> others = {0, 1, 3, 4};
    switch (deed) {
    case DeletesItselfLater:
        return boxes[2]->deleteLater();
    case SwitchesItselfOff:
        return boxes[2]->setDisplaySceneUnit(false);
    case SwitchesItselfOffAndOn:
        boxes[2]->setDisplaySceneUnit(false);
        return boxes[2]->setDisplaySceneUnit(true);
    case DeletesTheNext:
        delete boxes[3];
        return;
    case DeletesTheOneBefore:
        delete boxes[1];
        return;
    case DeletesAllOthers:
        for (const int other : others)
            delete boxes[other];
        return;
    case SwitchesTheNextOff:
        return boxes[3]->setDisplaySceneUnit(false);
    case SwitchesAllOthersOff:
        for (const int other : others)
            boxes[other]->setDisplaySceneUnit(false);
        return;
    case MakesAnother:
        return (new Box(&five.parent))->setDisplaySceneUnit(true);
    case BroadcastsAgain:
        return Box::updateInstancesWithSceneUnit();
    case SetsAnotherUnit:
        QLx::setSceneUnit(1000.0F);
        return Box::updateInstancesWithSceneUnit();
    }
}

} // namespace

void TestSceneUnit::interferenceInAVisit_data()
{
    QTest::addColumn<bool>("integer");
    QTest::addColumn<int>("deed");
    QTest::addColumn<QString>("suffixes");
    for (const bool integer : {false, true}) {
        const auto row = [integer](const char *name, Deed deed, const char *suffixes) {
            QTest::addRow("%s %s", integer ? "integer" : "double", name)
                << integer << int(deed) << QString::fromLatin1(suffixes);
        };
        row("deletes itself later", DeletesItselfLater, "cm cm - cm cm");
        row("switches itself off", SwitchesItselfOff, "cm cm  cm cm");
        row("switches itself off and on", SwitchesItselfOffAndOn, "cm cm cm cm cm");
        row("deletes the next", DeletesTheNext, "cm cm cm - cm");
        row("deletes the one before", DeletesTheOneBefore, "cm - cm cm cm");
        row("deletes all others", DeletesAllOthers, "- - cm - -");
        row("switches the next off", SwitchesTheNextOff, "cm cm cm  cm");
        row("switches all others off", SwitchesAllOthersOff, "  cm  ");
        row("makes another", MakesAnother, "cm cm cm cm cm");
        row("broadcasts again", BroadcastsAgain, "cm cm cm cm cm");
        row("sets another unit", SetsAnotherUnit, "m m m m m");
    }
}

template <typename Box>
void TestSceneUnit::checkInterference()
{
    QFETCH(int, deed);
    QFETCH(QString, suffixes);
    Five<Box> five;
    bool visited = false;
    five.boxes[2]->written = [&] {
        if (!std::exchange(visited, true))
            act(five, static_cast<Deed>(deed));
    };
    QLx::setSceneUnit(10.0F);
    Box::updateInstancesWithSceneUnit();
    QVERIFY(visited);
    if (deed == DeletesItselfLater)
        QTRY_VERIFY(!five.boxes[2]);
    QCOMPARE(five.suffixes(), suffixes);
    // The next broadcast reaches all that are left and on.
    QLx::setSceneUnit(1.0F);
    Box::updateInstancesWithSceneUnit();
    QCOMPARE(five.suffixes(),
             suffixes.replace(QLatin1String(deed == SetsAnotherUnit ? "m" : "cm"), QLatin1String("mm")));
}

template <typename Box>
void TestSceneUnit::checkTranslatorThatDeletes()
{
    Five<Box> five;
    int asked = 0;
    const Translator translator([&](const QString &text) {
        if (++asked == 2) { // on behalf of the second box
            delete five.boxes[0];
            delete five.boxes[2];
            five.boxes[3]->setDisplaySceneUnit(false);
        }
        return text;
    });
    QLx::setSceneUnit(10.0F);
    Box::updateInstancesWithSceneUnit();
    QCOMPARE(five.suffixes(), QStringLiteral("- cm -  cm"));
    QCOMPARE(asked, 3);
}

QLX_TEST_MAIN(TestSceneUnit)
#include "tst_sceneunit.moc"
