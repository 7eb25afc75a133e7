// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Colours dragged from the button and dropped on it, and receivers that delete it.
#include "ButtonProbe.h"
#include "QLxColorSpaces.h"
#include "TestCase.h"

#include <QDrag>

namespace {

/// The ways in which a button comes to emit, by name.
struct Emitting
{
    const char *name;
    const char *signal;
    void (*act)(QLxColorButton *button);
};

const Emitting emittings[] = {
    {"click by mouse", SIGNAL(colorButtonClicked()), [](QLxColorButton *b) { click(*b); }},
    {"click by key", SIGNAL(colorButtonClicked()),
     [](QLxColorButton *b) { QTest::keyClick(b, Qt::Key_Space); }},
    {"click by program", SIGNAL(colorButtonClicked()), [](QLxColorButton *b) { b->click(); }},
    {"base class's clicked", SIGNAL(clicked(bool)), [](QLxColorButton *b) { click(*b); }},
    {"editing", SIGNAL(temporaryColorChosen(QLxColor)),
     [](QLxColorButton *b) {
         click(*b);
         FakeDialogs::current()->edit({1, 1, 1});
     }},
    {"accept", SIGNAL(finalColorChosen(QLxColor)),
     [](QLxColorButton *b) {
         click(*b);
         FakeDialogs::current()->accept();
     }},
    {"accepted", SIGNAL(userAccepted()),
     [](QLxColorButton *b) {
         click(*b);
         FakeDialogs::current()->accept();
     }},
    {"reject", SIGNAL(finalColorChosen(QLxColor)),
     [](QLxColorButton *b) {
         click(*b);
         FakeDialogs::current()->reject();
     }},
    {"rejected", SIGNAL(userSkipped()),
     [](QLxColorButton *b) {
         click(*b);
         FakeDialogs::current()->reject();
     }},
    {"drop", SIGNAL(finalColorChosen(QLxColor)),
     [](QLxColorButton *b) { sendDrop(b, colorData(Qt::red).get()); }},
};

void emittingRows()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Emitting &emitting : emittings)
        QTest::newRow(emitting.name) << index++;
}

/// Why a widget got and lost the focus.
class FocusReasons : public QObject
{
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            seen.append(static_cast<QFocusEvent *>(event)->reason());
        return false;
    }
    QVector<Qt::FocusReason> seen;
};

/// Deletes an object when told to.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(QObject *victim)
        : m_victim(victim)
    {
    }

public Q_SLOTS:
    void strike() { delete m_victim.data(); }

private:
    QPointer<QObject> m_victim;
};

} // namespace

class TestColorButtonDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dragCarriesTheColor();
    void shortMoveIsNoDrag();
    void dropTakesTheColor();
    void dropOfOtherDataChangesNothing();
    void focusFollowsTheDrag();
    void deletedInsideAnySignal_data();
    void deletedInsideAnySignal();
    void moduleDeletedInsideAnySignal_data();
    void moduleDeletedInsideAnySignal();
};

void TestColorButtonDrag::dragCarriesTheColor()
{
    QLxColorButton button;
    button.setColor({120, 0.5F, 1.5F});
    SignalLog log;
    watch(log, &button);
    Pointer pointer(&button);
    pointer.press({3, 3});
    pointer.move({3 + QApplication::startDragDistance() + 1, 3});
    auto *const drag = button.findChild<QDrag *>();
    QVERIFY(drag);
    QVERIFY(drag->mimeData()->hasColor());
    const auto color = drag->mimeData()->colorData().value<QColor>();
    QCOMPARE(color, QColor::fromRgbF(0.75, 1.0, 0.75)); // linear and clamped
    QCOMPARE(color.alpha(), 255);
    QCOMPARE(drag->supportedActions(), Qt::CopyAction);
    QCOMPARE(drag->pixmap().size(), QSize(30, 20));
    QCOMPARE(drag->pixmap().toImage().pixelColor(15, 10), QLx::toQColor(button.getColor()));
    pointer.release({50, 3});
    COMPARE_LOG(log, {}); // no click
}

void TestColorButtonDrag::shortMoveIsNoDrag()
{
    QLxColorButton button;
    button.setShowColorDialog(false);
    SignalLog log;
    watch(log, &button);
    Pointer pointer(&button);
    pointer.move({300, 3}); // no press before
    pointer.press({3, 3});
    const int distance = QApplication::startDragDistance();
    pointer.move({3 + distance, 3}); // not farther than the distance
    pointer.move({3, 3 - distance});
    pointer.move({3 + distance / 2, 3 + distance - distance / 2});
    QVERIFY(!button.findChild<QDrag *>());
    pointer.release({3, 3});
    COMPARE_LOG(log, {"colorButtonClicked()"});
}

void TestColorButtonDrag::dropTakesTheColor()
{
    QLxColorButton button;
    SignalLog log;
    watch(log, &button);
    QObject::connect(&button, &QLxColorButton::finalColorChosen, log.context(),
                     [&](QLxColor color) { QVERIFY(button.getColor() == color); });
    const auto data = colorData(QColor::fromRgbF(1.0, 0.5, 0.0));
    QVERIFY(sendMove(&button, data.get()));
    QVERIFY(sendDrop(&button, data.get()));
    const QColor dropped = data->colorData().value<QColor>();
    const QLxColor expected = QLx::rgbToHsv(1.0F, static_cast<float>(dropped.greenF()), 0.0F);
    COMPARE_LOG(log, {LogLine(QStringLiteral("finalColorChosen(%1)").arg(asText(expected)))});
    QVERIFY(button.getColor() == expected);
    QCOMPARE(button.styleSheet(), look(254, 187, 0));

    // From one button to another, at the precision of the drag data.
    button.setColor({210, 0.3F, 0.6F});
    const auto carried = colorData(QLx::toQColorF(button.getColor()));
    QLxColorButton other;
    QVERIFY(sendDrop(&other, carried.get()));
    QVERIFY(std::abs(other.getColor().hue - 210.0F) < 0.05F);
    QVERIFY(std::abs(other.getColor().saturation - 0.3F) < 1e-4F);
    QVERIFY(std::abs(other.getColor().value - 0.6F) < 1e-4F);
}

void TestColorButtonDrag::dropOfOtherDataChangesNothing()
{
    QLxColorButton button;
    SignalLog log;
    watch(log, &button);
    QMimeData text;
    text.setText(QStringLiteral("#ff0000"));
    QMimeData garbage; // says that it is a colour, and is none
    garbage.setData(QStringLiteral("application/x-color"), "garbage");
    QMimeData empty;
    empty.setData(QStringLiteral("application/x-color"), {});
    QMimeData invalid;
    invalid.setColorData(QColor());
    const QMimeData *const candidates[] = {&text, &garbage, &empty, &invalid, nullptr};
    for (const QMimeData *data : candidates) {
        QVERIFY(!sendEnter(&button, data));
        QVERIFY(!sendMove(&button, data));
        QVERIFY(!sendDrop(&button, data));
    }
    COMPARE_LOG(log, {});
    QVERIFY(button.getColor() == (QLxColor{0, 0, 0.8F}));
}

void TestColorButtonDrag::focusFollowsTheDrag()
{
    QWidget window;
    window.setFocusPolicy(Qt::StrongFocus);
    QLxColorButton button(&window);
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    FocusReasons reasons;
    button.installEventFilter(&reasons);
    window.setFocus();
    QMimeData text;
    text.setText(QStringLiteral("no colour"));
    QVERIFY(!sendEnter(&button, &text)); // takes the focus whatever is dragged
    QVERIFY(button.hasFocus());
    window.setFocus();
    QVERIFY(sendEnter(&button, colorData(Qt::red).get()));
    QVERIFY(button.hasFocus());
    QDragLeaveEvent leave;
    QApplication::sendEvent(&button, &leave);
    QVERIFY(!button.hasFocus());
    QVERIFY(window.hasFocus());
    QVERIFY(sendEnter(&button, colorData(Qt::red).get()));
    other.setFocus();
    QApplication::sendEvent(&button, &leave); // without the focus, it has none to give away
    QVERIFY(other.hasFocus());
    QCOMPARE(reasons.seen, QVector<Qt::FocusReason>(reasons.seen.size(), Qt::OtherFocusReason));
    QVERIFY(reasons.seen.size() >= 6);

    QLxColorButton alone;
    alone.show();
    QApplication::setActiveWindow(&alone);
    QVERIFY(QTest::qWaitForWindowActive(&alone));
    QVERIFY(sendEnter(&alone, colorData(Qt::red).get()));
    QApplication::sendEvent(&alone, &leave);
    QVERIFY(alone.hasFocus());
}

void TestColorButtonDrag::deletedInsideAnySignal_data()
{
    emittingRows();
}

void TestColorButtonDrag::deletedInsideAnySignal()
{
    QFETCH(int, index);
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QWidget window; // which keeps the dialog
    const QPointer<QLxColorButton> button = new QLxColorButton(&window);
    Deleter deleter(button);
    QVERIFY(connect(button, emittings[index].signal, &deleter, SLOT(strike())));
    emittings[index].act(button);
    QVERIFY(!button);
    // The next button goes on with the dialog as if nothing had happened.
    QLxColorButton next(&window);
    watch(log, &next, "next.");
    click(next);
    log.take();
    dialogs.current()->edit({7, 1, 1});
    COMPARE_LOG(log, {"next.temporaryColorChosen(hsv 7 1 1)"});
}

void TestColorButtonDrag::moduleDeletedInsideAnySignal_data()
{
    emittingRows();
}

void TestColorButtonDrag::moduleDeletedInsideAnySignal()
{
    QFETCH(int, index);
    SignalLog log;
    const FakeDialogs dialogs(&log);
    auto *const module = new QWidget;
    module->setObjectName(QStringLiteral("Module"));
    const QPointer<QLxColorButton> button = new QLxColorButton(module);
    click(*button);
    QVERIFY(sharedColorDialog);
    Deleter deleter(module);
    QVERIFY(connect(button, emittings[index].signal, &deleter, SLOT(strike())));
    emittings[index].act(button);
    QVERIFY(!button);
    QVERIFY(!sharedColorDialog);
}

QLX_TEST_MAIN(TestColorButtonDrag)
#include "tst_colorbuttondrag.moc"
