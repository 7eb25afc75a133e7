// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The dialog under numbers that are none, and under hosts that go away or answer back at the worst moment.
#include "Pointer.h"
#include "QLxColorButton.h"
#include "QLxColorCell_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QRegularExpression>

#include <functional>
#include <limits>

namespace {

using Limits = std::numeric_limits<float>;
using Numbers = QVector<float>;

const char *const channels[] = {"hue",  "saturation", "value", "red",  "green",
                                "blue", "lstar",      "astar", "bstar"};
const QLxColor ordinary{210, 0.5F, 0.5F};

QList<QLxColorCellData *> &processCells();
template <auto Cells>
struct Behind
{
    friend QList<QLxColorCellData *> &processCells() { return *Cells; }
};
template struct Behind<&QLxColorArray::s_cellData>; // which last as long as the process

template <typename Widget>
Widget *part(QLxColorDialog *dialog, int channel, const char *kind)
{
    return dialog->findChild<Widget *>(
        QStringLiteral("_%1%2").arg(QString::fromLatin1(channels[channel]), QString::fromLatin1(kind)));
}

QLxColorSlider *sliderOf(QLxColorDialog *dialog, int channel)
{
    return part<QLxColorSlider>(dialog, channel, "Slider");
}

QLxDoubleSpiner *boxOf(QLxColorDialog *dialog, int channel)
{
    return part<QLxDoubleSpiner>(dialog, channel, "Spiner");
}

void setMode(QLxColorDialog *dialog, int channel)
{
    part<QRadioButton>(dialog, channel, "Button")->setChecked(true);
}

void press(QWidget *widget, const QPoint &at = {8, 8})
{
    Pointer pointer(widget);
    pointer.press(at);
    pointer.release(at);
}

void drag(QWidget *widget)
{
    Pointer pointer(widget);
    pointer.press({37, 8});
    pointer.move({51, 9});
    pointer.release({51, 9});
}

/// Types into a spin box as a user does who selects its text first.
void type(QLxColorDialog *dialog, int channel, const QString &text)
{
    QLxDoubleSpiner *const box = boxOf(dialog, channel);
    dialog->activateWindow();
    QApplication::setActiveWindow(dialog);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

// The dialog's colour as its text says, written a second time.

QString emitted(const QLxColor &linear)
{
    const QLxColor color =
        QLx::colorUseGamma ? linear : Reference::eachChannel(linear, Reference::linearToSrgb);
    return QStringLiteral("colorChanged(%1)").arg(asText(color));
}

QLxColor inward(const QLxColor &color)
{
    return QLx::colorUseGamma ? color : Reference::eachChannel(color, Reference::srgbToLinear);
}

/// The colour with the number from a spin box in one of its channels.
QLxColor edited(int channel, const QLxColor &color, double number)
{
    const auto x = static_cast<float>(number);
    const auto limited = [x](float highest) { return x > 0.0F ? std::min(x, highest) : 0.0F; };
    if (channel == 0)
        return {limited(359.999F), color.saturation, color.value};
    if (channel == 1)
        return {color.hue, limited(1.0F), color.value};
    if (channel == 2)
        return {color.hue, color.saturation,
                QLx::colorUseGamma ? Reference::srgbToLinear(limited(1.0F)) : limited(1.0F)};
    Reference::Triple triple = channel < 6 ? Reference::hsvToRgb(color) : Reference::hsvToLab(color);
    triple.at(static_cast<size_t>(channel % 3)) = channel < 6 ? Reference::srgbToLinear(x) : x;
    return channel < 6 ? Reference::rgbToHsv(triple) : Reference::labToHsv(triple);
}

/// What a user sees of the colour.
QStringList views(QLxColorDialog *dialog)
{
    QStringList all;
    for (const QLabel *const label :
         {dialog->_r_label, dialog->_g_label, dialog->_b_label, dialog->_h_label, dialog->_s_label,
          dialog->_v_label, dialog->_Lstar_label, dialog->_astar_label, dialog->_bstar_label})
        all.append(label->text());
    for (int channel = 0; channel < 9; ++channel)
        all << boxOf(dialog, channel)->text() << asText(sliderOf(dialog, channel)->getValue());
    all << asText(dialog->_colorFieldSlider->getValue()) << dialog->_current_color->styleSheet();
    Reference::Triple field;
    dialog->_colorField->getRGB(field[0], field[1], field[2]);
    return all << asText(field[0]) << asText(field[1]) << asText(field[2]);
}

/// The boxes whose number is none, or is out of range.
QString badBoxes(QLxColorDialog *dialog)
{
    QString bad;
    for (int channel = 0; channel < 9; ++channel) {
        const QLxDoubleSpiner *const box = boxOf(dialog, channel);
        if (!qIsFinite(box->value()) || box->value() < box->minimum() || box->value() > box->maximum())
            bad += QString::fromLatin1(channels[channel]) + QLatin1Char(' ');
    }
    return bad;
}

/// A thing that a user or a host does to the dialog.
struct Act
{
    QString name;
    QString emits; // c: colorChanged, a: accepted, r: rejected
    std::function<void(QLxColorDialog *)> run;
    bool repeats = false; // what another one does with another channel of the same colour space
};

std::vector<Act> allActs()
{
    using D = QLxColorDialog;
    std::vector<Act> acts;
    const auto add = [&](const QString &name, const char *emits, const std::function<void(D *)> &run,
                         bool repeats = false) {
        acts.push_back({name, QString::fromLatin1(emits), run, repeats});
    };
    for (int i = 0; i < 9; ++i) {
        const QString name = QString::fromLatin1(channels[i]);
        const bool repeats = i % 3 > 0;
        const auto inField = [i](D *d) {
            setMode(d, i);
            press(d->_colorField, {37, 51});
        };
        const auto inFieldSlider = [i](D *d) {
            setMode(d, i);
            press(d->_colorFieldSlider);
        };
        add(
            name + QStringLiteral(" slider"), "c", [i](D *d) { press(sliderOf(d, i)); }, repeats);
        add(QStringLiteral("field for ") + name, "c", inField, repeats);
        add(QStringLiteral("field slider for ") + name, "c", inFieldSlider, repeats);
        add(QStringLiteral("mode button for ") + name, "",
            [i](D *d) { part<QRadioButton>(d, i, "Button")->click(); });
    }
    add(QStringLiteral("slider dragged"), "cc", [](D *d) { drag(d->_redSlider); });
    add(QStringLiteral("field dragged"), "cc", [](D *d) { drag(d->_colorField); });
    add(QStringLiteral("check box by mouse"), "c", [](D *d) { press(d->_useGamma); });
    add(QStringLiteral("check box by key"), "c", [](D *d) { QTest::keyClick(d->_useGamma, Qt::Key_Space); });
    add(QStringLiteral("check box by program"), "c", [](D *d) { d->_useGamma->setChecked(false); });
    add(QStringLiteral("setting by its slot"), "c",
        [](D *d) { QMetaObject::invokeMethod(d, "setUseGamma", Q_ARG(bool, false)); });
    add(QStringLiteral("store"), "", [](D *d) { press(d->_store_custom_color); });
    add(QStringLiteral("current swatch"), "", [](D *d) { press(d->_current_color); });
    add(QStringLiteral("previous swatch"), "c", [](D *d) { press(d->_previous_color); });
    add(QStringLiteral("previous swatch by key"), "c",
        [](D *d) { QTest::keyClick(d->_previous_color, Qt::Key_Space); });
    const auto cell = [](D *d) { return d->_custom_colors->findChild<QAbstractButton *>(); };
    add(QStringLiteral("custom cell"), "c", [cell](D *d) {
        press(d->_store_custom_color);
        press(cell(d));
    });
    add(QStringLiteral("custom cell by key"), "c", [cell](D *d) {
        Pointer(cell(d)).release({3, 3}, Qt::RightButton); // makes it current
        press(d->_store_custom_color);
        QTest::keyClick(cell(d), Qt::Key_Return);
    });
    add(QStringLiteral("set by program"), "c", [](D *d) { d->setColor({77, 0.25F, 0.75F}); });
    add(QStringLiteral("display gamma"), "c",
        [](D *d) { QMetaObject::invokeMethod(d, "setGammaValue", Q_ARG(double, 1.5)); });
    add(QStringLiteral("accept"), "a", [](D *d) { press(d->_accept); });
    add(QStringLiteral("accept by key"), "a", [](D *d) { QTest::keyClick(d->_accept, Qt::Key_Space); });
    add(QStringLiteral("cancel"), "cr", [](D *d) { press(d->_reject); });
    add(QStringLiteral("Escape"), "cr", [](D *d) { QTest::keyClick(d, Qt::Key_Escape); });
    add(QStringLiteral("window closed"), "ccr", [](D *d) { d->close(); });
    return acts;
}

void actRows(const QString &emitting, bool all = true)
{
    QTest::addColumn<int>("index");
    const std::vector<Act> acts = allActs();
    for (size_t i = 0; i < acts.size(); ++i)
        if (acts[i].emits.contains(QRegularExpression(emitting)) && (all || !acts[i].repeats))
            QTest::newRow(qPrintable(acts[i].name)) << int(i);
}

} // namespace

class TestDialogBadInput : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void actsEmit_data() { actRows({}); }
    void actsEmit();
    void typed_data();
    void typed();
    void extremesOfTheBoxes_data();
    void extremesOfTheBoxes();
    void badColors_data();
    void badColors();
    void firstColorIsBlack();
    void settingFlippedInDrag();
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

private:
    QLxColorDialog *dialog() const { return static_cast<QLxColorDialog *>(sharedColorDialog.data()); }
    void open();
    void closeAll();

    QPointer<QWidget> m_module;
    QPointer<QLxColorButton> m_host;
    SignalLog m_log;
};

void TestDialogBadInput::init()
{
    TestCase::init();
    open();
}

void TestDialogBadInput::cleanup()
{
    closeAll();
    TestCase::cleanup();
}

void TestDialogBadInput::closeAll()
{
    delete m_module;
    m_log.take();
    QLx::colorUseGamma = true;
    QLx::colorGammaValue = 2.2F;
    for (QLxColorCellData *const cell : qAsConst(processCells()))
        *cell = QLxColorCellData();
}

/// A new module with a host, its dialog open.
void TestDialogBadInput::open()
{
    closeAll();
    m_module = new QWidget;
    m_module->setObjectName(QStringLiteral("Module"));
    m_host = new QLxColorButton(m_module);
    m_host->setColor(ordinary);
    press(m_host);
    m_log.watch(dialog(), &QLxColorDialog::colorChanged, "colorChanged");
    m_log.watch(dialog(), &QDialog::accepted, "accepted");
    m_log.watch(dialog(), &QDialog::rejected, "rejected");
}

void TestDialogBadInput::actsEmit()
{
    QFETCH(int, index);
    const Act act = allActs().at(static_cast<size_t>(index));
    act.run(dialog());
    QString letters;
    for (const QString &line : m_log.take())
        letters += line.at(0);
    QCOMPARE(letters, act.emits);
    QCOMPARE(badBoxes(dialog()), QString());
}

void TestDialogBadInput::typed_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("number"); // what it means; nothing if it changes nothing
    const auto row = [](int channel, const char *text, const char *number) {
        QTest::addRow("%s: %s", channels[channel], text)
            << channel << QString::fromLatin1(text) << QString::fromLatin1(number);
    };
    row(0, "400", "40"); // the third digit is refused
    row(0, "400+0", "40");
    row(0, "paste 400+0", "359.99");
    row(0, "0+400", "359.99");
    row(0, "-1", "");
    row(0, "0-1", "0");
    row(0, "+=5", "before+5");
    row(0, "+=500", "359.99");
    row(0, "-=500", "0");
    row(0, "*=2", "359.99");
    row(0, "/=0", "");
    row(0, "010", "8");
    row(0, "2*(", "");
    row(0, "1e5", "15"); // the letter is refused
    row(1, "400", "0");
    row(1, "paste 400+0", "1");
    row(1, "-1", "");
    row(1, "0-1", "0");
    row(1, "+=5", "1");
    row(2, "400", "400"); // limited by the dialog, not by the box
    row(2, "-1", "-1");
    row(2, "+=5", "before+5");
    row(3, "400", "400");
    row(3, "-1", "-1");
    row(3, "+=5", "before+5");
    row(4, "400+0", "400");
    row(5, "-=400", "before-400");
    row(6, "400", "40");
    row(6, "paste 400+0", "100");
    row(6, "-1", "");
    row(6, "+=5", "before+5");
    row(7, "400", "40");
    row(7, "0-400", "-256");
    row(7, "-1", "-1");
    row(8, "+=5", "before+5");
    const char *const highest[] = {"359.99", "1", "1e6", "1e6", "1e6", "1e6", "100", "256", "256"};
    const char *const lowest[] = {"0", "0", "-1e6", "-1e6", "-1e6", "-1e6", "0", "-256", "-256"};
    for (int channel = 0; channel < 9; ++channel) {
        row(channel, "1/0", highest[channel]);
        row(channel, "0-1/0", lowest[channel]);
        row(channel, "0/0", lowest[channel]);
        row(channel, "(((", "");
    }
}

void TestDialogBadInput::typed()
{
    QFETCH(int, channel);
    QFETCH(QString, text);
    QFETCH(QString, number);
    for (const Qt::Key commit : {Qt::Key_Return, Qt::Key_Tab}) {
        dialog()->setColor({20, 0.25F, 0.75F});
        dialog()->setColor(ordinary);
        m_log.take();
        QLxDoubleSpiner *const box = boxOf(dialog(), channel);
        double meant = number.toDouble();
        if (number.startsWith(QLatin1String("before")))
            meant = box->value() + number.midRef(6).toDouble();
        if (text.startsWith(QLatin1String("paste "))) {
            QApplication::clipboard()->setText(text.mid(6));
            type(dialog(), channel, QString());
            QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        } else {
            type(dialog(), channel, text);
        }
        QTest::keyClick(box, commit);
        if (number.isEmpty())
            COMPARE_LOG(m_log, {});
        else
            COMPARE_LOG(m_log, {emitted(edited(channel, ordinary, meant))});
        QTest::keyClick(box, Qt::Key_Tab); // leaving it does no more
        COMPARE_LOG(m_log, {});
        QCOMPARE(badBoxes(dialog()), QString());
        QVERIFY(dialog()->isVisible());
    }
}

void TestDialogBadInput::extremesOfTheBoxes_data()
{
    QTest::addColumn<Numbers>("before");
    QTest::newRow("from a colour") << Numbers{210, 0.5F, 0.5F};
    QTest::newRow("from black") << Numbers{0, 0, 0};
    QTest::newRow("from white") << Numbers{0, 0, 1};
    QTest::newRow("from NaN") << Numbers{0, 0, Limits::quiet_NaN()};
    QTest::newRow("from far out of gamut") << Numbers{120, 1, 1e30F};
}

void TestDialogBadInput::extremesOfTheBoxes()
{
    QFETCH(Numbers, before);
    const QLxColor start{before[0], before[1], before[2]};
    for (const bool useGamma : {true, false}) {
        dialog()->_useGamma->setChecked(useGamma);
        for (int channel = 0; channel < 9; ++channel) {
            QLxDoubleSpiner *const box = boxOf(dialog(), channel);
            for (const double extreme : {box->maximum(), box->minimum()}) {
                dialog()->setColor(ordinary);
                dialog()->setColor(start);
                const QLxColor linear = inward(start);
                m_log.take();
                const bool there = box->value() == extreme;
                box->setValue(extreme);
                if (there)
                    COMPARE_LOG(m_log, {});
                else
                    COMPARE_LOG(m_log, {emitted(edited(channel, linear, extreme))});
                QCOMPARE(badBoxes(dialog()), QString());
                QVERIFY(!dialog()->_colorField->grab().isNull());
            }
        }
    }
}

void TestDialogBadInput::badColors_data()
{
    QTest::addColumn<Numbers>("hsv");
    const float nan = Limits::quiet_NaN();
    const float infinity = Limits::infinity();
    QTest::newRow("NaN hue") << Numbers{nan, 1, 1};
    QTest::newRow("NaN saturation") << Numbers{120, nan, 1};
    QTest::newRow("NaN value") << Numbers{120, 1, nan};
    QTest::newRow("all NaN") << Numbers{nan, nan, nan};
    QTest::newRow("infinite hue") << Numbers{infinity, 1, 1};
    QTest::newRow("negative infinite hue") << Numbers{-infinity, 1, 1};
    QTest::newRow("infinite saturation") << Numbers{120, infinity, 1};
    QTest::newRow("infinite value") << Numbers{120, 1, infinity};
    QTest::newRow("negative infinite value") << Numbers{120, 1, -infinity};
    QTest::newRow("all infinite") << Numbers{infinity, infinity, infinity};
    QTest::newRow("largest value") << Numbers{120, 1, Limits::max()};
    QTest::newRow("lowest value") << Numbers{120, 1, Limits::lowest()};
    QTest::newRow("smallest value") << Numbers{120, 1, Limits::denorm_min()};
    QTest::newRow("largest of all") << Numbers{Limits::max(), Limits::max(), Limits::max()};
    QTest::newRow("far out of gamut") << Numbers{120, -50, 1e6F};
    QTest::newRow("negative hue") << Numbers{-1e9F, 0.5F, 0.5F};
}

void TestDialogBadInput::badColors()
{
    QFETCH(Numbers, hsv);
    const QLxColor bad{hsv[0], hsv[1], hsv[2]};
    QLxColorDialog sound(ordinary, nullptr, nullptr); // never sees it
    for (const bool useGamma : {true, false}) {
        dialog()->_useGamma->setChecked(useGamma);
        for (int mode = 0; mode < 9; mode += useGamma ? 1 : 3) {
            setMode(dialog(), mode);
            setMode(&sound, mode);
            m_log.take();
            dialog()->setColor(bad);
            COMPARE_LOG(m_log, {emitted(inward(bad))});
            drag(sliderOf(dialog(), mode));
            drag(dialog()->_colorFieldSlider);
            dialog()->setColor(bad);
            drag(dialog()->_colorField);
            QCOMPARE(badBoxes(dialog()), QString());
            for (QLxColorDialog *const each : {dialog(), &sound}) { // and all is well again
                each->setColor({20, 0.25F, 0.75F});
                each->setColor(ordinary);
            }
            QCOMPARE(views(dialog()), views(&sound));
        }
    }
    // By way of a host, which hands it on as its RGB gives it, and takes it back.
    m_host->setColor(bad);
    dialog()->_useGamma->setChecked(true);
    press(m_host);
    const QString given = asText(Reference::rgbToHsv(Reference::hsvToRgb(bad)));
    QCOMPARE(asText(dialog()->getColor()), given);
    dialog()->accept();
    QCOMPARE(asText(m_host->getColor()), given);
}

void TestDialogBadInput::firstColorIsBlack()
{
    closeAll();
    m_module = new QWidget;
    m_host = new QLxColorButton(m_module);
    m_host->setColor({0, 0, 0});
    press(m_host);
    const auto text = [](const QLabel *label) { return label->text(); };
    QCOMPARE(text(dialog()->_r_label), QStringLiteral("R: 0.0000"));
    QCOMPARE(text(dialog()->_h_label), QStringLiteral("H: 0.0000"));
    QCOMPARE(text(dialog()->_v_label), QStringLiteral("V: 0.0000"));
    QCOMPARE(text(dialog()->_Lstar_label), QStringLiteral("L*: 0.000"));
    for (int channel = 0; channel < 9; ++channel)
        QCOMPARE(boxOf(dialog(), channel)->text(), QStringLiteral("0.000"));
    for (const QLxColorButton *const swatch : {dialog()->_current_color, dialog()->_previous_color})
        QVERIFY(swatch->styleSheet().contains(QStringLiteral("background: rgb(0, 0, 0)")));
    m_log.watch(dialog(), &QLxColorDialog::colorChanged, "colorChanged");
    dialog()->setColor({0, 0, 0});
    COMPARE_LOG(m_log, {});
}

void TestDialogBadInput::settingFlippedInDrag()
{
    for (QLxColorSlider *const slider : {dialog()->_valueSlider, dialog()->_colorFieldSlider}) {
        setMode(dialog(), 2); // what the field's slider shows
        dialog()->setColor(ordinary);
        m_log.take();
        const auto at = [slider](int x) {
            return static_cast<float>(x) / static_cast<float>(slider->width());
        };
        Pointer pointer(slider);
        pointer.press({100, 5});
        const QLxColor first{210, 0.5F, Reference::srgbToLinear(at(100))};
        COMPARE_LOG(m_log, {emitted(first)});
        dialog()->_useGamma->click();
        COMPARE_LOG(m_log, {emitted(first)}); // the same colour, crossing the boundary in another form
        QCOMPARE(slider->getValue(), first.value);
        pointer.move({150, 5}); // from here on the position is linear
        COMPARE_LOG(m_log, {emitted({210, 0.5F, at(150)})});
        dialog()->_useGamma->click();
        pointer.move({20, 5});
        pointer.release({20, 5});
        COMPARE_LOG(m_log,
                    {emitted({210, 0.5F, at(150)}), emitted({210, 0.5F, Reference::srgbToLinear(at(20))})});
    }
    // Red is decoded in both settings.
    dialog()->setColor(ordinary);
    m_log.take();
    Pointer pointer(dialog()->_redSlider);
    pointer.press({100, 5});
    const QLxColor before = dialog()->getColor();
    QLx::colorUseGamma = false; // behind the dialog's back
    m_log.take();
    pointer.move({150, 5});
    const float position = 150.0F / static_cast<float>(dialog()->_redSlider->width());
    COMPARE_LOG(m_log, {emitted(edited(3, before, double(position)))});
}

void TestDialogBadInput::receiverSetsTheColor()
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

void TestDialogBadInput::destroyedInsideSignals()
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

void TestDialogBadInput::destroyedAfterTyping_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("key");
    for (int channel = 0; channel < 9; ++channel)
        QTest::newRow(channels[channel]) << channel << int(Qt::Key_Return);
    QTest::newRow("by leaving it") << 0 << int(Qt::Key_Tab);
    QTest::newRow("by a step") << 0 << int(Qt::Key_Up);
}

// Not by delete: Qt's own spin box goes on with itself after valueChanged().
void TestDialogBadInput::destroyedAfterTyping()
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

void TestDialogBadInput::destroyedWhileOpen()
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

void TestDialogBadInput::hostDestroyedWhileOpen()
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

void TestDialogBadInput::destroyedWhileDragged_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : swatchNames)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestDialogBadInput::destroyedWhileDragged()
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
    TestDialogBadInput test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialogbadinput.moc"
