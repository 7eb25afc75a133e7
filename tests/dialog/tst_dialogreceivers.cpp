// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The dialog under hosts that go away or answer back at the worst moment.
#include "DialogActs.h"

namespace {

/// The swatches in and before the dialog that can be dragged.
const char *const swatchNames[] = {"host", "current", "previous", "cell"};

QWidget *swatch(QLxColorButton *host, QLxColorDialog *dialog, const QString &name)
{
    if (name == QLatin1String("host"))
        return host;
    if (name == QLatin1String("cell"))
        return dialog->_custom_colors->findChild<QAbstractButton *>();
    return name == QLatin1String("current") ? dialog->_current_color : dialog->_previous_color;
}

/// In a process of its own, on a platform where a drag waits for its end: destroys the module in its middle.
int destroyWhileDragging(const QString &name)
{
    auto *const module = new QWidget;
    module->setObjectName(QStringLiteral("Module"));
    auto *const host = new QLxColorButton(module);
    press(host);
    auto *const dialog = static_cast<QLxColorDialog *>(sharedColorDialog.data());
    dialog->_custom_colors->addColor({120, 1, 1});
    bool dragging = true;
    bool struckInside = false;
    QTimer::singleShot(0, module, [&] {
        struckInside = dragging;
        delete module;
    });
    Pointer pointer(swatch(host, dialog, name));
    pointer.press({3, 3});
    pointer.move({60, 3});
    dragging = false;
    pointer.release({60, 3});
    if (!struckInside)
        return 3;
    QCoreApplication::processEvents();
    return sharedColorDialog ? 4 : 0;
}

} // namespace

class TestDialogReceivers : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        open();
    }
    void cleanup()
    {
        closeAll();
        TestCase::cleanup();
    }
    void receiverSetsTheColor_data() { actRows(QStringLiteral("c")); }
    void receiverSetsTheColor();
    void destroyedInsideSignals_data() { actRows(QStringLiteral("."), false); }
    void destroyedInsideSignals();
    void destroyedAfterTyping_data();
    void destroyedAfterTyping();
    void destroyedWhileOpen();
    void hostDestroyedWhileOpen();
    void destroyedWhileDragged_data();
    void destroyedWhileDragged();
};

void TestDialogReceivers::receiverSetsTheColor()
{
    QFETCH(int, index);
    const QLxColor wanted{300, 0.25F, 0.625F};
    const Act act = allActs().at(static_cast<size_t>(index));
    connect(dialog(), &QLxColorDialog::colorChanged, m_log.context(),
            [this, wanted] { dialog()->setColor(wanted); });
    act.run(dialog());
    // The log was connected first: each emission, then the one that the receiver set off, inside out.
    const QStringList lines = m_log.take().filter(QStringLiteral("colorChanged"));
    const int edits = act.emits.count(QLatin1Char('c'));
    const bool closed = act.emits == QLatin1String("ccr"); // the second says so again, and is no edit
    QCOMPARE(lines.size(), closed ? 3 : 2 * edits);
    for (int i = 1; i < lines.size(); i += 2)
        QCOMPARE(lines.at(i), emitted(inward(wanted)));
    QCOMPARE(QStringLiteral("colorChanged(%1)").arg(asText(dialog()->getColor())), lines.at(1));
    QLxColorDialog other({20, 0.25F, 0.75F}, nullptr, nullptr);
    setMode(&other, dialog()->_colorField->getMode());
    other.setColor(wanted);
    QCOMPARE(views(dialog()), views(&other));
}

void TestDialogReceivers::destroyedInsideSignals()
{
    QFETCH(int, index);
    const Act act = allActs().at(static_cast<size_t>(index));
    const int edits = act.emits.count(QLatin1Char('c'));
    const bool ends = act.emits.size() > edits;
    // Qt's own check box goes on with itself after toggled().
    const bool later = act.name.startsWith(QLatin1String("check box"));
    for (const bool atHost : {false, true}) {
        for (const bool withModule : {true, false}) {
            const int count = atHost ? edits + (ends ? 2 : 0) : act.emits.size();
            for (int nth = 0; nth < count; ++nth) {
                open();
                int heard = 0;
                const auto strike = [&] {
                    QWidget *const victim = withModule ? m_module.data() : dialog();
                    if (heard++ == nth && later)
                        victim->deleteLater();
                    else if (heard == nth + 1)
                        delete victim;
                };
                if (atHost) {
                    connect(m_host, &QLxColorButton::temporaryColorChosen, m_log.context(), strike);
                    connect(m_host, &QLxColorButton::finalColorChosen, m_log.context(), strike);
                    connect(m_host, &QLxColorButton::userAccepted, m_log.context(), strike);
                    connect(m_host, &QLxColorButton::userSkipped, m_log.context(), strike);
                } else {
                    connect(dialog(), &QLxColorDialog::colorChanged, m_log.context(), strike);
                    connect(dialog(), &QDialog::accepted, m_log.context(), strike);
                    connect(dialog(), &QDialog::rejected, m_log.context(), strike);
                }
                act.run(dialog());
                // A host that outlives the dialog still says how it ended.
                const bool goesOn = atHost && !withModule && ends && nth == count - 2;
                QCOMPARE(heard, nth + (goesOn ? 2 : 1));
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QVERIFY(!sharedColorDialog);
                QCOMPARE(m_module.isNull(), withModule);
                QCoreApplication::processEvents();
            }
        }
    }
    open(); // the next one works
    dialog()->setColor({0, 1, 1});
    COMPARE_LOG(m_log, {"colorChanged(hsv 0 1 1)"});
}

void TestDialogReceivers::destroyedAfterTyping_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("key");
    for (int channel = 0; channel < 9; ++channel)
        QTest::newRow(channels[channel]) << channel << int(Qt::Key_Return);
    QTest::newRow("by leaving it") << 0 << int(Qt::Key_Tab);
    QTest::newRow("by a step") << 0 << int(Qt::Key_Up);
}

void TestDialogReceivers::destroyedAfterTyping()
{
    QFETCH(int, channel);
    QFETCH(int, key);
    for (const bool atHost : {false, true}) {
        open();
        if (atHost)
            connect(m_host, &QLxColorButton::temporaryColorChosen, m_module, &QObject::deleteLater);
        else
            connect(dialog(), &QLxColorDialog::colorChanged, m_module, &QObject::deleteLater);
        type(dialog(), channel, key == Qt::Key_Up ? QString() : QStringLiteral("0.25"));
        QTest::keyClick(boxOf(dialog(), channel), static_cast<Qt::Key>(key));
        QCOMPARE(m_log.take().size(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!m_module);
        QVERIFY(!sharedColorDialog);
    }
}

void TestDialogReceivers::destroyedWhileOpen()
{
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    type(dialog(), 0, QStringLiteral("12+")); // an edit that is not finished
    delete m_module;
    QVERIFY(!sharedColorDialog);
    QCoreApplication::processEvents();
    QLxColorButton survivor;
    press(&survivor);
    QVERIFY(sharedColorDialog);
    QCOMPARE(sharedColorDialog->parentWidget(), &survivor);
    QVERIFY(sharedColorDialog->isVisible());
}

void TestDialogReceivers::hostDestroyedWhileOpen()
{
    auto *const second = new QLxColorButton(m_module);
    const QPointer<QLxColorDialog> opened = dialog();
    delete m_host;
    QCOMPARE(dialog(), opened);
    QVERIFY(!opened->isVisible());
    opened->setColor({0, 1, 1}); // nobody is there
    QMetaObject::invokeMethod(opened, "reject");
    press(second);
    QVERIFY(opened->isVisible());
    m_log.take();
    m_log.watch(second, &QLxColorButton::temporaryColorChosen, "second");
    // The host goes away while the dialog tells it of an edit: that takes the dialog down, and no more.
    connect(second, &QLxColorButton::temporaryColorChosen, m_log.context(), [second] { delete second; });
    opened->_redSlider->setValue(0.5F);
    QVERIFY(m_log.take().size() == 1);
    QVERIFY(!opened->isVisible());
    QCOMPARE(views(opened).at(15), QStringLiteral("0.500"));
}

void TestDialogReceivers::destroyedWhileDragged_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : swatchNames)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestDialogReceivers::destroyedWhileDragged()
{
    QFETCH(QString, name);
    // Here a drag ends at once, and the pointer's events go on.
    dialog()->_custom_colors->addColor({120, 1, 1});
    Pointer pointer(swatch(m_host, dialog(), name));
    pointer.press({3, 3});
    pointer.move({60, 3});
    QVERIFY(swatch(m_host, dialog(), name)->findChild<QDrag *>());
    delete m_module;
    pointer.release({60, 3});
    QVERIFY(!sharedColorDialog);

    // While something is dragged over it; then that is dropped on the next one.
    QMimeData data;
    data.setColorData(QColor(Qt::green));
    for (const bool gone : {true, false}) {
        open();
        QWidget *const target = swatch(m_host, dialog(), name);
        QDragEnterEvent enter({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (gone)
            delete m_module;
        else
            QApplication::sendEvent(target, &drop);
        QCOMPARE(sharedColorDialog.isNull(), gone);
    }
    COMPARE_LOG(m_log, {}); // a drop inside the dialog is no edit

    // And in the middle of the drag itself.
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QLX_TEST_PLATFORM"), QStringLiteral("minimal"));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--drag"), name});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
}

int main(int argc, char **argv)
{
    pinTestEnvironment();
    QApplication application(argc, argv);
    pinTestLook();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--drag"))
        return destroyWhileDragging(arguments.value(2));
    TestDialogReceivers test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialogreceivers.moc"
