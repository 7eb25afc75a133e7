// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Receivers that do their worst inside a double spin box's signals.
#include "Pointer.h"
#include "QLxSceneUnit.h"
#include "SpinerProbe.h"
#include "TestCase.h"

#include <QMenu>
#include <QProcess>

#include <functional>

namespace {

using Action = std::function<void(SpinerProbe *)>;

struct NamedAction
{
    const char *name;
    Action run;
};

const NamedAction actions[] = {
    {"deleteLater", [](SpinerProbe *box) { box->deleteLater(); }},
    {"hide", [](SpinerProbe *box) { box->hide(); }},
    {"disable", [](SpinerProbe *box) { box->setEnabled(false); }},
    {"make read-only", [](SpinerProbe *box) { box->setReadOnly(true); }},
    {"give another range", [](SpinerProbe *box) { box->setRange(-1.0, 1.0); }},
    {"set the value", [](SpinerProbe *box) { box->setValue(box->value() == 77.0 ? 78.0 : 77.0); }},
    {"set the text's affixes", [](SpinerProbe *box) { box->setPrefix(QStringLiteral("~")); }},
    {"swap the mode",
     [](SpinerProbe *box) {
         static int turn = 0;
         box->setRelativeOperatorHandlingMode(++turn % 2 ? EmitRelativeOperator : ApplyRelativeOperator);
     }},
    {"throw the parent away later", [](SpinerProbe *box) { box->window()->deleteLater(); }},
    {"finish the edit once more", [](SpinerProbe *box) { box->clearFocus(); }},
};

// Runs the action inside every signal of the box, but not inside signals that the action itself sets off.
void onEverySignal(SpinerProbe *box, const Action &action)
{
    using B = QLxDoubleSpiner;
    const auto run = [box, action, running = std::make_shared<bool>(false)] {
        if (*running)
            return;
        *running = true;
        action(box);
        *running = false;
    };
    QObject::connect(box, &B::singleStepChanged, box, run);
    QObject::connect(box, &B::mouseButtonPressed, box, run);
    QObject::connect(box, &B::mouseButtonReleased, box, run);
    QObject::connect(box, &B::relativeOperatorChanged, box, run);
    QObject::connect(box, &B::relativeOperatorApplied, box, run);
    QObject::connect(box, &B::focusGained, box, run);
    QObject::connect(box, QOverload<double>::of(&B::valueChanged), box, run);
    QObject::connect(box, &B::editingFinished, box, run);
    QObject::connect(box->edit(), &QLineEdit::textEdited, box, run);
}

void drag(SpinerProbe *box, Qt::MouseButton button)
{
    Pointer pointer(box->edit());
    pointer.press({20, 5}, button);
    pointer.move({30, 5});
    pointer.move({25, 5});
    pointer.release({25, 5}, button);
}

struct Scenario
{
    const char *name;
    std::function<void(SpinerPair &)> run;
};

const Scenario scenarios[] = {
    {"typed and Return",
     [](SpinerPair &pair) {
         pair.box->type("+=5");
         QTest::keyClick(pair.box, Qt::Key_Return);
     }},
    {"typed number and Enter",
     [](SpinerPair &pair) {
         pair.box->type("2*(3)");
         QTest::keyClick(pair.box, Qt::Key_Enter);
     }},
    {"typed and left",
     [](SpinerPair &pair) {
         pair.box->type("-=4");
         pair.other->setFocus();
     }},
    {"arrow keys while an operator is pending",
     [](SpinerPair &pair) {
         pair.box->type("+=5");
         QTest::keyClick(pair.box, Qt::Key_Up);
         QTest::keyClick(pair.box, Qt::Key_Down);
     }},
    {"focus comes back",
     [](SpinerPair &pair) {
         pair.other->setFocus();
         pair.box->setFocus();
     }},
    {"middle-button drag", [](SpinerPair &pair) { drag(pair.box, Qt::MiddleButton); }},
    {"left-button drag", [](SpinerPair &pair) { drag(pair.box, Qt::LeftButton); }},
    {"step set", [](SpinerPair &pair) { pair.box->setSingleStep(2.0); }},
    {"broadcast",
     [](SpinerPair &pair) {
         pair.box->setDisplaySceneUnit(true);
         pair.other->setDisplaySceneUnit(true);
         QLx::setSceneUnit(10.0F);
         QLxDoubleSpiner::updateInstancesWithSceneUnit();
         QLx::setSceneUnit(1.0F);
     }},
};

} // namespace

class TestDoubleSpinerReceivers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anythingInAnySignal_data();
    void anythingInAnySignal();
    void hiddenByPressShowsNoCursor();
    void deletedWhileMouseIsHandled_data();
    void deletedWhileMouseIsHandled();
    void deletedByStep();
    void deletedByFocusEvent();
    void parentDeletedWhileMouseIsHandled();
    void deletedInsideSignalsOfTheBase_data();
    void deletedInsideSignalsOfTheBase();
};

void TestDoubleSpinerReceivers::anythingInAnySignal_data()
{
    QTest::addColumn<int>("scenario");
    QTest::addColumn<int>("action");
    QTest::addColumn<bool>("reported");
    for (const bool reported : {false, true})
        for (int s = 0; s < int(std::size(scenarios)); ++s)
            for (int a = 0; a < int(std::size(actions)); ++a)
                QTest::addRow("%s, %s: %s", scenarios[s].name, reported ? "reported" : "applied",
                              actions[a].name)
                    << s << a << reported;
}

void TestDoubleSpinerReceivers::anythingInAnySignal()
{
    QFETCH(int, scenario);
    QFETCH(int, action);
    QFETCH(bool, reported);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::setOverrideCursor(Qt::BusyCursor); // may go: every release takes one
    {
        auto pair = std::make_unique<SpinerPair>();
        const QPointer<SpinerProbe> box = pair->box;
        if (reported)
            box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
        box->setValue(10.0);
        onEverySignal(box, actions[action].run);
        scenarios[scenario].run(*pair);
        if (box) {
            const double value = box->value();
            QVERIFY(qIsFinite(value) && value >= box->minimum() && value <= box->maximum());
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    // The drag's own cursor is gone in any case, the host's first is still there.
    QVERIFY(QApplication::overrideCursor());
    QVERIFY(QApplication::overrideCursor()->shape() != Qt::SizeHorCursor);
    QApplication::restoreOverrideCursor();
    QApplication::restoreOverrideCursor();
    QVERIFY(!QApplication::overrideCursor());
}

void TestDoubleSpinerReceivers::hiddenByPressShowsNoCursor()
{
    SpinerPair pair;
    connect(pair.box, &QLxDoubleSpiner::mouseButtonPressed, pair.box, &QWidget::hide);
    Pointer(pair.box->edit()).press({20, 5}, Qt::MiddleButton);
    QVERIFY(!QApplication::overrideCursor());
}

void TestDoubleSpinerReceivers::deletedWhileMouseIsHandled_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("button");
    int signal = 0;
    for (const char *name : {"mouseButtonPressed", "mouseButtonReleased", "relativeOperatorApplied"}) {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton, Qt::XButton1})
            if (signal < 2 || button == Qt::MiddleButton)
                QTest::addRow("%s, button %d", name, int(button)) << signal << int(button);
        ++signal;
    }
}

void TestDoubleSpinerReceivers::deletedWhileMouseIsHandled()
{
    using B = QLxDoubleSpiner;
    QFETCH(int, signal);
    QFETCH(int, button);
    SpinerPair pair;
    QPointer<SpinerProbe> box = pair.box;
    box->setRelativeOperatorHandlingMode(EmitRelativeOperator);
    const auto destroy = [&box] { delete box; };
    if (signal == 0)
        connect(box, &B::mouseButtonPressed, this, destroy);
    else if (signal == 1)
        connect(box, &B::mouseButtonReleased, this, destroy);
    else
        connect(box, &B::relativeOperatorApplied, this, destroy);
    drag(box, static_cast<Qt::MouseButton>(button));
    QVERIFY(!box);
    QVERIFY(!QApplication::overrideCursor());
}

void TestDoubleSpinerReceivers::deletedByStep()
{
    QPointer<QLxDoubleSpiner> box = new QLxDoubleSpiner;
    connect(box, &QLxDoubleSpiner::singleStepChanged, this, [&box] { delete box; });
    box->setSingleStep(3.0);
    QVERIFY(!box);
}

void TestDoubleSpinerReceivers::deletedByFocusEvent()
{
    // Only the event: QWidget::setFocus() goes on with a widget that its focus event has deleted.
    QPointer<SpinerProbe> box = new SpinerProbe;
    connect(box, &QLxDoubleSpiner::focusGained, this, [&box] { delete box; });
    QFocusEvent event(QEvent::FocusIn);
    QApplication::sendEvent(box, &event);
    QVERIFY(!box);
}

void TestDoubleSpinerReceivers::parentDeletedWhileMouseIsHandled()
{
    auto *const parent = new QWidget;
    QPointer<SpinerProbe> box = new SpinerProbe(parent);
    connect(box, &QLxDoubleSpiner::mouseButtonPressed, this, [parent] { delete parent; });
    drag(box, Qt::MiddleButton);
    QVERIFY(!box);
    QVERIFY(!QApplication::overrideCursor());
}

void TestDoubleSpinerReceivers::deletedInsideSignalsOfTheBase_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"value Return", "value Up", "value leave", "finished Return", "finished leave",
                             "edited type", "focus set"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

// Where a plain QDoubleSpinBox survives being deleted by a receiver, so does ours; where it does not, hosts
// use deleteLater(). Each is tried in a process of its own.
void TestDoubleSpinerReceivers::deletedInsideSignalsOfTheBase()
{
    QFETCH(QString, what);
    const auto survives = [&](const char *which) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("MALLOC_PERTURB_"), QStringLiteral("238"));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      QStringList{QStringLiteral("--delete"), QLatin1String(which)} +
                          what.split(QLatin1Char(' ')));
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    };
    const bool plain = survives("plain");
    const bool ours = survives("ours");
    qInfo("plain QDoubleSpinBox: %s; ours: %s", plain ? "survives" : "crashes",
          ours ? "survives" : "crashes");
    QVERIFY(ours || !plain);
}

namespace {

// In a process of its own: deletes a box, plain or ours, inside a signal.
int deleteInside(const QStringList &arguments)
{
    const QString &signal = arguments.at(1);
    const QString &deed = arguments.at(2);
    QWidget window;
    auto *const layout = new QHBoxLayout(&window);
    QPointer<QDoubleSpinBox> box =
        arguments.at(0) == QLatin1String("ours") ? new QLxDoubleSpiner : new QDoubleSpinBox;
    box->setKeyboardTracking(false);
    QLineEdit other;
    layout->addWidget(box);
    layout->addWidget(&other);
    window.show();
    QApplication::setActiveWindow(&window);
    const auto destroy = [&box] { delete box; };
    if (signal == QLatin1String("focus"))
        other.setFocus();
    else
        box->setFocus();
    if (signal == QLatin1String("value"))
        QObject::connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), destroy);
    else if (signal == QLatin1String("finished"))
        QObject::connect(box, &QDoubleSpinBox::editingFinished, destroy);
    else if (signal == QLatin1String("edited"))
        QObject::connect(box->findChild<QLineEdit *>(), &QLineEdit::textEdited, destroy);

    struct FocusWatch : QObject // stands in for focusGained(), which a plain box does not have
    {
        std::function<void()> run;
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            if (event->type() != QEvent::FocusIn)
                return false;
            run();
            return true;
        }
    } focusWatch;
    focusWatch.run = destroy;
    if (signal == QLatin1String("focus")) {
        if (auto *const ours = qobject_cast<QLxDoubleSpiner *>(box))
            QObject::connect(ours, &QLxDoubleSpiner::focusGained, destroy);
        else
            box->installEventFilter(&focusWatch);
        box->setFocus();
    } else {
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("5"));
        if (box && deed == QLatin1String("Return"))
            QTest::keyClick(box, Qt::Key_Return);
        else if (box && deed == QLatin1String("Up"))
            QTest::keyClick(box, Qt::Key_Up);
        else if (box && deed == QLatin1String("leave"))
            other.setFocus();
    }
    QCoreApplication::processEvents();
    return box ? 3 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    pinTestEnvironment();
    QApplication application(argc, argv);
    pinTestLook();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--delete"))
        return deleteInside(arguments.mid(2));
    TestDoubleSpinerReceivers test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_doublespinerreceivers.moc"
