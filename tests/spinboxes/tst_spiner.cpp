// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The integer spin box: its settings, its value dragged, its menu, and the auto-repeat of its arrows.
#include "IntegerProbe.h"
#include "Pointer.h"
#include "TestCase.h"

#include <QTranslator>

#include <limits>

namespace {

constexpr int IntMin = std::numeric_limits<int>::min();
constexpr int IntMax = std::numeric_limits<int>::max();

} // namespace

class TestSpiner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void constructed();
    void properties();
    void everyStepIsAnnounced();
    void mouseButtons_data();
    void mouseButtons();
    void buttonsPressedInTurn();
    void dragStopsAtTheRange_data();
    void dragStopsAtTheRange();
    void menuStructure();
    void menuOffersOnlyPossibleSteps_data();
    void menuOffersOnlyPossibleSteps();
    void menuActions();
    void menuPosition_data();
    void menuPosition();
    void menuTextsAreTranslated();
    void autoRepeatSwitch();
};

void TestSpiner::constructed()
{
    const QLxSpiner box;
    QCOMPARE(box.focusPolicy(), Qt::WheelFocus);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QCOMPARE(box.minimum(), -2147483647);
    QCOMPARE(box.maximum(), 2147483647);
    QCOMPARE(box.value(), 0);
    QCOMPARE(box.singleStep(), 1);
    QVERIFY(!box.keyboardTracking());
    const QSpinBox plain;
    QCOMPARE(box.alignment(), plain.alignment());
    QCOMPARE(box.locale(), plain.locale());
    QWidget parent;
    QCOMPARE((new QLxSpiner(&parent))->parentWidget(), &parent);
}

void TestSpiner::properties()
{
    QLxSpiner box;
    for (const char *name : {"showStepHint", "autoStepsOnMousePress", "displaySceneUnit"}) {
        const bool initially = qstrcmp(name, "displaySceneUnit") != 0;
        QCOMPARE(box.property(name), QVariant(initially));
        QVERIFY(box.setProperty(name, !initially));
        QCOMPARE(box.property(name), QVariant(!initially));
    }
    QVERIFY(!box.showStepHint());
    QVERIFY(!box.autoStepsOnMousePress());
    QVERIFY(box.displaySceneUnit());
    QCOMPARE(box.sizeHint(), QSize(90, 16));
    box.setRange(0, 1);
    box.setPrefix(QString(100, QLatin1Char('m')));
    QCOMPARE(box.sizeHint(), QSize(90, 16));
}

void TestSpiner::everyStepIsAnnounced()
{
    QLxSpiner box;
    SignalLog log;
    watch(log, &box);
    for (const int step : {5, 5, 0, IntMax}) {
        box.setSingleStep(step);
        QCOMPARE(box.singleStep(), step);
    }
    box.setSingleStep(-3); // announced, but no spin box takes it
    QCOMPARE(box.singleStep(), IntMax);
    QVERIFY(QMetaObject::invokeMethod(&box, "setSingleStep", Q_ARG(int, 7)));
    QCOMPARE(box.singleStep(), 7);
    COMPARE_LOG(log, {"singleStepChanged(5)", "singleStepChanged(5)", "singleStepChanged(0)",
                      "singleStepChanged(2147483647)", "singleStepChanged(-3)", "singleStepChanged(7)"});
}

void TestSpiner::mouseButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<bool>("consumed");
    QTest::addColumn<int>("value");
    const auto row = [](const char *name, Qt::MouseButton button, bool readOnly, bool disabled, bool consumed,
                        int value) {
        QTest::newRow(name) << int(button) << readOnly << disabled << consumed << value;
    };
    row("left selects text", Qt::LeftButton, false, false, false, 10);
    row("right", Qt::RightButton, false, false, false, 10);
    row("middle drags", Qt::MiddleButton, false, false, true, 25);
    row("middle drags a read-only box", Qt::MiddleButton, true, false, true, 25);
    row("middle drags a disabled box", Qt::MiddleButton, false, true, true, 25);
    row("back", Qt::BackButton, false, false, true, 10);
    row("forward", Qt::ForwardButton, false, false, true, 10);
    row("task", Qt::TaskButton, false, false, true, 10);
}

void TestSpiner::mouseButtons()
{
    QFETCH(int, button);
    QFETCH(bool, readOnly);
    QFETCH(bool, disabled);
    QFETCH(bool, consumed);
    QFETCH(int, value);
    Window window;
    window.box->setSingleStep(5);
    window.box->setValue(10);
    window.box->setReadOnly(readOnly);
    window.box->setDisabled(disabled);
    SignalLog log;
    watch(log, window.box);
    Pointer pointer(window.box->edit());
    pointer.move({3, 3}); // without a button
    QVERIFY(!window.box->consumed);
    pointer.press({4, 3}, static_cast<Qt::MouseButton>(button));
    QCOMPARE(window.box->consumed, consumed);
    QVERIFY(!QApplication::overrideCursor());
    pointer.move({6, 9});
    QCOMPARE(window.box->consumed, consumed);
    pointer.move({7, 0});
    pointer.move({7, 5}); // not sideways
    QCOMPARE(window.box->value(), value);
    if (value == 25)
        COMPARE_LOG(log, {"value(20)", "value(25)"});
    pointer.release({9, 3}, static_cast<Qt::MouseButton>(button));
    QVERIFY(window.box->consumed);
    QCOMPARE(window.box->value(), value); // a release does not drag
    pointer.move({30, 3});
    QVERIFY(!window.box->consumed);
    QCOMPARE(window.box->value(), value);
    COMPARE_LOG(log, {});
}

void TestSpiner::buttonsPressedInTurn()
{
    Window window;
    Pointer pointer(window.box->edit());
    pointer.press({4, 3}, Qt::MiddleButton);
    pointer.press({10, 3}, Qt::BackButton); // goes on with the drag, from here
    pointer.move({12, 3});
    QCOMPARE(window.box->value(), 2);
    pointer.press({12, 3}, Qt::LeftButton); // turns it into a selection
    pointer.move({20, 3});
    QCOMPARE(window.box->value(), 2);
    pointer.press({20, 3}, Qt::MiddleButton);
    pointer.move({15, 3});
    QCOMPARE(window.box->value(), -3);
    pointer.release({15, 3}, Qt::LeftButton); // whichever button: the drag is over
    pointer.move({40, 3});
    QCOMPARE(window.box->value(), -3);
    pointer.press({40, 3}, Qt::BackButton);
    pointer.move({50, 3});
    QCOMPARE(window.box->value(), -3);
}

void TestSpiner::dragStopsAtTheRange_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("result");
    const int far = IntMax;
    QTest::newRow("at a maximum") << 0 << 20 << 10 << 5 << 0 << 3 << 20;
    QTest::newRow("at a minimum") << 0 << 20 << 10 << 5 << 0 << -3 << 0;
    QTest::newRow("no step") << 0 << 20 << 10 << 0 << 0 << 100 << 10;
    QTest::newRow("at the greatest int") << IntMin << IntMax << IntMax - 1 << 1 << 0 << 5 << IntMax;
    QTest::newRow("at the smallest int") << IntMin << IntMax << IntMin + 1 << 1 << 0 << -5 << IntMin;
    QTest::newRow("greatest step up") << IntMin << IntMax << -5 << IntMax << 0 << 1 << IntMax - 5;
    QTest::newRow("greatest step, wide") << IntMin << IntMax << 0 << IntMax << 0 << 4 << IntMax;
    QTest::newRow("greatest step, widely down") << IntMin << IntMax << 0 << IntMax << 0 << -4 << IntMin;
    QTest::newRow("greatest distance") << IntMin << IntMax << -far << 1 << -far << far << far;
    QTest::newRow("greatest distance back") << IntMin << IntMax << far << 1 << far << -far << -far;
    QTest::newRow("greatest of all") << IntMin << IntMax << IntMin << IntMax << -far << far << far;
}

void TestSpiner::dragStopsAtTheRange()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, step);
    QFETCH(int, from);
    QFETCH(int, to);
    Probe box;
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    box.setValue(value);
    Pointer pointer(box.edit());
    pointer.press({from, 3}, Qt::MiddleButton);
    pointer.move({to, 3});
    QTEST(box.value(), "result");
}

void TestSpiner::menuStructure()
{
    QLineEdit plain;
    const QScopedPointer<QMenu> standard(plain.createStandardContextMenu());
    QStringList expected;
    const QList<QAction *> standardActions = standard->actions();
    for (const QAction *standardAction : standardActions)
        expected.append(standardAction->text());
    expected += {QString(), QStringLiteral("&Step up"), QStringLiteral("Step &down"), QString(),
                 QStringLiteral("Step...")};
    Window window;
    QPointer<QMenu> first;
    for (int i = 0; i < 2; ++i) {
        openMenu(window.box, [&](const QMenu *menu) {
            QStringList texts;
            const QList<QAction *> allShown = menu->actions();
            for (const QAction *shown : allShown) {
                texts.append(shown->text());
                QCOMPARE(shown->isSeparator(), shown->text().isEmpty());
            }
            QCOMPARE(texts, expected);
            QVERIFY(standard->actions().size() > 5);
            QCOMPARE(menu->parent(), window.box->edit());
        });
        QVERIFY(window.box->findChildren<QMenu *>().isEmpty()); // deleted at once, and made anew
    }
}

void TestSpiner::menuOffersOnlyPossibleSteps_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("wrapping");
    QTest::addColumn<bool>("up");
    QTest::addColumn<bool>("down");
    QTest::newRow("in between") << 5 << false << false << true << true;
    QTest::newRow("at the maximum") << 10 << false << false << false << true;
    QTest::newRow("at the minimum") << 0 << false << false << true << false;
    QTest::newRow("wrapping") << 10 << false << true << true << true;
    QTest::newRow("read-only") << 5 << true << false << false << false;
}

void TestSpiner::menuOffersOnlyPossibleSteps()
{
    QFETCH(int, value);
    QFETCH(bool, readOnly);
    QFETCH(bool, wrapping);
    Window window;
    window.box->setRange(0, 10);
    window.box->setValue(value);
    window.box->setReadOnly(readOnly);
    window.box->setWrapping(wrapping);
    openMenu(window.box, [](const QMenu *menu) {
        QTEST(action(menu, "&Step up")->isEnabled(), "up");
        QTEST(action(menu, "Step &down")->isEnabled(), "down");
        QVERIFY(action(menu, "Step...")->isEnabled());
    });
    QCOMPARE(window.box->value(), value);
}

void TestSpiner::menuActions()
{
    Window window;
    window.box->setRange(0, 10);
    window.box->setSingleStep(5);
    window.box->clearFocus(); // which would finish editing when the menu opens
    SignalLog log;
    watch(log, window.box);
    chooseFromMenu(window.box, "&Step up");
    COMPARE_LOG(log, {"value(5)"});
    chooseFromMenu(window.box, "&Step up");
    COMPARE_LOG(log, {"value(10)"});
    chooseFromMenu(window.box, "&Step up"); // disabled
    COMPARE_LOG(log, {});
    chooseFromMenu(window.box, "Step &down");
    COMPARE_LOG(log, {"value(5)"});
    chooseFromMenu(window.box, "Select All");
    QCOMPARE(window.box->edit()->selectedText(), QStringLiteral("5"));
    openMenu(window.box, [](QMenu *menu) { QTest::keyClick(menu, Qt::Key_Escape); });
    openMenu(window.box, [](QMenu *menu) { QTest::keyClick(menu, Qt::Key_D); }); // the mnemonic
    COMPARE_LOG(log, {"value(0)"});
    QCOMPARE(window.box->prefix(), QString());
}

void TestSpiner::menuPosition_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QPoint>("expected"); // in the box, which is 90 x 16
    QTest::newRow("mouse") << int(QContextMenuEvent::Mouse) << QPoint(30, 7) << QPoint(30, 7);
    QTest::newRow("key, at the left edge")
        << int(QContextMenuEvent::Keyboard) << QPoint(0, 7) << QPoint(45, 8);
    QTest::newRow("key, further in") << int(QContextMenuEvent::Keyboard) << QPoint(30, 2) << QPoint(75, 8);
    QTest::newRow("other") << int(QContextMenuEvent::Other) << QPoint(30, 99) << QPoint(75, 8);
}

void TestSpiner::menuPosition()
{
    QFETCH(int, reason);
    QFETCH(QPoint, at);
    Window window;
    window.move(100, 50);
    window.box->setFixedSize(90, 16);
    QTest::qWait(0);
    openMenu(
        window.box, [&](const QMenu *menu) { QTEST(window.box->mapFromGlobal(menu->pos()), "expected"); },
        static_cast<QContextMenuEvent::Reason>(reason), at);
}

void TestSpiner::menuTextsAreTranslated()
{
    struct Translator : QTranslator
    {
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return qstrcmp(context, "QLxSpiner") == 0 ? QLatin1Char('_') + QLatin1String(text) : QString();
        }
    } translator;
    QVERIFY(QApplication::installTranslator(&translator));
    Window window;
    openMenu(window.box, [](QMenu *menu) {
        QVERIFY(action(menu, "_&Step up") && action(menu, "_Step &down"));
        choose(menu, "_Step...");
    });
    QCOMPARE(window.box->text(), QStringLiteral("_step 1"));
}

void TestSpiner::autoRepeatSwitch()
{
    Window window;
    QLxSpiner *const clock = window.other; // goes on stepping
    clock->setFocusPolicy(Qt::NoFocus);    // the loss of the focus would release the other's arrow
    window.box->setAutoStepsOnMousePress(false);
    for (Probe *box : {window.box.data(), window.other.data()})
        QTest::mousePress(box, Qt::LeftButton, {}, box->arrow(QStyle::SC_SpinBoxUp));
    QTRY_VERIFY(clock->value() >= 5);
    QCOMPARE(window.box->value(), 1);
    window.box->setAutoStepsOnMousePress(true); // with the button still held
    QTRY_VERIFY(window.box->value() >= 3);
    window.box->setAutoStepsOnMousePress(false);
    const int reached = window.box->value();
    const int now = clock->value();
    QTRY_VERIFY(clock->value() >= now + 3);
    QCOMPARE(window.box->value(), reached);
    for (Probe *box : {window.box.data(), window.other.data()})
        QTest::mouseRelease(box, Qt::LeftButton, {}, box->arrow(QStyle::SC_SpinBoxUp));
}

QLX_TEST_MAIN(TestSpiner)
#include "tst_spiner.moc"
