// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Drags between two swatches with the real pointer of an X display. QLX_TEST_PLATFORM must be xcb.
#include "QLxColorButton.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QProcess>

class TestDesktopDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dropOnAnotherSwatch();
    void dropOnItself();
    void escapeEndsTheDrag();
    void sourceDeletedWhileDragged();

private:
    void pointer(const QString &commands);
    static QString at(const QWidget *widget);
    static QString smoothly(const QWidget *from, const QWidget *to);

    QScopedPointer<QWidget> m_window;
    QPointer<QLxColorButton> m_first;
    QPointer<QLxColorButton> m_second;
    SignalLog m_log;
};

void TestDesktopDrag::init()
{
    TestCase::init();
    m_window.reset(new QWidget);
    m_window->setGeometry(200, 200, 300, 100);
    m_first = new QLxColorButton(m_window.data());
    m_first->setGeometry(20, 20, 60, 40);
    m_first->setShowColorDialog(false);
    m_first->setColor({120, 1, 0.5F});
    m_second = new QLxColorButton(m_window.data());
    m_second->setGeometry(200, 20, 60, 40);
    m_second->setShowColorDialog(false);
    using B = QLxColorButton;
    for (B *button : {m_first.data(), m_second.data()}) {
        const QByteArray who = button == m_first ? "first." : "second.";
        m_log.watch(button, &B::colorButtonClicked, who + "colorButtonClicked");
        m_log.watch(button, &B::temporaryColorChosen, who + "temporaryColorChosen");
        m_log.watch(button, &B::finalColorChosen, who + "finalColorChosen");
        m_log.watch(button, &B::userAccepted, who + "userAccepted");
        m_log.watch(button, &B::userSkipped, who + "userSkipped");
    }
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
}

void TestDesktopDrag::cleanup()
{
    m_window.reset();
    m_log.take();
    TestCase::cleanup();
}

/// Runs xdotool with the commands while our own events go on.
void TestDesktopDrag::pointer(const QString &commands)
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"), commands.simplified().split(QLatin1Char(' ')));
    QVERIFY(xdotool.waitForStarted());
    QTRY_COMPARE(xdotool.state(), QProcess::NotRunning);
    QCOMPARE(xdotool.exitCode(), 0);
}

QString TestDesktopDrag::at(const QWidget *widget)
{
    const QPoint centre = widget->mapToGlobal(widget->rect().center());
    return QStringLiteral("mousemove %1 %2 ").arg(centre.x()).arg(centre.y());
}

QString TestDesktopDrag::smoothly(const QWidget *from, const QWidget *to)
{
    const QPoint start = from->mapToGlobal(from->rect().center());
    const QPoint end = to->mapToGlobal(to->rect().center());
    QString commands;
    for (int i = 1; i <= 10; ++i) {
        const QPoint step = start + (end - start) * i / 10;
        commands += QStringLiteral("mousemove %1 %2 sleep 0.02 ").arg(step.x()).arg(step.y());
    }
    return commands;
}

void TestDesktopDrag::dropOnAnotherSwatch()
{
    pointer(at(m_first) + QStringLiteral("mousedown 1 ") + smoothly(m_first, m_second) +
            QStringLiteral("sleep 0.05 mouseup 1"));
    const QLxColor half{120, 1, static_cast<float>(QColor::fromRgbF(0, 0.5, 0).greenF())};
    QTRY_COMPARE(asText(m_second->getColor()), asText(half));
    COMPARE_LOG(m_log, {LogLine(QStringLiteral("second.finalColorChosen(%1)").arg(asText(half)))});
    QVERIFY(m_second->hasFocus());
    QVERIFY(m_first->getColor() == (QLxColor{120, 1, 0.5F}));

    // The source is ready for the next click.
    pointer(at(m_first) + QStringLiteral("click 1"));
    QTRY_COMPARE(m_log.text(), QStringLiteral("first.colorButtonClicked()"));
}

void TestDesktopDrag::dropOnItself()
{
    pointer(at(m_first) + QStringLiteral("mousedown 1 ") + smoothly(m_first, m_second) +
            smoothly(m_second, m_first) + QStringLiteral("sleep 0.05 mouseup 1"));
    QTRY_VERIFY(m_log.text().startsWith(QStringLiteral("first.finalColorChosen("))); // not clicked
    QCOMPARE(m_log.take().size(), 1);
    QVERIFY(m_second->getColor() == (QLxColor{0, 0, 0.8F}));
}

void TestDesktopDrag::escapeEndsTheDrag()
{
    pointer(at(m_first) + QStringLiteral("mousedown 1 ") + smoothly(m_first, m_second) +
            QStringLiteral("key Escape sleep 0.05 mouseup 1"));
    pointer(at(m_second) + QStringLiteral("click 1"));
    QTRY_COMPARE(m_log.text(), QStringLiteral("second.colorButtonClicked()"));
    QVERIFY(m_second->getColor() == (QLxColor{0, 0, 0.8F}));
}

void TestDesktopDrag::sourceDeletedWhileDragged()
{
    QTimer::singleShot(150, m_first, [this] { delete m_first; });
    pointer(at(m_first) + QStringLiteral("mousedown 1 ") + smoothly(m_first, m_second) +
            QStringLiteral("sleep 0.05 mouseup 1"));
    QVERIFY(!m_first);
    // The other swatch works on.
    m_log.take();
    pointer(at(m_second) + QStringLiteral("click 1"));
    QTRY_COMPARE(m_log.text(), QStringLiteral("second.colorButtonClicked()"));
}

QLX_TEST_MAIN(TestDesktopDrag)
#include "tst_desktopdrag.moc"
