// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The button's look, its clicks, and the dialog that they open.
#include "ButtonProbe.h"
#include "QLxColorSpaces.h"
#include "TestCase.h"

#include <QPainter>

#include <limits>

namespace {

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();

} // namespace

class TestColorButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsDocumented();
    void styleSheetShowsTheColor_data();
    void styleSheetShowsTheColor();
    void styleSheetFollowsTheSettingOnlyWhenSet();
    void clickWithoutDialog();
    void clickOpensSharedDialog();
    void twoButtonsInTurn();
    void dialogClosedBySignalAlone();
    void dialogIsTold();
    void dialogParent_data();
    void dialogParent();
    void dialogGoneWithItsParent();
    void destructorHidesDialog();
    void anyMouseButtonAndTheKeyboardClick();
    void multiselect();
};

void TestColorButton::startsAsDocumented()
{
    QWidget parent;
    QLxColorButton button(&parent);
    QCOMPARE(button.objectName(), QStringLiteral("QLxColorButton"));
    QCOMPARE(button.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(button.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(button.isFlat());
    QVERIFY(button.acceptDrops());
    QVERIFY(button.showColorDialog());
    QCOMPARE(button.sizeHint(), QSize(20, 16));
    QVERIFY(button.getColor() == (QLxColor{0, 0, 0.8F}));
    QCOMPARE(button.styleSheet(), look(231, 231, 231));
}

void TestColorButton::styleSheetShowsTheColor_data()
{
    QTest::addColumn<QVector<float>>("hsv");
    QTest::addColumn<bool>("useGamma");
    QTest::addColumn<QString>("sheet");
    const auto row = [](const char *name, const QLxColor &c, bool useGamma, const QString &sheet) {
        QTest::newRow(name) << QVector<float>{c.hue, c.saturation, c.value} << useGamma << sheet;
    };
    row("white, encoded", {0, 0, 1}, true, look(254, 254, 254));
    row("white, linear", {0, 0, 1}, false, look(255, 255, 255));
    row("light grey, linear", {0, 0, 0.8F}, false, look(204, 204, 204));
    row("green, encoded", {120, 1, 0.5F}, true, look(0, 187, 0));
    row("above white", {0, 0, 5}, true, look(255, 255, 255));
    row("NaN is black", {0, Nan, 1}, true, look(0, 0, 0));
}

void TestColorButton::styleSheetShowsTheColor()
{
    QFETCH(QVector<float>, hsv);
    QFETCH(bool, useGamma);
    QLx::colorUseGamma = useGamma;
    QLxColorButton button;
    SignalLog log;
    watch(log, &button);
    button.setColor({hsv[0], hsv[1], hsv[2]});
    QTEST(button.styleSheet(), "sheet");
    COMPARE_LOG(log, {});
    QLx::colorUseGamma = true;
}

void TestColorButton::styleSheetFollowsTheSettingOnlyWhenSet()
{
    QLxColorButton button;
    QLx::colorUseGamma = false;
    QCOMPARE(button.styleSheet(), look(231, 231, 231));
    button.setColor(button.getColor()); // an equal colour, shown anew
    QCOMPARE(button.styleSheet(), look(204, 204, 204));
    QLx::colorUseGamma = true;
    button.setStyleSheet(QStringLiteral("/* a host's own */"));
    button.setColor(button.getColor());
    QCOMPARE(button.styleSheet(), look(231, 231, 231));
}

void TestColorButton::clickWithoutDialog()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorButton button;
    watch(log, &button);
    button.setShowColorDialog(false);
    QVERIFY(!button.property("showColorDialog").toBool());
    click(button);
    COMPARE_LOG(log, {"colorButtonClicked()"});
    QVERIFY(!sharedColorDialog);
    // A process that has no dialog at all.
    SharedColorDialog::setFactory(nullptr);
    button.setShowColorDialog(true);
    click(button);
    COMPARE_LOG(log, {"colorButtonClicked()"});
    QVERIFY(!sharedColorDialog);
}

void TestColorButton::clickOpensSharedDialog()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QWidget module;
    module.setObjectName(QStringLiteral("Module"));
    QLxColorButton button(&module);
    button.setColor({-30.0F, 0.5F, 0.5F}); // handed on by way of RGB: hue 0
    watch(log, &button);
    click(button);
    COMPARE_LOG(log, {"colorButtonClicked()", "dialog: made for hsv 0 0.5 0.5 in Module", "dialog: flag true",
                      "dialog: shown", "dialog: raised",
                      "dialog: setColor hsv 0 0.5 0.5, visible true, signals blocked true"});
    QVERIFY(!dialogs.current()->signalsBlocked());
    QVERIFY(!dialogs.current()->isModal());
    QVERIFY(button.getColor() == (QLxColor{-30.0F, 0.5F, 0.5F}));

    dialogs.current()->edit({10, 1, 1});
    COMPARE_LOG(log, {"temporaryColorChosen(hsv 10 1 1)"});
    QVERIFY(button.getColor() == (QLxColor{-30.0F, 0.5F, 0.5F}));
    dialogs.current()->accept();
    COMPARE_LOG(log,
                {"dialog: hidden", "dialog: flag true", "finalColorChosen(hsv 10 1 1)", "userAccepted()"});
    QVERIFY(button.getColor() == (QLxColor{10, 1, 1}));
    QCOMPARE(button.styleSheet(), look(254, 113, 0));

    click(button);
    log.take();
    dialogs.current()->edit({20, 1, 1});
    dialogs.current()->reject();
    COMPARE_LOG(log, {"temporaryColorChosen(hsv 20 1 1)", "dialog: hidden", "dialog: flag true",
                      "finalColorChosen(hsv 10 1 1)", "userSkipped()"});
    QVERIFY(button.getColor() == (QLxColor{10, 1, 1}));
}

void TestColorButton::twoButtonsInTurn()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QWidget window;
    window.setObjectName(QStringLiteral("window"));
    QLxColorButton first(&window);
    QLxColorButton second(&window);
    first.setColor({60, 1, 1});
    second.setColor({240, 1, 1});
    watch(log, &first, "first.");
    watch(log, &second, "second.");
    int outsiders = 0;
    click(first);
    QObject::connect(dialogs.current(), &QDialog::accepted, log.context(), [&] { ++outsiders; });
    COMPARE_LOG(log, {"first.colorButtonClicked()", "dialog: made for hsv 60 1 1 in window",
                      "dialog: flag true", "dialog: shown", "dialog: raised",
                      "dialog: setColor hsv 60 1 1, visible true, signals blocked true"});
    const FakeDialog *const dialog = dialogs.current();
    click(second);
    COMPARE_LOG(log, {"second.colorButtonClicked()", "dialog: flag true", "dialog: raised",
                      "dialog: setColor hsv 240 1 1, visible true, signals blocked true"});
    QCOMPARE(dialogs.current(), dialog);
    dialogs.current()->edit({1, 1, 1});
    dialogs.current()->accept();
    COMPARE_LOG(log, {"second.temporaryColorChosen(hsv 1 1 1)", "dialog: hidden", "dialog: flag true",
                      "second.finalColorChosen(hsv 1 1 1)", "second.userAccepted()"});
    QCOMPARE(outsiders, 0); // every earlier connection is cut, whoever made it
    QVERIFY(first.getColor() == (QLxColor{60, 1, 1}));

    click(second); // the same button twice hears everything once
    log.take();
    dialogs.current()->edit({2, 1, 1});
    COMPARE_LOG(log, {"second.temporaryColorChosen(hsv 2 1 1)"});
}

void TestColorButton::dialogClosedBySignalAlone()
{
    // A dialog that only says that it was accepted is hidden by the button, after it was told.
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorButton button;
    click(button);
    watch(log, &button);
    QObject::connect(&button, &QLxColorButton::finalColorChosen, log.context(),
                     [&](QLxColor color) { QVERIFY(button.getColor() == color); });
    dialogs.current()->edit({10, 1, 1});
    log.take();
    Q_EMIT dialogs.current()->accepted();
    COMPARE_LOG(log,
                {"dialog: flag true", "dialog: hidden", "finalColorChosen(hsv 10 1 1)", "userAccepted()"});
    click(button);
    log.take();
    Q_EMIT dialogs.current()->rejected();
    COMPARE_LOG(log,
                {"dialog: flag true", "dialog: hidden", "finalColorChosen(hsv 10 1 1)", "userSkipped()"});
}

void TestColorButton::dialogIsTold()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorButton button;
    click(button);
    dialogs.current()->blockSignals(true); // a host's own blocking stays
    click(button);
    QVERIFY(dialogs.current()->signalsBlocked());
}

void TestColorButton::dialogParent_data()
{
    QTest::addColumn<QString>("ancestors"); // from the window down to the button
    QTest::addColumn<QString>("parent");
    const auto row = [](const char *name, const char *ancestors, const char *parent) {
        QTest::newRow(name) << QString::fromLatin1(ancestors) << QString::fromLatin1(parent);
    };
    row("topmost without Module", "window page", "window");
    row("Module", "window Module page", "Module");
    row("nearest Module", "Module inner Module page", "Module below inner");
    row("case matters", "window module", "window");
    row("alone", "", "QLxColorButton");
}

void TestColorButton::dialogParent()
{
    QFETCH(QString, ancestors);
    QFETCH(QString, parent);
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QWidget *innermost = nullptr;
    QWidget *top = nullptr;
    const QStringList names = ancestors.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        innermost = new QWidget(innermost, Qt::Window); // window boundaries do not stop the walk
        innermost->setObjectName(name);
        if (!top)
            top = innermost;
    }
    auto *const button = new QLxColorButton(innermost);
    const std::unique_ptr<QWidget> owner(top ? top : button);
    click(*button);
    const QWidget *const actual = dialogs.current()->parentWidget();
    QCOMPARE(actual->objectName(), parent.section(QLatin1Char(' '), 0, 0));
    if (parent.contains(QLatin1String("below")))
        QCOMPARE(actual->parentWidget()->objectName(), parent.section(QLatin1Char(' '), 2));
}

void TestColorButton::dialogGoneWithItsParent()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorButton survivor;
    watch(log, &survivor, "survivor.");
    {
        QWidget window;
        window.setObjectName(QStringLiteral("short-lived"));
        QLxColorButton button(&window);
        click(button);
        click(survivor);
        QVERIFY(sharedColorDialog);
        log.take();
    }
    QVERIFY(!sharedColorDialog);
    log.take();
    click(survivor);
    COMPARE_LOG(log,
                {"survivor.colorButtonClicked()",
                 LogLine(QStringLiteral("dialog: made for hsv 0 0 %1 in QLxColorButton").arg(asText(0.8F))),
                 "dialog: flag true", "dialog: shown", "dialog: raised",
                 LogLine(QStringLiteral("dialog: setColor hsv 0 0 %1, visible true, signals blocked true")
                             .arg(asText(0.8F)))});
}

void TestColorButton::destructorHidesDialog()
{
    SignalLog log;
    const FakeDialogs dialogs(&log);
    QLxColorButton opener;
    click(opener);
    QVERIFY(dialogs.current()->isVisible());
    auto bystander = std::make_unique<QLxColorButton>(); // never opened anything
    bystander.reset();
    QVERIFY(dialogs.current());
    QVERIFY(!dialogs.current()->isVisible());
}

void TestColorButton::anyMouseButtonAndTheKeyboardClick()
{
    QLxColorButton button;
    button.setShowColorDialog(false);
    SignalLog log;
    watch(log, &button);
    log.watch(&button, &QLxColorButton::clicked, "clicked");
    log.watch(&button, &QLxColorButton::pressed, "pressed");
    for (auto which : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        click(button, which);
        COMPARE_LOG(log, {"colorButtonClicked()", "clicked(true)"});
    }
    Pointer(&button).release({3, 3}); // without a press
    COMPARE_LOG(log, {});
    QTest::keyClick(&button, Qt::Key_Space);
    COMPARE_LOG(log, {"pressed()", "colorButtonClicked()", "clicked(false)"});
    button.setEnabled(false);
    click(button);
    COMPARE_LOG(log, {});
}

void TestColorButton::multiselect()
{
    QLxColorButton button;
    button.setColor({200, 0.7F, 0.5F});
    button.resize(62, 16);
    const auto picture = [&button] {
        QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        button.render(&image);
        return image;
    };
    QImage expected = picture();
    QCOMPARE(expected.pixelColor(30, 8), QLx::toQColor(button.getColor()));
    button.setProperty("multiselect", true);
    const QImage marked = picture();
    QVERIFY(marked != expected);
    QPainter painter(&expected);
    QLinearGradient gradient(QPointF(0, 0.1), QPointF(0, 0.45));
    gradient.setColorAt(0, QColor(235, 185, 55, 175));
    gradient.setColorAt(1, QColor(165, 155, 45, 135));
    painter.fillRect(expected.rect(), gradient);
    QCOMPARE(marked, expected);
    for (int w = 0; w < 15; ++w) {
        for (int h = 0; h < 15; ++h) {
            button.resize(w, h);
            if (w > 0 && h > 0)
                QVERIFY(!picture().isNull());
        }
    }
}

QLX_TEST_MAIN(TestColorButton)
#include "tst_colorbutton.moc"
