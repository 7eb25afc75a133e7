// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Hosts that share the dialog: who hears what, in which order, and whose the dialog is.
#include "Pointer.h"
#include "QLxColorButton.h"
#include "QLxColorCell_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorManipulator.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QDragEnterEvent>
#include <QMimeData>

#include <functional>

namespace {

using Numbers = QVector<float>;

QList<QLxColorCellData *> &processCells();
template <auto Cells>
struct Behind
{
    friend QList<QLxColorCellData *> &processCells() { return *Cells; }
};
template struct Behind<&QLxColorArray::s_cellData>; // which last as long as the process

void press(QWidget *widget, const QPoint &at = {5, 5})
{
    Pointer pointer(widget);
    pointer.press(at);
    pointer.release(at);
}

QLxColor byWayOfRgb(const QLxColor &color)
{
    return Reference::rgbToHsv(Reference::hsvToRgb(color));
}

QLxColor inward(const QLxColor &color)
{
    return QLx::colorUseGamma ? color : Reference::eachChannel(color, Reference::srgbToLinear);
}

QLxColor outward(const QLxColor &color)
{
    return QLx::colorUseGamma ? color : Reference::eachChannel(color, Reference::linearToSrgb);
}

QString line(const QString &who, const char *signal, const QString &payload = {})
{
    return QStringLiteral("%1.%2(%3)").arg(who, QString::fromLatin1(signal), payload);
}

/// A colour as a manipulator reports it.
QStringList fourForms(const QString &who, const char *signal, const QLxColor &color)
{
    QStringList floats;
    QStringList ints;
    for (const float channel : Reference::hsvToRgb(color)) {
        floats.append(asText(channel));
        ints.append(asText(Reference::level(channel)));
    }
    const QByteArray name(signal);
    return {line(who, signal), line(who, signal, asText(color)),
            line(who, name + " float", floats.join(QStringLiteral(", "))),
            line(who, name + " int", ints.join(QStringLiteral(", ")))};
}

/// A manipulator or a bare button, and what it should say.
class Host
{
public:
    Host(const char *name, bool bare, QWidget *parent, const QLxColor &color, SignalLog *log)
        : m_name(QString::fromLatin1(name))
        , m_manipulator(bare ? nullptr : new QLxColorManipulator(parent, name))
        , m_button(bare ? new QLxColorButton(parent) : m_manipulator->findChild<QLxColorButton *>())
        , m_color(color)
    {
        m_button->setColor(color);
        using B = QLxColorButton;
        using M = QLxColorManipulator;
        const auto on = [&](auto *sender, auto signal, const char *text) {
            log->watch(sender, signal, qPrintable(m_name + QLatin1Char('.') + QString::fromLatin1(text)));
        };
        if (bare) {
            on(m_button, &B::colorButtonClicked, "colorButtonClicked");
            on(m_button, &B::temporaryColorChosen, "temporaryColorChosen");
            on(m_button, &B::finalColorChosen, "finalColorChosen");
            on(m_button, &B::userSkipped, "userSkipped");
            on(m_button, &B::userAccepted, "userAccepted");
            return;
        }
        on(m_manipulator, &M::buttonPressed, "buttonPressed");
        on(m_manipulator, &M::sliderPressed, "sliderPressed");
        on(m_manipulator, &M::sliderReleased, "sliderReleased");
        on(m_manipulator, &M::sliderColorChanged, "sliderColorChanged");
        on(m_manipulator, QOverload<>::of(&M::colorChanged), "colorChanged");
        on(m_manipulator, QOverload<QLxColor>::of(&M::colorChanged), "colorChanged");
        on(m_manipulator, QOverload<int, int, int>::of(&M::colorChanged), "colorChanged int");
        on(m_manipulator, QOverload<float, float, float>::of(&M::colorChanged), "colorChanged float");
        on(m_manipulator, QOverload<>::of(&M::dialogColorChanged), "dialogColorChanged");
        on(m_manipulator, QOverload<QLxColor>::of(&M::dialogColorChanged), "dialogColorChanged");
        on(m_manipulator, QOverload<int, int, int>::of(&M::dialogColorChanged), "dialogColorChanged int");
        on(m_manipulator, QOverload<float, float, float>::of(&M::dialogColorChanged),
           "dialogColorChanged float");
        on(m_manipulator, &M::finalColorSet, "finalColorSet");
        on(m_manipulator, &M::cancelled, "cancelled");
    }

    QLxColorButton *button() const { return m_button; }
    QLxColor color() const { return m_color; }

    QStringList clicked() const
    {
        return {line(m_name, m_manipulator ? "buttonPressed" : "colorButtonClicked")};
    }
    QStringList edited(const QLxColor &color) const
    {
        if (!m_manipulator)
            return {line(m_name, "temporaryColorChosen", asText(color))};
        return fourForms(m_name, "dialogColorChanged", color) + fourForms(m_name, "colorChanged", color);
    }
    QStringList accepted(const QLxColor &color)
    {
        m_color = color;
        return final() + (m_manipulator ? QStringList() : QStringList{line(m_name, "userAccepted")});
    }
    QStringList cancelled() const
    {
        return final() << line(m_name, m_manipulator ? "cancelled" : "userSkipped");
    }

private:
    QStringList final() const
    {
        if (!m_manipulator)
            return {line(m_name, "finalColorChosen", asText(m_color))};
        return fourForms(m_name, "colorChanged", m_color) << line(m_name, "finalColorSet", asText(m_color));
    }

    QString m_name;
    QLxColorManipulator *m_manipulator;
    QLxColorButton *m_button;
    QLxColor m_color; // that it should have
};

} // namespace

class TestDialogHosts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void hostsInTurn_data();
    void hostsInTurn();
    void openingCutsConnections();
    void swatchesInsideTheDialog();
    void previousSwatch();
    void parent_data();
    void parent();
    void newDialogAfterTheParentsEnd();
    void initialColor_data();
    void initialColor();

private:
    static QLxColorDialog *dialog() { return static_cast<QLxColorDialog *>(sharedColorDialog.data()); }
    void expect(const QStringList &lines) { m_expected += lines; }
    void open(Host &host);
    void set(const QLxColor &linear, const std::function<void()> &act);
    void cancel(const std::function<void()> &act, int announcements = 1);
    void accept();

    SignalLog m_log;
    QStringList m_expected;
    Host *m_owner = nullptr; // who should hear the dialog
    QLxColor m_linear;       // the colour that the dialog should have
    QLxColor m_previous;
};

void TestDialogHosts::cleanup()
{
    delete sharedColorDialog.data();
    m_log.take();
    m_expected.clear();
    QLx::colorUseGamma = true;
    for (QLxColorCellData *const cell : qAsConst(processCells()))
        *cell = QLxColorCellData();
    TestCase::cleanup();
}

// Each of these does a thing and notes what should be heard of it, in order.

void TestDialogHosts::open(Host &host)
{
    const bool isNew = sharedColorDialog.isNull();
    press(host.button());
    expect(host.clicked());
    m_owner = &host;
    m_linear = inward(byWayOfRgb(host.color()));
    if (isNew) {
        m_previous = m_linear;
        m_log.watch(dialog(), &QDialog::finished, "dialog.finished");
    }
    QVERIFY(dialog()->isVisible());
    QCOMPARE(asText(dialog()->getColor()), asText(outward(m_linear)));
    // Opening has cut these, of whomever.
    m_log.watch(dialog(), &QLxColorDialog::colorChanged, "dialog.colorChanged");
    m_log.watch(dialog(), &QDialog::accepted, "dialog.accepted");
    m_log.watch(dialog(), &QDialog::rejected, "dialog.rejected");
}

void TestDialogHosts::set(const QLxColor &linear, const std::function<void()> &act)
{
    act();
    m_linear = linear;
    expect(m_owner->edited(outward(linear)));
    expect({line(QStringLiteral("dialog"), "colorChanged", asText(outward(linear)))});
}

void TestDialogHosts::accept()
{
    press(dialog()->_accept);
    expect(m_owner->accepted(outward(m_linear)));
    expect({QStringLiteral("dialog.accepted()"), QStringLiteral("dialog.finished(1)")});
    QVERIFY(!dialog()->isVisible());
    QCOMPARE(asText(m_owner->button()->getColor()), asText(m_owner->color()));
}

void TestDialogHosts::cancel(const std::function<void()> &act, int announcements)
{
    act();
    for (int i = 0; i < announcements; ++i) {
        expect(m_owner->edited(m_previous)); // linear in any case
        expect({line(QStringLiteral("dialog"), "colorChanged", asText(m_previous))});
    }
    expect(m_owner->cancelled());
    expect({QStringLiteral("dialog.rejected()"), QStringLiteral("dialog.finished(0)")});
    QVERIFY(!dialog()->isVisible());
    QCOMPARE(asText(m_owner->button()->getColor()), asText(m_owner->color()));
}

void TestDialogHosts::hostsInTurn_data()
{
    QTest::addColumn<QStringList>("windows"); // of the first, the second and the bare host
    QTest::addColumn<bool>("useGamma");
    const QString module = QStringLiteral("Module");
    const QString other = QStringLiteral("other");
    const std::pair<const char *, QStringList> places[] = {{"inside", {module, module, module}},
                                                           {"outside", {other, other, other}},
                                                           {"first inside", {module, other, other}},
                                                           {"first outside", {other, module, module}}};
    for (const auto &[name, windows] : places)
        for (const bool useGamma : {true, false})
            QTest::addRow("%s, %s display", name, useGamma ? "encoded" : "linear") << windows << useGamma;
}

void TestDialogHosts::hostsInTurn()
{
    QFETCH(QStringList, windows);
    QFETCH(bool, useGamma);
    QLx::colorUseGamma = useGamma;
    QWidget module;
    QWidget other;
    module.setObjectName(QStringLiteral("Module"));
    other.setObjectName(QStringLiteral("other"));
    const auto window = [&](int i) { return windows[i] == module.objectName() ? &module : &other; };
    Host first("first", false, window(0), {120, 1, 0.5F}, &m_log);
    Host second("second", false, window(1), {240, 0.5F, 1}, &m_log);
    Host bare("bare", true, window(2), {-30, 0.5F, 0.25F}, &m_log);
    const auto bySetColor = [](const QLxColor &color) { return [color] { dialog()->setColor(color); }; };

    open(first);
    QCOMPARE(dialog()->parentWidget(), window(0));
    set(inward({60, 0.5F, 1}), bySetColor({60, 0.5F, 1}));
    dialog()->setColor({60, 0.5F, 1}); // the one that is there

    open(second); // takes the dialog away: the first is told nothing
    Reference::Triple rgb = Reference::hsvToRgb(m_linear);
    rgb[0] = Reference::srgbToLinear(0.5F);
    set(Reference::rgbToHsv(rgb), [] { dialog()->_redSlider->setValue(0.5F); });
    accept();

    open(bare);
    const float position = 40.0F / static_cast<float>(dialog()->_saturationSlider->width());
    set({m_linear.hue, position, m_linear.value}, [] { press(dialog()->_saturationSlider, {40, 5}); });
    cancel([] { press(dialog()->_reject); });

    open(first);
    set(inward({0, 1, 0.5F}), bySetColor({0, 1, 0.5F}));
    open(first); // the same host again: it starts anew, and hears everything once
    set(inward({0, 0, 0.75F}), bySetColor({0, 0, 0.75F}));
    cancel([] { dialog()->close(); }, 2); // by the window's button: announced twice

    open(second);
    press(dialog()->_store_custom_color);
    const QLxColor kept = byWayOfRgb(m_linear);
    set(inward({180, 1, 1}), bySetColor({180, 1, 1}));
    set(kept, [] { press(dialog()->_custom_colors->findChild<QAbstractButton *>()); });
    cancel([] { QTest::keyClick(dialog(), Qt::Key_Escape); });

    open(bare);
    set(m_previous, [] { press(dialog()->_previous_color); }); // the first host's colour, for good
    accept();

    open(first);
    QLx::colorUseGamma = !useGamma; // what the check box will say, to reckon with
    set(m_linear, [useGamma] {
        QLx::colorUseGamma = useGamma;
        dialog()->_useGamma->click();
    });
    accept();

    QCOMPARE(dialog()->parentWidget(), window(0));
    QCOMPARE(m_log.text(), m_expected.join(QLatin1Char('\n')));
}

void TestDialogHosts::openingCutsConnections()
{
    QWidget module;
    Host first("first", true, &module, {120, 1, 0.5F}, &m_log);
    Host second("second", true, &module, {240, 1, 0.5F}, &m_log);
    open(first);
    int outsider = 0;
    connect(dialog(), &QLxColorDialog::colorChanged, m_log.context(), [&] { ++outsider; });
    connect(dialog(), &QDialog::accepted, m_log.context(), [&] { ++outsider; });
    connect(dialog(), &QDialog::rejected, m_log.context(), [&] { ++outsider; });
    dialog()->setColor({0, 1, 1});
    QCOMPARE(outsider, 1);
    m_log.take();
    press(first.button()); // the host itself, while the dialog is open
    dialog()->setColor({0, 1, 1});
    COMPARE_LOG(m_log, {"first.colorButtonClicked()", "first.temporaryColorChosen(hsv 0 1 1)"});
    press(second.button());
    COMPARE_LOG(m_log, {"second.colorButtonClicked()"}); // that it starts anew is nobody's edit
    QCOMPARE(asText(dialog()->getColor()), QStringLiteral("hsv 240 1 0.5"));
    dialog()->accept();
    COMPARE_LOG(m_log,
                {"second.finalColorChosen(hsv 240 1 0.5)", "second.userAccepted()", "dialog.finished(1)"});
    QCOMPARE(outsider, 1);
    dialog()->setColor({0, 1, 1}); // hidden, it still belongs to the host that opened it last
    COMPARE_LOG(m_log, {"second.temporaryColorChosen(hsv 0 1 1)"});
}

void TestDialogHosts::swatchesInsideTheDialog()
{
    QWidget module;
    module.setObjectName(QStringLiteral("Module"));
    Host host("host", false, &module, {120, 1, 0.5F}, &m_log);
    open(host);
    const QPointer<QLxColorDialog> opened = dialog();
    QMimeData data;
    data.setColorData(QColor(Qt::blue));
    const QList<QLxColorButton *> swatches = dialog()->findChildren<QLxColorButton *>();
    QCOMPARE(swatches.size(), 4);
    for (QLxColorButton *const swatch : swatches) {
        QVERIFY(!swatch->showColorDialog());
        const bool restores = swatch == dialog()->_previous_color;
        const auto clickAndDrop = [&] {
            press(swatch);
            QDragEnterEvent enter({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(swatch, &enter);
            QDropEvent drop({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(swatch, &drop); // changes what the swatch shows, and no more
        };
        const auto clickByKey = [swatch] { QTest::keyClick(swatch, Qt::Key_Space); };
        for (const std::function<void()> &act : {std::function<void()>(clickAndDrop), {clickByKey}})
            restores ? set(m_previous, act) : act();
        QCOMPARE(dialog(), opened);
        QVERIFY(dialog()->isVisible());
        const QLxColor next{m_linear.hue + 60.0F, 1, 0.5F};
        set(next, [next] { dialog()->setColor(next); }); // the host still hears it
        QCOMPARE(m_log.text(), m_expected.join(QLatin1Char('\n')));
    }
    accept();
    QCOMPARE(m_log.text(), m_expected.join(QLatin1Char('\n')));
}

void TestDialogHosts::previousSwatch()
{
    QLx::colorUseGamma = false;
    QWidget window;
    Host first("first", true, &window, {120, 0.5F, 0.5F}, &m_log);
    Host second("second", true, &window, {240, 0.5F, 0.5F}, &m_log);
    open(first);
    set(m_linear, [] { press(dialog()->_previous_color); }); // also when it changes nothing
    open(second);
    set(m_previous, [] { press(dialog()->_previous_color); }); // that of the first opening
    Pointer pointer(dialog()->_previous_color);
    pointer.press({5, 5}, Qt::RightButton); // any button of the mouse
    set(m_previous, [&] { pointer.release({5, 5}, Qt::RightButton); });
    accept();
    QCOMPARE(m_log.text(), m_expected.join(QLatin1Char('\n')));
    QCOMPARE(asText(second.button()->getColor()), asText(outward(inward({120, 0.5F, 0.5F}))));
}

void TestDialogHosts::parent_data()
{
    QTest::addColumn<QString>("ancestors"); // of the host, from the window down
    QTest::addColumn<int>("expected");      // which of them; the host itself is the last
    QTest::newRow("Module") << QStringLiteral("Module") << 0;
    QTest::newRow("in a page of Module") << QStringLiteral("Module page") << 0;
    QTest::newRow("Module in a window") << QStringLiteral("window Module page") << 1;
    QTest::newRow("nearest Module") << QStringLiteral("Module window Module page") << 2;
    QTest::newRow("no Module") << QStringLiteral("window module page") << 0;
    QTest::newRow("alone") << QString() << 0;
}

void TestDialogHosts::parent()
{
    QFETCH(QString, ancestors);
    QFETCH(int, expected);
    QList<QWidget *> chain;
    const QStringList names = ancestors.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        chain.append(new QWidget(chain.isEmpty() ? nullptr : chain.last(), Qt::Window));
        chain.last()->setObjectName(name);
    }
    chain.append(new QLxColorManipulator(chain.isEmpty() ? nullptr : chain.last()));
    const std::unique_ptr<QWidget> owner(chain.first());
    press(chain.last()->findChild<QLxColorButton *>());
    QCOMPARE(dialog()->parentWidget(), chain.at(expected));
    QVERIFY(!dialog()->isModal());
    QCOMPARE(dialog()->objectName(), QStringLiteral("QLxColorDialogGUI"));
}

void TestDialogHosts::newDialogAfterTheParentsEnd()
{
    auto module = std::make_unique<QWidget>();
    module->setObjectName(QStringLiteral("Module"));
    Host inside("inside", false, module.get(), {120, 1, 0.5F}, &m_log);
    QWidget window;
    Host outside("outside", false, &window, {240, 0.5F, 0.5F}, &m_log);
    open(inside);
    open(outside);
    set({0, 1, 1}, [] { dialog()->setColor({0, 1, 1}); });
    module.reset();
    QVERIFY(!sharedColorDialog); // and nobody is told
    QCOMPARE(m_log.text(), m_expected.join(QLatin1Char('\n')));
    open(outside);
    QCOMPARE(dialog()->parentWidget(), &window);
    set({0, 1, 1}, [] { dialog()->setColor({0, 1, 1}); });
    cancel([] { press(dialog()->_reject); }); // the previous colour is now this host's
    QCOMPARE(asText(m_previous), QStringLiteral("hsv 240 0.5 0.5"));
    QCOMPARE(m_log.text(), m_expected.join(QLatin1Char('\n')));
}

void TestDialogHosts::initialColor_data()
{
    QTest::addColumn<Numbers>("hsv");
    QTest::addColumn<bool>("useGamma");
    const std::pair<const char *, Numbers> colors[] = {{"black", {0, 0, 0}},
                                                       {"white", {0, 0, 1}},
                                                       {"grey with hue", {200, 0, 0.5F}},
                                                       {"a colour", {30, 0.75F, 0.5F}},
                                                       {"above white", {30, 0.5F, 4}},
                                                       {"NaN", {30, 0.5F, std::nanf("")}}};
    for (const auto &[name, hsv] : colors)
        for (const bool useGamma : {true, false})
            QTest::addRow("%s, %s display", name, useGamma ? "encoded" : "linear") << hsv << useGamma;
}

void TestDialogHosts::initialColor()
{
    QFETCH(Numbers, hsv);
    QFETCH(bool, useGamma);
    QLx::colorUseGamma = useGamma;
    const QLxColor color{hsv[0], hsv[1], hsv[2]};
    const QLxColor linear = inward(color);
    QLxColorDialog made(color, nullptr, nullptr);
    QCOMPARE(asText(made.getColor()), asText(outward(linear)));
    QCOMPARE(QLx::colorUseGamma, useGamma);
    QCOMPARE(made._useGamma->isChecked(), useGamma);
    QCOMPARE(made._hueSlider->getValue(), linear.hue / 359.99F);
    QVERIFY(made._hueButton->isChecked());
    if (linear.saturation == 0.0F)
        QCOMPARE(made._colorField->getHue(), linear.hue); // which the RGB of a grey does not hold
    // Both swatches show its linear levels as if they were a colour of their own.
    const QColor levels = Reference::display(linear, false);
    const auto fraction = [](int level) { return static_cast<float>(level) / 255.0F; };
    const QLxColor swatch =
        Reference::rgbToHsv({fraction(levels.red()), fraction(levels.green()), fraction(levels.blue())});
    for (const QLxColorButton *const button : {made._current_color, made._previous_color})
        QCOMPARE(asText(button->getColor()), asText(swatch));
    m_log.watch(&made, &QLxColorDialog::colorChanged, "colorChanged");
    made.setColor({60, 1, 1});
    m_log.take();
    press(made._previous_color);
    COMPARE_LOG(m_log, {QStringLiteral("colorChanged(%1)").arg(asText(outward(linear)))});
    QMetaObject::invokeMethod(&made, "reject"); // not in boundary form
    COMPARE_LOG(m_log, {QStringLiteral("colorChanged(%1)").arg(asText(linear))});
}

QLX_TEST_MAIN(TestDialogHosts)
#include "tst_dialoghosts.moc"
