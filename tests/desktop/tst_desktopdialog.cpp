// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Whole sessions with the colour dialog, from a form's button and back, by the real pointer and keys of an X
// display under a window manager. QLX_TEST_PLATFORM must be xcb. The first one leaves pictures of its steps
// in the folder tst_desktopdialog-film beside the program, all of them in film.png there.
#include "../dialog/DialogOracle.h"
#include "Desktop.h"
#include "QLxColorButton.h"
#include "QLxColorDialog_p.h"
#include "QLxColorManipulator.h"
#include "QLxColorSpaces.h"
#include "TestCase.h"

#include <QFormLayout>
#include <QTimer>

#include <optional>

namespace {

const QString host = QStringLiteral("host");

/// A colour as a drag carries it.
QLxColor dragged(const QLxColor &color)
{
    const Reference::Triple rgb = Reference::hsvToRgb(color);
    const auto limited = [](float x) { return double(std::min(std::max(x, 0.0F), 1.0F)); };
    const QColor data = QColor::fromRgbF(limited(rgb[0]), limited(rgb[1]), limited(rgb[2]));
    return Reference::rgbToHsv({float(data.redF()), float(data.greenF()), float(data.blueF())});
}

/// What the host says of a colour, in its four forms.
QStringList fourForms(const char *signal, const QLxColor &color)
{
    const Reference::Triple rgb = Reference::hsvToRgb(color);
    return {
        emission(host, signal), emission(host, signal, color), emission(host, signal, rgb[0], rgb[1], rgb[2]),
        emission(host, signal, Reference::level(rgb[0]), Reference::level(rgb[1]), Reference::level(rgb[2]))};
}

} // namespace

class TestDesktopDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void session();
    void typed_data();
    void typed();
    void returnClosesNothing();
    void cancelled_data();
    void cancelled();

private:
    template <typename... Args>
    void watch(void (QLxColorManipulator::*signal)(Args...), const char *name)
    {
        connect(m_host, signal, m_log.context(),
                [=](Args... args) { m_log.note(emission(host, name, args...)); });
    }

    // What the user does. The captions are those of the film.
    bool open();
    void act(const QString &commands, const char *caption = nullptr);
    void settle(const char *caption);
    void film(const char *caption);
    void pull(QWidget *picker, const QPoint &from, const QPoint &to, const char *caption = nullptr);
    void typeInto(const QLxDoubleSpiner *box, const QString &text, const QString &taken);
    void drop(const QWidget *from, QWidget *to, const char *onTheWay, const char *caption);
    QWidget *cell(int index) const;
    QLxDoubleSpiner *box(int channel) const;

    // What is to be expected then, beside what there is.
    void follow(const QWidget *picker, const QPoint &at);
    void edited();
    void reported(const QLxColor &color);
    void finished(const QLxColor &color);
    QString problem() const;

    QScopedPointer<QWidget> m_module;
    QLxColorManipulator *m_host = nullptr;
    QLxColorButton *m_button = nullptr;
    QPointer<QLxColorDialog> m_dialog;
    std::optional<DialogOracle> m_oracle;
    QPoint m_lastPick; // where the picker in use saw the pointer last
    SignalLog m_log;
    QStringList m_expected; // of the log, from the beginning of the session
    std::optional<Film> m_film;
    const bool m_useGammaBefore = QLx::colorUseGamma;
};

void TestDesktopDialog::init()
{
    TestCase::init();
    m_module.reset(new QWidget);
    m_module->setObjectName(QStringLiteral("Module"));
    m_module->setWindowTitle(QStringLiteral("Tint"));
    m_host = new QLxColorManipulator(m_module.data());
    m_button = m_host->findChild<QLxColorButton *>();
    (new QFormLayout(m_module.data()))->addRow(QStringLiteral("Tint"), m_host);
    m_module->setGeometry(20, 300, 250, 60);
    m_module->show();
    QVERIFY(QTest::qWaitForWindowActive(m_module.data()));

    using M = QLxColorManipulator;
    watch(&M::buttonPressed, "buttonPressed");
    watch(&M::sliderPressed, "sliderPressed");
    watch(&M::sliderReleased, "sliderReleased");
    watch(&M::sliderColorChanged, "sliderColorChanged");
    watch(QOverload<>::of(&M::colorChanged), "colorChanged");
    watch(QOverload<QLxColor>::of(&M::colorChanged), "colorChanged");
    watch(QOverload<int, int, int>::of(&M::colorChanged), "colorChanged");
    watch(QOverload<float, float, float>::of(&M::colorChanged), "colorChanged");
    watch(QOverload<>::of(&M::dialogColorChanged), "dialogColorChanged");
    watch(QOverload<QLxColor>::of(&M::dialogColorChanged), "dialogColorChanged");
    watch(QOverload<int, int, int>::of(&M::dialogColorChanged), "dialogColorChanged");
    watch(QOverload<float, float, float>::of(&M::dialogColorChanged), "dialogColorChanged");
    watch(&M::finalColorSet, "finalColorSet");
    watch(&M::cancelled, "cancelled");
}

void TestDesktopDialog::cleanup()
{
    // The custom colours stay, as nothing can free a cell: each session starts from those that it finds.
    m_module.reset();
    m_log.take();
    m_expected.clear();
    m_film.reset();
    QLx::colorUseGamma = m_useGammaBefore;
    QVERIFY(!sharedColorDialog);
    TestCase::cleanup();
}

/// Clicks on the host's button and puts the dialog beside the host.
bool TestDesktopDialog::open()
{
    m_expected << emission(host, "buttonPressed");
    if (!onDesktop(clickOn(m_button)) ||
        !QTest::qWaitFor([] { return sharedColorDialog && sharedColorDialog->isVisible(); }))
        return false;
    const QLxColor color = Reference::rgbToHsv(Reference::hsvToRgb(m_button->getColor()));
    if (!m_dialog) {
        m_dialog = qobject_cast<QLxColorDialog *>(sharedColorDialog.data());
        const QLxColorArray &array = *m_dialog->_custom_colors;
        std::vector<ExpectedCell> cells;
        for (int i = 0; i < 11; ++i)
            cells.push_back({array.getColor(i), array.isFreeCell(i)});
        m_oracle.emplace(color, QLx::colorUseGamma, cells);
    } else {
        m_oracle->setColor(color);
    }
    m_oracle->log.clear(); // the host hears nothing of the colour that it gives
    const QColor current = Reference::display(m_oracle->currentSwatch.color, m_oracle->useGamma);
    if (m_dialog->parentWidget() != m_module.data() || !QTest::qWaitForWindowActive(m_dialog) ||
        !QTest::qWaitFor([this] { return m_dialog->y() < m_dialog->geometry().y(); }) || // it has its frame
        !seen(m_dialog->_current_color, current))
        return false;
    film("opened where the window manager puts it");
    m_dialog->move(310, 40);
    return seen(m_dialog->_current_color, current) && m_dialog->pos() == QPoint(310, 40);
}

/// Runs xdotool after an edit of the oracle.
void TestDesktopDialog::act(const QString &commands, const char *caption)
{
    edited();
    QVERIFY(onDesktop(commands));
    settle(caption);
}

/// Waits until the log, and all that the dialog shows, are as they should be by now.
void TestDesktopDialog::settle(const char *caption)
{
    if (!QTest::currentTestFailed()) // all the rest of a session can only fail too, each time after the wait
        QTRY_COMPARE_WITH_TIMEOUT(problem(), QString(), 15000);
    film(caption);
}

void TestDesktopDialog::film(const char *caption)
{
    if (m_film && caption)
        m_film->shoot(QLatin1String(caption), calm());
}

/// Drags in a field or a slider, between points of its own.
void TestDesktopDialog::pull(QWidget *picker, const QPoint &from, const QPoint &to, const char *caption)
{
    Onlooker onlooker([this](const QWidget *widget, const QEvent *event) {
        const auto *const mouse = dynamic_cast<const QMouseEvent *>(event);
        if (mouse && mouse->buttons() == Qt::LeftButton) // neither the way there nor the release
            follow(widget, mouse->pos());
    });
    picker->installEventFilter(&onlooker);
    m_lastPick = {};
    QVERIFY(onDesktop(drag(picker->mapToGlobal(from), picker->mapToGlobal(to))));
    QTRY_COMPARE_WITH_TIMEOUT(m_lastPick, to, 15000);
    settle(caption);
}

void TestDesktopDialog::follow(const QWidget *picker, const QPoint &at)
{
    m_lastPick = at;
    const Reference::F fraction = Reference::F(float(at.x())) / float(picker->width());
    const float position = std::min(std::max(float(fraction), 0.0F), 1.0F);
    if (picker == m_dialog->_colorField)
        m_oracle->pick(at.x(), at.y(), picker->width(), picker->height());
    else if (picker == m_dialog->_colorFieldSlider)
        m_oracle->drag(m_oracle->fieldSlider, position);
    for (ExpectedSlider &slider : m_oracle->sliders) {
        if (slider.name == picker->objectName())
            m_oracle->drag(slider, position);
    }
    edited();
}

/// Replaces the text of a spin box, which takes some of the new one while it is typed.
void TestDesktopDialog::typeInto(const QLxDoubleSpiner *box, const QString &text, const QString &taken)
{
    QVERIFY(onDesktop(clickOn(box)));
    QTRY_VERIFY(box->hasFocus()); // a window manager may hold clicks back, but not keys
    QVERIFY(onDesktop(QStringLiteral("key ctrl+a ") + typing(text)));
    QTRY_COMPARE(box->text(), taken);
}

/// Drags a swatch onto another one.
void TestDesktopDialog::drop(const QWidget *from, QWidget *to, const char *onTheWay, const char *caption)
{
    bool shot = false;
    Onlooker onlooker([&](const QWidget * /*widget*/, const QEvent *event) {
        if (event->type() == QEvent::DragMove && m_film && !std::exchange(shot, true))
            QTimer::singleShot(30, this, // what the drag has uncovered is painted by then
                               [=] { m_film->shoot(QLatin1String(onTheWay), true); });
    });
    to->installEventFilter(&onlooker);
    act(drag(from->mapToGlobal(from->rect().center()), to->mapToGlobal(to->rect().center())), caption);
}

QWidget *TestDesktopDialog::cell(int index) const
{
    return m_dialog->_custom_colors->layout()->itemAt(index)->widget();
}

QLxDoubleSpiner *TestDesktopDialog::box(int channel) const
{
    return m_dialog->findChild<QLxDoubleSpiner *>(m_oracle->spiners.at(size_t(channel)).name);
}

/// What the host says after the last edit in the dialog.
void TestDesktopDialog::edited()
{
    for (const QString &line : qAsConst(m_oracle->log)) {
        if (line.startsWith(QStringLiteral("dialog: colorChanged(")))
            reported(m_oracle->boundary());
    }
    m_oracle->log.clear();
}

/// What the host says of a colour in the dialog.
void TestDesktopDialog::reported(const QLxColor &color)
{
    m_expected << fourForms("dialogColorChanged", color) << fourForms("colorChanged", color);
}

/// What the host says when its button has got a colour for good.
void TestDesktopDialog::finished(const QLxColor &color)
{
    m_expected << fourForms("colorChanged", color) << emission(host, "finalColorSet", color);
}

/// The first thing that is not as it should be, and what it should be.
QString TestDesktopDialog::problem() const
{
    QStringList is = m_log.text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList should = m_expected;
    if (is == should && m_dialog) {
        const QLxColorDialog &d = *m_dialog;
        const DialogOracle &o = *m_oracle;
        const QLabel *const labels[] = {d._h_label, d._s_label,     d._v_label,     d._r_label,    d._g_label,
                                        d._b_label, d._Lstar_label, d._astar_label, d._bstar_label};
        is << exactText(d.getColor());
        should << exactText(o.boundary());
        for (int i = OnHue; i <= OnBstar; ++i) {
            const ExpectedSlider &slider = o.sliders.at(size_t(i));
            is << exactText(d.findChild<QLxColorSlider *>(slider.name)->getValue()) << box(i)->text()
               << labels[i]->text();
            should << exactText(slider.position) << o.spiners.at(size_t(i)).text() << o.labels.at(size_t(i));
        }
        is << exactText(int(d._colorField->getMode())) << exactText(d._colorField->getColor())
           << exactText(int(d._colorFieldSlider->getMode())) << exactText(d._colorFieldSlider->getValue())
           << d._current_color->styleSheet() << d._previous_color->styleSheet()
           << exactText(d._useGamma->isChecked()) << exactText(QLx::colorUseGamma);
        should << exactText(o.field.mode) << exactText(o.field.color) << exactText(o.fieldSlider.mode)
               << exactText(o.fieldSlider.position) << o.currentSwatch.look << o.previousSwatch.look
               << exactText(o.useGamma) << exactText(o.useGamma);
        for (int i = 0; i < 11; ++i) {
            const ExpectedCell &expected = o.cells.at(size_t(i));
            is << exactText(d._custom_colors->isFreeCell(i)) << exactText(d._custom_colors->getColor(i));
            should << exactText(expected.isFree) << exactText(expected.color);
        }
    }
    return firstDifference(is, should);
}

void TestDesktopDialog::session()
{
    m_film.emplace();
    m_film->begin();
    film("the form");
    QVERIFY(open());
    pull(m_dialog->_colorField, {80, 250}, {250, 90}, "dragged in the field");

    QLxDoubleSpiner *const blue = m_dialog->_blueSpiner;
    typeInto(blue, QStringLiteral("2*0.2"), QStringLiteral("2*0.2"));
    film("typed 2 times 0.2 as blue");
    m_oracle->commit(OnBlue, 0.4);
    act(QStringLiteral("key Return"), "Return");
    QCOMPARE(blue->text(), QStringLiteral("0.400"));

    const QWidget *const slider = m_dialog->_greenSlider;
    pull(m_dialog->_greenSlider, {20, 8}, {slider->width() / 2, 8}, "dragged the green slider");
    m_oracle->enterMode(OnSaturation);
    act(clickOnMark(m_dialog->_saturationButton), "saturation mode");
    pull(m_dialog->_colorFieldSlider, {280, 8}, {200, 12}, "dragged the slider below the field");
    m_oracle->enterMode(OnLstar);
    act(clickOnMark(m_dialog->_lstarButton), "L mode");
    pull(m_dialog->_colorField, {150, 150}, {170, 60}, "dragged in the field of L");
    m_oracle->setUseGamma(false);
    act(clickOnMark(m_dialog->_useGamma), "sRGB off");

    m_oracle->currentCell = 2;
    act(moveTo(cell(2)) + QStringLiteral("mousedown 3 mouseup 3"), "chose the third cell");
    m_oracle->storeColor();
    act(clickOn(m_dialog->_store_custom_color), "stored the color there");
    const QLxColor stored = m_oracle->cells[2].color;
    QVERIFY(seen(cell(2), Reference::display(stored, false)));
    pull(m_dialog->_hueSlider, {30, 8}, {slider->width() * 2 / 3, 8}, "another hue");
    m_oracle->selectCurrentCell();
    act(clickOn(cell(2)), "picked the stored color");

    const QLxColor carried = dragged(stored);
    m_oracle->cells[6] = {carried, false};
    drop(cell(2), cell(6), "dragging to the seventh cell", "dropped there");
    QVERIFY(seen(cell(6), Reference::display(carried, false)));
    finished(carried);
    drop(cell(6), m_button, "dragging to the form", "dropped on its button");
    QCOMPARE(asText(m_button->getColor()), asText(carried));
    QVERIFY(seen(m_button, Reference::display(carried, false)));
    m_oracle->cells[10] = {dragged(carried), false}; // and the button was not clicked
    drop(m_button, cell(10), "dragging from the form", "dropped on the last cell");

    m_oracle->setUseGamma(true);
    act(clickOnMark(m_dialog->_useGamma), "sRGB on");
    pull(m_dialog->_valueSlider, {40, 8}, {slider->width() - 12, 8}, "dragged the value slider");
    const QLxColor accepted = m_oracle->boundary();
    finished(accepted);
    act(clickOn(m_dialog->_accept));
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(QTest::qWaitForWindowActive(m_module.data()));
    QCOMPARE(asText(m_button->getColor()), asText(accepted));
    QVERIFY(seen(m_button, Reference::display(accepted, true)));
    QCOMPARE(m_host->findChild<QLxColorSlider *>()->getValue(), Reference::linearToSrgb(accepted.value));
    film("accepted");

    QVERIFY(open());
    pull(m_dialog->_redSlider, {30, 8}, {100, 8}, "dragged the red slider");
    reported(m_oracle->previous); // the colour that the dialog was made with
    finished(accepted);
    m_expected << emission(host, "cancelled");
    act(QStringLiteral("key Escape"));
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(QTest::qWaitForWindowActive(m_module.data()));
    QCOMPARE(asText(m_button->getColor()), asText(accepted));
    film("Escape");
    m_film->end();
}

void TestDesktopDialog::typed_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("taken"); // of the text, while it is typed
    QTest::addColumn<double>("number"); // nan if none is committed
    QTest::addColumn<QString>("end");
    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto row = [](const char *name, int channel, const char *text, const char *taken, double number,
                        const char *end) {
        QTest::newRow(name) << channel << QString::fromLatin1(text) << QString::fromLatin1(taken) << number
                            << QString::fromLatin1(end);
    };
    row("a number", OnGreen, "0.75", "0.75", 0.75, "key Return");
    row("a number, by Enter", OnGreen, "0.75", "0.75", 0.75, "key KP_Enter");
    row("a number, by Tab", OnGreen, "0.75", "0.75", 0.75, "key Tab");
    row("a number, by a click elsewhere", OnGreen, "0.75", "0.75", 0.75, "");
    row("an expression", OnRed, "2*0.2", "2*0.2", 0.4, "key Return");
    row("an expression with brackets", OnLstar, "(3+4)*5.5", "(3+4)*5.5", 38.5, "key Return");
    row("a relative operator", OnBstar, "-=12.5", "-=12.5", 0.0, "key Return");
    row("a comma", OnValue, "0,5", "0.5", 0.5, "key Return");
    row("the number that is there", OnSaturation, "0.6", "0.6", 0.6, "key Return");
    row("a hue beyond the circle", OnHue, "400", "40", 40.0, "key Return");
    row("a sum beyond the circle", OnHue, "300+100", "300+100", 359.99, "key Return");
    row("a negative hue", OnHue, "-1", "-", none, "key Return");
    row("a negative sum", OnHue, "0-1", "0-1", 0.0, "key Return");
    row("a saturation above 1", OnSaturation, "0.5*4", "0.5*4", 1.0, "key Return");
    row("a red above 1", OnRed, "1.5", "1.5", 1.5, "key Return");
    row("a negative blue", OnBlue, "-0.5", "-0.5", -0.5, "key Return");
    row("an unfinished expression", OnRed, "2*", "2*", none, "key Return");
}

void TestDesktopDialog::typed()
{
    QFETCH(int, channel);
    QFETCH(QString, text);
    QFETCH(QString, taken);
    QFETCH(double, number);
    QFETCH(QString, end);
    m_button->setColor({30, 0.6F, 0.5F});
    QVERIFY(open());
    QLxDoubleSpiner *const typedInto = box(channel);
    typeInto(typedInto, text, taken);
    QCOMPARE(asText(m_dialog->getColor()), asText(m_oracle->boundary())); // not yet

    if (text.startsWith(QStringLiteral("-=")))
        number = m_oracle->spiners.at(size_t(channel)).value - 12.5;
    if (!std::isnan(number))
        m_oracle->commit(channel, number);
    act(end.isEmpty() ? clickOn(box(OnHue)) : end);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(typedInto->hasFocus(), !end.isEmpty() && end != QStringLiteral("key Tab"));
}

void TestDesktopDialog::returnClosesNothing()
{
    m_button->setColor({200, 0.7F, 0.3F});
    QVERIFY(open());
    for (const char *const key : {"key Return", "key KP_Enter"}) {
        for (int channel = OnHue; channel <= OnBstar; ++channel) {
            QVERIFY(onDesktop(clickOn(box(channel))));
            QTRY_VERIFY(box(channel)->hasFocus());
            // What the box shows is rounded, and is taken as such.
            m_oracle->commit(channel, m_oracle->spiners.at(size_t(channel)).text().toDouble());
            act(QLatin1String(key));
            QVERIFY(m_dialog->isVisible());
            QVERIFY(!m_dialog->_pick_color->isChecked());
        }
    }
    finished(m_oracle->boundary());
    act(clickOn(m_dialog->_accept));
    QVERIFY(!m_dialog->isVisible());
}

void TestDesktopDialog::cancelled_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<bool>("useGamma");
    QTest::addColumn<int>("times");
    for (const bool useGamma : {true, false}) {
        const auto row = [useGamma](const char *name, const char *deed, int times) {
            QTest::addRow("%s, sRGB %s", name, useGamma ? "on" : "off")
                << QString::fromLatin1(deed) << useGamma << times;
        };
        row("Escape", "key Escape", 1);
        row("the button Cancel", "CANCEL", 1);
        row("the window manager's key", "key alt+F4", 2); // said by the closing and by the cancelling
        row("the window's close button", "CLOSE", 2);
    }
}

void TestDesktopDialog::cancelled()
{
    QFETCH(QString, deed);
    QFETCH(bool, useGamma);
    QFETCH(int, times);
    QLx::colorUseGamma = useGamma;
    const QLxColor color{30, 0.6F, 0.5F};
    m_button->setColor(color);
    for (int opening = 0; opening < 2; ++opening) { // it opens again as ever
        QVERIFY(open());
        pull(m_dialog->_saturationSlider, {30, 8}, {150, 8});
        const QPoint corner = m_dialog->frameGeometry().topRight();
        const QString commands = QString(deed)
                                     .replace(QStringLiteral("CANCEL"), clickOn(m_dialog->_reject))
                                     .replace(QStringLiteral("CLOSE"), clickOn(corner + QPoint(-10, 10)));
        for (int i = 0; i < times; ++i)
            reported(m_oracle->previous); // linear in both settings
        finished(color);
        m_expected << emission(host, "cancelled");
        act(commands);
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(QTest::qWaitForWindowActive(m_module.data()));
        QCOMPARE(asText(m_button->getColor()), asText(color));
    }
}

QLX_TEST_MAIN(TestDesktopDialog)
#include "tst_desktopdialog.moc"
