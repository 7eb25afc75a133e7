// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The pipette without a desktop: what its window does with events, how it follows the pointer, and what ends
// it. What it samples is tested on a real display.
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QHelpEvent>

class TestPipette : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void image();
    void startsInItsStates();
    void stopsInItsStates();
    void eventTable_data();
    void eventTable();
    void releasePicksOutsideTheDialogOnly_data();
    void releasePicksOutsideTheDialogOnly();
    void pixelOfTheSameColorEmitsNothing();
    void nothingGrabbedChangesNothing();
    void followsThePointerEvery10ms();
    void staysPutOverTheDialog();
    void anythingEndsIt_data();
    void anythingEndsIt();
    void deactivationEndsIt();
    void dialogDeletedWhilePicking();
    void parentDeletedByThePickedColor();
    void hiddenWhileSampling();

private:
    QWidget *overlay() const;
    void start();
    bool isPicking() const;
    void release(Qt::MouseButton button, const QPoint &global);
    bool filter(QObject *watched, QEvent *event) // which the dialog has made protected
    {
        return static_cast<QObject *>(m_dialog.data())->eventFilter(watched, event);
    }
    QPoint outside() const { return m_dialog->mapToGlobal(QPoint(-30, 10)); }

    // Fills the screen, so that there is a pixel to sample everywhere.
    QScopedPointer<QWidget> m_desktop;
    QPointer<QWidget> m_module;
    QPointer<QLxColorDialog> m_dialog;
    SignalLog m_log;
};

void TestPipette::init()
{
    TestCase::init();
    m_desktop.reset(new QWidget);
    m_desktop->setPalette(QColor(40, 80, 160));
    m_desktop->setGeometry(0, 0, 800, 600);
    m_desktop->show();
    m_module = new QWidget;
    m_dialog = new QLxColorDialog({30, 0.5F, 0.5F}, m_module, nullptr);
    m_dialog->move(100, 60);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    m_log.watch(m_dialog.data(), &QLxColorDialog::colorChanged, "colorChanged");
    QCursor::setPos(outside());
}

void TestPipette::cleanup()
{
    QVERIFY(!QWidget::mouseGrabber() || isPicking());
    delete m_module;
    m_desktop.reset();
    m_log.take();
    QLx::colorUseGamma = true;
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
    TestCase::cleanup();
}

QWidget *TestPipette::overlay() const
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows)
        if (window->size() == QSize(100, 100) && window->windowFlags().testFlag(Qt::FramelessWindowHint))
            return window;
    return nullptr;
}

void TestPipette::start()
{
    m_dialog->_pick_color->click();
    QVERIFY(isPicking());
}

bool TestPipette::isPicking() const
{
    return m_dialog && m_dialog->_pick_color->isChecked() && overlay()->isVisible();
}

void TestPipette::release(Qt::MouseButton button, const QPoint &global)
{
    QMouseEvent event(QEvent::MouseButtonRelease, overlay()->mapFromGlobal(global), global, button,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(overlay(), &event);
}

void TestPipette::image()
{
    const QIcon icon = m_dialog->_pick_color->icon();
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(32, 32)});
    const QImage image = icon.pixmap(32, 32).toImage();
    int opaque = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 0)
                continue;
            ++opaque;
            QCOMPARE(pixel.red(), pixel.green());
            QCOMPARE(pixel.red(), pixel.blue());
            QVERIFY2(x >= 3 && y <= 28, "the tip is the lower left end");
        }
    }
    QVERIFY(opaque > 100);
    QCOMPARE(image.pixelColor(4, 27).alpha(), 255);
    QVERIFY(m_dialog->_pick_color->toolTip().startsWith(QStringLiteral(
        "The pipette allows picking a color from screen.\nActivate the Pipette and left-click ")));
}

void TestPipette::startsInItsStates()
{
    QWidget *const window = overlay();
    QVERIFY(window && !window->isVisible());
    QCOMPARE(window->windowFlags(), Qt::Tool | Qt::FramelessWindowHint);
    start();
    QCOMPARE(QWidget::mouseGrabber(), window);
    QCOMPARE(QWidget::keyboardGrabber(), window);
    QVERIFY(window->testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(window->windowOpacity(), 2.0 / 255.0); // 0.01 as Qt holds it
    QCOMPARE(window->cursor().hotSpot(), QPoint(4, 27));
    QCOMPARE(window->cursor().pixmap().size(), QSize(32, 32));
    const auto timers = m_dialog->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(timers.size(), 1);
    QVERIFY(timers.first()->isActive());
    QCOMPARE(timers.first()->interval(), 10);
}

void TestPipette::stopsInItsStates()
{
    start();
    const QPoint place = overlay()->pos();
    m_dialog->_pick_color->click();
    QVERIFY(!isPicking());
    QVERIFY(!overlay()->isVisible());
    QVERIFY(!overlay()->testAttribute(Qt::WA_MouseTracking));
    QVERIFY(!m_dialog->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->isActive());
    // For the next time.
    QCOMPARE(overlay()->pos(), place);
    QCOMPARE(overlay()->cursor().hotSpot(), QPoint(4, 27));
    // The events are nobody's business now.
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    key.ignore();
    QVERIFY(!filter(m_desktop.data(), &key));
    COMPARE_LOG(m_log, {});
}

void TestPipette::eventTable_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("swallowed");
    QTest::addColumn<bool>("ends");
    QTest::newRow("press") << int(QEvent::MouseButtonPress) << true << false;
    QTest::newRow("move") << int(QEvent::MouseMove) << true << false;
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick) << false << false;
    QTest::newRow("key press") << int(QEvent::KeyPress) << true << true;
    QTest::newRow("key release") << int(QEvent::KeyRelease) << false << false;
    QTest::newRow("shortcut override") << int(QEvent::ShortcutOverride) << false << false;
    QTest::newRow("tool tip") << int(QEvent::ToolTip) << true << false;
    QTest::newRow("enter") << int(QEvent::Enter) << false << false;
    QTest::newRow("timer") << int(QEvent::Timer) << false << false;
}

void TestPipette::eventTable()
{
    QFETCH(int, type);
    start();
    const auto eventType = static_cast<QEvent::Type>(type);
    QScopedPointer<QEvent> event;
    switch (eventType) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonDblClick:
        event.reset(new QMouseEvent(eventType, QPointF(50, 50), outside(), Qt::LeftButton, Qt::LeftButton,
                                    Qt::NoModifier));
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        event.reset(new QKeyEvent(eventType, Qt::Key_Escape, Qt::NoModifier));
        event->ignore();
        break;
    case QEvent::ToolTip:
        event.reset(new QHelpEvent(eventType, QPoint(), QPoint()));
        break;
    default:
        event.reset(new QEvent(eventType));
    }
    QTEST(filter(overlay(), event.data()), "swallowed");
    QFETCH(bool, ends);
    QCOMPARE(isPicking(), !ends);
    if (eventType == QEvent::KeyPress || eventType == QEvent::ShortcutOverride)
        QVERIFY(event->isAccepted()); // nobody else gets it
    COMPARE_LOG(m_log, {});
    QVERIFY(!filter(m_dialog, event.data())); // another one's event
}

void TestPipette::releasePicksOutsideTheDialogOnly_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("inside");
    QTest::addColumn<bool>("useGamma");
    QTest::newRow("left, outside, sRGB on") << int(Qt::LeftButton) << false << true;
    QTest::newRow("left, outside, sRGB off") << int(Qt::LeftButton) << false << false;
    QTest::newRow("left, inside") << int(Qt::LeftButton) << true << true;
    QTest::newRow("right, outside") << int(Qt::RightButton) << false << true;
    QTest::newRow("middle, outside") << int(Qt::MiddleButton) << false << true;
    QTest::newRow("right, inside") << int(Qt::RightButton) << true << true;
}

void TestPipette::releasePicksOutsideTheDialogOnly()
{
    QFETCH(int, button);
    QFETCH(bool, inside);
    QFETCH(bool, useGamma);
    QLx::colorUseGamma = useGamma;
    start();
    overlay()->hide(); // the offscreen platform knows no opacity, and its pixel would be sampled
    release(static_cast<Qt::MouseButton>(button), inside ? m_dialog->mapToGlobal(QPoint(10, 10)) : outside());
    QVERIFY(!isPicking());
    if (button != int(Qt::LeftButton) || inside) {
        COMPARE_LOG(m_log, {});
        QCOMPARE(overlay()->windowOpacity(), 2.0 / 255.0);
        return;
    }
    QCOMPARE(m_log.take().size(), 1);
    QColor picked = QLx::toQColorF(m_dialog->getColor());
    if (useGamma)
        picked = QLx::toQColorF(QLx::toSrgbColor(m_dialog->getColor()));
    QCOMPARE(picked.name(), QColor(40, 80, 160).name());
    // The opacity stays for the record, and is set anew by the next start.
    QCOMPARE(overlay()->windowOpacity(), 0.0);
    start();
    QCOMPARE(overlay()->windowOpacity(), 2.0 / 255.0);
}

void TestPipette::pixelOfTheSameColorEmitsNothing()
{
    for (const bool first : {true, false}) {
        start();
        overlay()->hide();
        release(Qt::LeftButton, outside());
        QCOMPARE(m_log.take().isEmpty(), !first);
    }
}

void TestPipette::nothingGrabbedChangesNothing()
{
    m_desktop->hide(); // the offscreen platform has no pixels but those of windows
    start();
    overlay()->hide();
    QCursor::setPos(5, 5);
    release(Qt::LeftButton, QPoint(5, 5));
    QVERIFY(!isPicking());
    COMPARE_LOG(m_log, {});
    QCOMPARE(asText(m_dialog->getColor()), asText(QLxColor{30, 0.5F, 0.5F}));
}

void TestPipette::followsThePointerEvery10ms()
{
    start();
    for (const QPoint &position : {QPoint(60, 70), QPoint(20, 300), QPoint(7, 5)}) {
        QCursor::setPos(position);
        QTRY_COMPARE(overlay()->pos(), QCursor::pos() - QPoint(50, 50));
    }
    // A pointer that stays moves nothing.
    overlay()->move(400, 300);
    QMetaObject::invokeMethod(m_dialog, "preGrabScreenColor");
    QCOMPARE(overlay()->pos(), QPoint(400, 300));
}

void TestPipette::staysPutOverTheDialog()
{
    start();
    QCursor::setPos(outside());
    QMetaObject::invokeMethod(m_dialog, "preGrabScreenColor");
    const QPoint place = overlay()->pos();
    for (const QPoint &corner : {QPoint(0, 0), m_dialog->rect().bottomRight(), m_dialog->rect().center()}) {
        QCursor::setPos(m_dialog->mapToGlobal(corner));
        QMetaObject::invokeMethod(m_dialog, "preGrabScreenColor");
        QCOMPARE(overlay()->pos(), place);
    }
    QCursor::setPos(
        m_dialog->mapToGlobal(m_dialog->rect().bottomRight() + QPoint(1, 0))); // the first pixel outside
    QMetaObject::invokeMethod(m_dialog, "preGrabScreenColor");
    QCOMPARE(overlay()->pos(), QCursor::pos() - QPoint(50, 50));
    // Positions over the dialog are remembered like any other.
    const QPoint inside = m_dialog->mapToGlobal(QPoint(20, 20));
    QCursor::setPos(inside);
    QMetaObject::invokeMethod(m_dialog, "preGrabScreenColor");
    m_dialog->move(m_dialog->pos() + QPoint(900, 0)); // the same position is outside now
    QMetaObject::invokeMethod(m_dialog, "preGrabScreenColor");
    QVERIFY(overlay()->pos() != inside - QPoint(50, 50));
}

void TestPipette::anythingEndsIt_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"hidden", "closed", "accepted", "rejected", "parent hidden", "button", "twice"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void TestPipette::anythingEndsIt()
{
    QFETCH(QString, what);
    m_module->show();
    start();
    if (what == QLatin1String("hidden"))
        m_dialog->hide();
    else if (what == QLatin1String("closed"))
        m_dialog->close();
    else if (what == QLatin1String("accepted"))
        m_dialog->_accept->click();
    else if (what == QLatin1String("rejected"))
        m_dialog->_reject->click();
    else if (what == QLatin1String("parent hidden"))
        m_module->hide();
    else if (what == QLatin1String("button"))
        m_dialog->_pick_color->setChecked(false);
    else
        for (int i = 0; i < 2; ++i)
            QMetaObject::invokeMethod(m_dialog, "toggleColorPipette", Q_ARG(bool, false));
    if (what == QLatin1String("parent hidden"))
        m_dialog->hide(); // not every platform takes a dialog along
    QVERIFY(!isPicking());
    QVERIFY(!overlay()->isVisible());
    QVERIFY(!m_dialog->_pick_color->isChecked());
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestPipette::deactivationEndsIt()
{
    start();
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!isPicking());
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    start();
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(isPicking());
}

void TestPipette::dialogDeletedWhilePicking()
{
    start();
    QVERIFY(QWidget::mouseGrabber());
    delete m_dialog;
    QVERIFY(!overlay());
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestPipette::parentDeletedByThePickedColor()
{
    connect(m_dialog, &QLxColorDialog::colorChanged, this, [this] { delete m_module; });
    start();
    overlay()->hide();
    release(Qt::LeftButton, outside());
    QVERIFY(!m_dialog);
    QVERIFY(!overlay());
}

void TestPipette::hiddenWhileSampling()
{
    // The events that are processed before the pixel is read hide the dialog.
    start();
    overlay()->hide();
    QMetaObject::invokeMethod(m_dialog, "hide", Qt::QueuedConnection);
    release(Qt::LeftButton, outside());
    QVERIFY(!isPicking());
    COMPARE_LOG(m_log, {});
}

QLX_TEST_MAIN(TestPipette)
#include "tst_pipette.moc"
