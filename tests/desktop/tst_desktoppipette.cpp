// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The pipette on a real X display: what it samples is what another program has painted, and input works
// normally afterwards. QLX_TEST_PLATFORM must be xcb. With the argument --patches the program is that other
// program.
#include "Desktop.h"
#include "QLxColorButton.h"
#include "QLxColorDialog_p.h"
#include "QLxColorManipulator.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QAction>
#include <QLineEdit>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <cstdio>

namespace {

constexpr int PatchCount = 50;
constexpr int PatchSize = 30;
const QRect patchWindow(0, 0, 10 * PatchSize, 5 * PatchSize);

QColor patchColor(int index)
{
    QRandomGenerator random(2024);
    QColor color;
    for (int i = 0; i <= index; ++i)
        color = QColor(random.bounded(256), random.bounded(256), random.bounded(256));
    return color;
}

QPoint patchCentre(int index)
{
    return patchWindow.topLeft() + QPoint(index % 10, index / 10) * PatchSize +
           QPoint(PatchSize, PatchSize) / 2;
}

const QString click = QStringLiteral("mousedown 1 mouseup 1 "); // xdotool's own takes its time

// Clicks on the pipette's button and waits until the pipette has the mouse and the keyboard.
bool startPicking(const QLxColorDialog &dialog)
{
    return onDesktop(moveTo(dialog._pick_color) + click) && QTest::qWaitFor([&] {
               const QWidget *const overlay = QWidget::mouseGrabber();
               return dialog._pick_color->isChecked() && overlay && overlay->windowHandle()->isExposed();
           });
}

// What sampling a pixel of this colour gives, in boundary form.
QLxColor sampled(const QColor &pixel, bool useGamma)
{
    const auto channel = [](int level) { return static_cast<float>(Reference::F(float(level)) / 255.0F); };
    const QLxColor encoded =
        Reference::rgbToHsv({channel(pixel.red()), channel(pixel.green()), channel(pixel.blue())});
    return useGamma ? Reference::eachChannel(encoded, Reference::srgbToLinear) : encoded;
}

// The other program. Says what input it gets, as none is meant for it.
class Patches : public QWidget
{
public:
    Patches()
    {
        setWindowFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
        setGeometry(patchWindow);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        for (int i = 0; i < PatchCount; ++i)
            painter.fillRect(
                QRect(patchCentre(i) - QPoint(PatchSize, PatchSize) / 2, QSize(PatchSize, PatchSize)),
                patchColor(i));
    }
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress ||
            event->type() == QEvent::MouseButtonRelease) {
            std::printf("got event %d\n", int(event->type()));
            std::fflush(stdout);
        }
        return QWidget::event(event);
    }
};

// Notes the keys that reach any widget but the pipette's own window.
class KeyWatch : public QObject
{
public:
    QStringList reached;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress && watched->isWidgetType() && !QWidget::keyboardGrabber())
            reached.append(QString::fromLatin1(watched->metaObject()->className()));
        return false;
    }
};

} // namespace

class TestDesktopPipette : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void samplesWhatIsPainted_data();
    void samplesWhatIsPainted();
    void endsWithoutPicking_data();
    void endsWithoutPicking();
    void fromAHostToAPixelAndBack_data();
    void fromAHostToAPixelAndBack();
    void dialogDeletedByThePickedColor();

private:
    QProcess m_patches;
};

void TestDesktopPipette::initTestCase()
{
    m_patches.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--patches")});
    QVERIFY(m_patches.waitForStarted());
    const QPoint last = patchCentre(PatchCount - 1);
    QTRY_COMPARE(
        QColor(
            QGuiApplication::primaryScreen()->grabWindow(0, last.x(), last.y(), 1, 1).toImage().pixel(0, 0)),
        patchColor(PatchCount - 1));
}

void TestDesktopPipette::cleanupTestCase()
{
    m_patches.terminate();
    QVERIFY(m_patches.waitForFinished());
}

void TestDesktopPipette::cleanup()
{
    QLx::colorUseGamma = true;
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
    QCOMPARE(m_patches.readAllStandardOutput(), QByteArray()); // nothing was meant for the other program
    TestCase::cleanup();
}

void TestDesktopPipette::samplesWhatIsPainted_data()
{
    QTest::addColumn<bool>("useGamma");
    QTest::newRow("sRGB on") << true;
    QTest::newRow("sRGB off") << false;
}

void TestDesktopPipette::samplesWhatIsPainted()
{
    QFETCH(bool, useGamma);
    QLx::colorUseGamma = useGamma;
    QLxColorDialog dialog({}, nullptr, nullptr);
    dialog.move(320, 100);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    SignalLog log;
    log.watch(&dialog, &QLxColorDialog::colorChanged, "colorChanged");
    for (int i = 0; i < PatchCount; ++i) {
        QVERIFY(startPicking(dialog));
        QVERIFY(onDesktop(moveTo(patchCentre(i)) + click));
        QVERIFY(QTest::qWaitFor([&] { return !dialog._pick_color->isChecked() && !log.text().isEmpty(); }));
        const QLxColor expected = sampled(patchColor(i), useGamma);
        // The dialog's own colour is linear in both settings.
        const QLxColor own = useGamma ? expected : Reference::eachChannel(expected, Reference::srgbToLinear);
        const QLxColor given = useGamma ? own : Reference::eachChannel(own, Reference::linearToSrgb);
        COMPARE_LOG(log, {QStringLiteral("colorChanged(%1)").arg(asText(given))});
        // The levels survive.
        const Reference::Triple rgb = Reference::hsvToRgb(given);
        const auto level = [useGamma](float channel) {
            return qRound((useGamma ? Reference::linearToSrgb(channel) : channel) * 255.0F);
        };
        QCOMPARE(QColor(level(rgb[0]), level(rgb[1]), level(rgb[2])), patchColor(i));
    }
}

void TestDesktopPipette::endsWithoutPicking_data()
{
    QTest::addColumn<QString>("deed");
    const QString onPatch = moveTo(patchCentre(7));
    QTest::newRow("right click on the desktop") << onPatch + QStringLiteral("click 3");
    QTest::newRow("middle click on the desktop") << onPatch + QStringLiteral("click 2");
    QTest::newRow("Escape") << onPatch + QStringLiteral("key Escape");
    QTest::newRow("a letter") << onPatch + QStringLiteral("key a");
    QTest::newRow("a shortcut of the application") << onPatch + QStringLiteral("key F5");
    QTest::newRow("click on the button") << QStringLiteral("BUTTON click 1");
    QTest::newRow("click inside the dialog") << QStringLiteral("LABEL click 1");
}

void TestDesktopPipette::endsWithoutPicking()
{
    QFETCH(QString, deed);
    QLxColorDialog dialog({30, 0.5F, 0.5F}, nullptr, nullptr);
    dialog.move(320, 100);
    QLineEdit line(&dialog); // a widget of the application that takes keys
    line.setGeometry(500, 500, 100, 30);
    QAction shortcut(&dialog);
    shortcut.setShortcut(QKeySequence(Qt::Key_F5));
    dialog.addAction(&shortcut);
    dialog.show();
    line.raise();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(onDesktop(moveTo(&line) + QStringLiteral("click 1")));
    QTRY_VERIFY(line.hasFocus());

    SignalLog log;
    log.watch(&dialog, &QLxColorDialog::colorChanged, "colorChanged");
    connect(&shortcut, &QAction::triggered, &dialog, [&log] { log.note(QStringLiteral("shortcut")); });
    KeyWatch keys;
    qApp->installEventFilter(&keys);
    deed.replace(QStringLiteral("BUTTON "), moveTo(dialog._pick_color))
        .replace(QStringLiteral("LABEL "), moveTo(dialog._r_label));
    QVERIFY(startPicking(dialog));
    QVERIFY(onDesktop(deed));
    QTRY_VERIFY(!dialog._pick_color->isChecked());
    COMPARE_LOG(log, {});
    QCOMPARE(keys.reached, QStringList());
    QCOMPARE(asText(dialog.getColor()), asText(QLxColor{30, 0.5F, 0.5F}));
    QCOMPARE(line.text(), QString());

    // Input works normally afterwards.
    QVERIFY(onDesktop(moveTo(&line) + QStringLiteral("click 1 sleep 0.05 type abc")));
    QTRY_COMPARE(line.text(), QStringLiteral("abc"));
    QVERIFY(onDesktop(moveTo(dialog._redSlider) + QStringLiteral("click 1")));
    QTRY_VERIFY(!log.text().isEmpty());
}

void TestDesktopPipette::fromAHostToAPixelAndBack_data()
{
    samplesWhatIsPainted_data();
}

void TestDesktopPipette::fromAHostToAPixelAndBack()
{
    QFETCH(bool, useGamma);
    QLx::colorUseGamma = useGamma;
    QWidget module;
    module.setObjectName(QStringLiteral("Module"));
    auto *const host = new QLxColorManipulator(&module);
    (new QVBoxLayout(&module))->addWidget(host);
    module.setGeometry(20, 300, 200, 60);
    module.show();
    QVERIFY(QTest::qWaitForWindowExposed(&module));
    auto *const button = host->findChild<QLxColorButton *>();
    SignalLog log;
    log.watch(button, &QLxColorButton::colorButtonClicked, "button.clicked");
    log.watch(button, &QLxColorButton::temporaryColorChosen, "button.temporary");
    log.watch(button, &QLxColorButton::finalColorChosen, "button.final");
    log.watch(button, &QLxColorButton::userAccepted, "button.accepted");
    using M = QLxColorManipulator;
    log.watch(host, QOverload<QLxColor>::of(&M::dialogColorChanged), "host.dialogColorChanged");
    log.watch(host, QOverload<QLxColor>::of(&M::colorChanged), "host.colorChanged");
    log.watch(host, &M::finalColorSet, "host.finalColorSet");

    QVERIFY(onDesktop(moveTo(button) + QStringLiteral("click 1")));
    QTRY_VERIFY(sharedColorDialog && sharedColorDialog->isVisible());
    auto *const dialog = qobject_cast<QLxColorDialog *>(sharedColorDialog.data());
    QVERIFY(dialog);
    QCOMPARE(dialog->parentWidget(), &module);
    dialog->move(320, 100);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QTRY_VERIFY(dialog->mapToGlobal({}).x() >= 320); // out of the patches' way
    log.watch(dialog, &QLxColorDialog::colorChanged, "dialog");
    QVERIFY(startPicking(*dialog));
    QVERIFY(onDesktop(moveTo(patchCentre(23)) + click));
    QTRY_VERIFY(!dialog->_pick_color->isChecked() && log.text().contains(QStringLiteral("dialog(")));
    QVERIFY(onDesktop(moveTo(dialog->_accept) + QStringLiteral("click 1")));
    QTRY_VERIFY(!dialog->isVisible());

    QLxColor color = sampled(patchColor(23), useGamma);
    if (!useGamma)
        color = Reference::eachChannel(Reference::eachChannel(color, Reference::srgbToLinear),
                                       Reference::linearToSrgb);
    const QString c = asText(color);
    // The host was connected to its button before the log was.
    COMPARE_LOG(log, {"button.clicked()", QStringLiteral("host.dialogColorChanged(%1)").arg(c),
                      QStringLiteral("host.colorChanged(%1)").arg(c),
                      QStringLiteral("button.temporary(%1)").arg(c), QStringLiteral("dialog(%1)").arg(c),
                      QStringLiteral("host.colorChanged(%1)").arg(c),
                      QStringLiteral("host.finalColorSet(%1)").arg(c),
                      QStringLiteral("button.final(%1)").arg(c), "button.accepted()"});
    QCOMPARE(asText(button->getColor()), c);
}

void TestDesktopPipette::dialogDeletedByThePickedColor()
{
    QPointer<QLxColorDialog> dialog = new QLxColorDialog({}, nullptr, nullptr);
    dialog->move(320, 100);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    connect(dialog, &QLxColorDialog::colorChanged, this, [&dialog] { delete dialog; });
    QVERIFY(startPicking(*dialog));
    QVERIFY(onDesktop(moveTo(patchCentre(3)) + click));
    QTRY_VERIFY(!dialog);
}

int main(int argc, char **argv)
{
    pinTestEnvironment();
    QApplication application(argc, argv);
    pinTestLook();
    if (QCoreApplication::arguments().value(1) == QLatin1String("--patches")) {
        Patches patches;
        patches.show();
        return QApplication::exec();
    }
    TestDesktopPipette test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_desktoppipette.moc"
