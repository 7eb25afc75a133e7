// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The menus, the arrows and the drag of the spin boxes and the list of the combo box, by the real pointer and
// keys of an X display. QLX_TEST_PLATFORM must be xcb.
#include "QLxComboBox.h"
#include "QLxDoubleSpiner.h"
#include "QLxSpiner.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QStyleOptionSpinBox>
#include <QTimer>

#include <functional>

namespace {

/// Counts the beats of the arrow button that is held, and tells where it is.
class Spiner : public QLxSpiner
{
public:
    using QLxSpiner::QLxSpiner;
    QPoint upArrow() const
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        const QStyle::SubControl up = QStyle::SC_SpinBoxUp;
        return mapToGlobal(style()->subControlRect(QStyle::CC_SpinBox, &option, up, this).center());
    }
    int beats = 0;

protected:
    void timerEvent(QTimerEvent *event) override
    {
        ++beats;
        QLxSpiner::timerEvent(event);
    }
};

QPoint centre(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

/// Where a box's text is, to the left of its arrows.
QPoint text(const QWidget *box)
{
    return box->mapToGlobal({20, box->height() / 2});
}

QPoint item(const QComboBox *box, int row)
{
    const QRect rect = box->view()->visualRect(box->model()->index(row, 0));
    return box->view()->viewport()->mapToGlobal({10, rect.center().y()});
}

} // namespace

class TestDesktopSpinBoxes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void integerMenu();
    void stepEditedInPlace_data();
    void stepEditedInPlace();
    void heldArrowRepeatsOnlyIfItMay();
    void middleButtonDrag();
    void doubleMenu_data();
    void doubleMenu();
    void doubleMenuByKey();
    void doubleMenuClosedByAClick();
    void listByPointer();
    void listByKeys();
    void listClosedWithoutChoice_data();
    void listClosedWithoutChoice();

private:
    void run(const QString &commands);
    void click(const QPoint &at, int button = 1);
    void choose(const char *action);
    void openDoubleMenu();

    QScopedPointer<QWidget> m_window;
    Spiner *m_integer = nullptr;
    QLxDoubleSpiner *m_double = nullptr;
    QLxComboBox *m_combo = nullptr;
    SignalLog m_log;
};

void TestDesktopSpinBoxes::init()
{
    TestCase::init();
    m_window.reset(new QWidget);
    m_window->setGeometry(200, 200, 300, 160);
    m_integer = new Spiner(m_window.data());
    m_integer->setGeometry(20, 20, 120, 26);
    m_double = new QLxDoubleSpiner(m_window.data());
    m_double->setGeometry(20, 60, 120, 26);
    m_combo = new QLxComboBox(m_window.data());
    m_combo->setGeometry(20, 100, 120, 26);
    m_combo->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
    m_log.watch(m_integer, QOverload<int>::of(&QLxSpiner::valueChanged), "integer");
    m_log.watch(m_integer, &QLxSpiner::singleStepChanged, "integerStep");
    m_log.watch(m_double, QOverload<double>::of(&QLxDoubleSpiner::valueChanged), "double");
    m_log.watch(m_double, &QLxDoubleSpiner::singleStepChanged, "doubleStep");
    m_log.watch(m_combo, &QLxComboBox::popupShown, "popupShown");
    m_log.watch(m_combo, &QLxComboBox::popupHidden, "popupHidden");
    m_log.watch(m_combo, QOverload<int>::of(&QLxComboBox::activated), "activated");
}

void TestDesktopSpinBoxes::cleanup()
{
    m_window.reset();
    m_log.take();
    TestCase::cleanup();
}

/// Runs xdotool with the commands while our own events go on.
void TestDesktopSpinBoxes::run(const QString &commands)
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"), commands.simplified().split(QLatin1Char(' ')));
    QVERIFY(xdotool.waitForStarted());
    QTRY_COMPARE(xdotool.state(), QProcess::NotRunning);
    QCOMPARE(xdotool.exitCode(), 0);
}

void TestDesktopSpinBoxes::click(const QPoint &at, int button)
{
    run(QStringLiteral("mousemove %1 %2 click %3").arg(at.x()).arg(at.y()).arg(button));
}

/// Opens the integer box's menu by the pointer and chooses by it. The menu blocks until then.
void TestDesktopSpinBoxes::choose(const char *action)
{
    bool chosen = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        const auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu || !menu->windowHandle()->isExposed())
            return;
        poll.stop();
        QCOMPARE(menu->pos(), text(m_integer));
        const QList<QAction *> actions = menu->actions();
        for (QAction *candidate : actions) {
            if (candidate->text() == QLatin1String(action)) {
                chosen = true;
                click(menu->mapToGlobal(menu->actionGeometry(candidate).center()));
            }
        }
    });
    poll.start(10);
    click(text(m_integer), 3);
    QTRY_VERIFY(chosen);
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(m_window->isActiveWindow());
}

void TestDesktopSpinBoxes::openDoubleMenu()
{
    click(text(m_double), 3);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QVERIFY(QTest::qWaitForWindowExposed(QApplication::activePopupWidget()));
}

void TestDesktopSpinBoxes::integerMenu()
{
    m_integer->setRange(0, 10);
    m_integer->setSingleStep(5);
    m_log.take();
    choose("&Step up");
    QTRY_COMPARE(m_integer->value(), 5);
    choose("Step &down");
    QTRY_COMPARE(m_integer->value(), 0);
    COMPARE_LOG(m_log, {"integer(5)", "integer(0)"});
}

void TestDesktopSpinBoxes::stepEditedInPlace_data()
{
    QTest::addColumn<QString>("leaving");
    QTest::newRow("Return") << QStringLiteral("key Return");
    QTest::newRow("Enter") << QStringLiteral("key KP_Enter");
    QTest::newRow("Tab") << QStringLiteral("key Tab");
    QTest::newRow("click elsewhere") << QString();
}

void TestDesktopSpinBoxes::stepEditedInPlace()
{
    QFETCH(QString, leaving);
    m_integer->setValue(42);
    m_log.take();
    choose("Step...");
    QTRY_COMPARE(m_integer->text(), QStringLiteral("step 1"));
    QTRY_VERIFY(m_integer->hasFocus());
    COMPARE_LOG(m_log, {});
    run(QStringLiteral("type 25"));
    QTRY_COMPARE(m_integer->text(), QStringLiteral("step 25"));
    COMPARE_LOG(m_log, {});
    if (leaving.isEmpty())
        click(text(m_double));
    else
        run(leaving);
    QTRY_COMPARE(m_integer->text(), QStringLiteral("42"));
    COMPARE_LOG(m_log, {"integer(25)", "integerStep(25)", "integer(42)"});
    click(text(m_integer));
    run(QStringLiteral("key Up"));
    QTRY_COMPARE(m_integer->value(), 67);
}

void TestDesktopSpinBoxes::heldArrowRepeatsOnlyIfItMay()
{
    const QPoint arrow = m_integer->upArrow();
    run(QStringLiteral("mousemove %1 %2 mousedown 1").arg(arrow.x()).arg(arrow.y()));
    QTRY_VERIFY(m_integer->value() >= 4);
    run(QStringLiteral("mouseup 1"));
    m_integer->setAutoStepsOnMousePress(false);
    m_integer->setValue(0);
    m_integer->beats = 0;
    run(QStringLiteral("mousedown 1"));
    QTRY_VERIFY(m_integer->beats >= 3);
    run(QStringLiteral("mouseup 1"));
    QCOMPARE(m_integer->value(), 1);
    run(QStringLiteral("click 1"));
    QTRY_COMPARE(m_integer->value(), 2);
}

void TestDesktopSpinBoxes::middleButtonDrag()
{
    m_integer->setSingleStep(2);
    m_double->setSingleStep(0.5);
    for (QWidget *box : {static_cast<QWidget *>(m_integer), static_cast<QWidget *>(m_double)}) {
        const QPoint from = text(box);
        run(QStringLiteral("mousemove %1 %2 mousedown 2 mousemove_relative 4 0 sleep 0.02 "
                           "mousemove_relative 6 3")
                .arg(from.x())
                .arg(from.y()));
        QTRY_COMPARE(box == m_integer ? m_integer->value() : m_double->value(), box == m_integer ? 20 : 5);
        QCOMPARE(bool(QApplication::overrideCursor()), box == m_double);
        run(QStringLiteral("mouseup 2 mousemove_relative 20 0"));
        QTRY_VERIFY(!QApplication::overrideCursor());
    }
    QCOMPARE(m_integer->value(), 20);
    QCOMPARE(m_double->value(), 5.0);
}

void TestDesktopSpinBoxes::doubleMenu_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("log");
    QTest::addColumn<bool>("closed");
    const QString step = QStringLiteral("doubleStep(%1)");
    QTest::newRow("typed, Return") << QStringLiteral("key 0 period 2 5 Return") << step.arg(0.25) << true;
    QTest::newRow("relative") << QStringLiteral("key asterisk equal 3 KP_Enter") << step.arg(1.5) << true;
    QTest::newRow("up key") << QStringLiteral("key Up") << step.arg(1.5) << false;
    QTest::newRow("wheel") << QStringLiteral("mousemove_relative 40 12 click 4") << step.arg(1.5) << false;
    QTest::newRow("Escape") << QStringLiteral("key Escape") << QString() << true;
    QTest::newRow("Return") << QStringLiteral("key Return") << QString() << true;
}

void TestDesktopSpinBoxes::doubleMenu()
{
    QFETCH(QString, commands);
    QFETCH(QString, log);
    QFETCH(bool, closed);
    m_double->setSingleStep(0.5);
    m_log.take();
    openDoubleMenu();
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    QCOMPARE(menu->pos(), text(m_double));
    run(commands);
    QTRY_COMPARE(m_log.text(), log);
    QTRY_COMPARE(menu->isVisible(), !closed);
    run(QStringLiteral("key Escape"));
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(m_window->isActiveWindow());
    QTEST(m_log.take().join(QLatin1Char('\n')), "log");
    click(text(m_double));
    run(QStringLiteral("key Up"));
    QTRY_COMPARE(m_double->value(), m_double->singleStep());
}

void TestDesktopSpinBoxes::doubleMenuByKey()
{
    click(text(m_double));
    QTRY_VERIFY(m_double->hasFocus());
    run(QStringLiteral("key Menu"));
    QTRY_VERIFY(QApplication::activePopupWidget());
    const QPoint at = m_double->mapFromGlobal(QApplication::activePopupWidget()->pos());
    QCOMPARE(at.y(), m_double->height() / 2);
    QVERIFY(at.x() > m_double->width() / 2); // by where the text cursor is
    run(QStringLiteral("key 3 Return"));
    QTRY_COMPARE(m_log.text(), QStringLiteral("doubleStep(3)"));
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(m_double->hasFocus());
}

void TestDesktopSpinBoxes::doubleMenuClosedByAClick()
{
    openDoubleMenu();
    click(m_window->mapToGlobal({250, 130}));
    QTRY_VERIFY(!QApplication::activePopupWidget());
    COMPARE_LOG(m_log, {});
    QCOMPARE(m_double->singleStep(), 1.0);
}

void TestDesktopSpinBoxes::listByPointer()
{
    for (const int row : {2, 1}) {
        click(centre(m_combo));
        QTRY_VERIFY(m_combo->view()->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(m_combo->view()->window()));
        const QPoint at = item(m_combo, row);
        // Slowly enough for the list, which takes no click that could be the second of a double-click.
        run(QStringLiteral("mousemove %1 %2 sleep 0.5 mousemove_relative 12 0 sleep 0.02 click 1")
                .arg(at.x())
                .arg(at.y()));
        QTRY_COMPARE(m_combo->currentIndex(), row);
        QTRY_VERIFY(!m_combo->view()->isVisible());
    }
    COMPARE_LOG(m_log, {"popupShown(0)", "popupHidden()", "activated(2)", "popupShown(2)", "popupHidden()",
                        "activated(1)"});
}

void TestDesktopSpinBoxes::listByKeys()
{
    m_combo->setFocus();
    run(QStringLiteral("key alt+Down"));
    QTRY_VERIFY(m_combo->view()->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(m_combo->view()->window()));
    run(QStringLiteral("key Down Down Return"));
    QTRY_COMPARE(m_combo->currentIndex(), 2);
    QTRY_VERIFY(!m_combo->view()->isVisible());
    COMPARE_LOG(m_log, {"popupShown(0)", "popupHidden()", "activated(2)"});
}

void TestDesktopSpinBoxes::listClosedWithoutChoice_data()
{
    QTest::addColumn<QString>("commands");
    QTest::newRow("Escape") << QStringLiteral("key Escape");
    QTest::newRow("click in the window") << QStringLiteral("mousemove 480 340 click 1");
    QTest::newRow("click on the bare desktop") << QStringLiteral("mousemove 1000 800 click 1");
}

void TestDesktopSpinBoxes::listClosedWithoutChoice()
{
    QFETCH(QString, commands);
    click(centre(m_combo));
    QTRY_VERIFY(m_combo->view()->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(m_combo->view()->window()));
    run(commands);
    QTRY_VERIFY(!m_combo->view()->isVisible());
    COMPARE_LOG(m_log, {"popupShown(0)", "popupHidden()"});
    QCOMPARE(m_combo->currentIndex(), 0);
}

QLX_TEST_MAIN(TestDesktopSpinBoxes)
#include "tst_desktopspinboxes.moc"
