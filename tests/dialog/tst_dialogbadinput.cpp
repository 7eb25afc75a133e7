// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The dialog under numbers that are none or too large, and under other acts than its own controls expect.
#include "DialogActs.h"

class TestDialogBadInput : public DialogTest
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
    void actsEmit_data() { actRows({}); }
    void actsEmit();
    void typed_data();
    void typed();
    void extremesOfTheBoxes_data();
    void extremesOfTheBoxes();
    void slotsTakeAnyNumber_data();
    void slotsTakeAnyNumber();
    void badColors_data();
    void badColors();
    void firstColorIsBlack();
    void settingFlippedInDrag();
};

void TestDialogBadInput::actsEmit()
{
    QFETCH(int, index);
    const Act act = allActs().at(static_cast<size_t>(index));
    act.run(dialog());
    QString letters;
    const QStringList lines = m_log.take();
    for (const QString &line : lines)
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

void TestDialogBadInput::slotsTakeAnyNumber_data()
{
    QTest::addColumn<double>("number");
    for (const double number : {double(Limits::quiet_NaN()), double(Limits::infinity()),
                                -double(Limits::infinity()), 400.0, -1.0, 1e30, -1e30})
        QTest::newRow(qPrintable(asText(number))) << number;
}

void TestDialogBadInput::slotsTakeAnyNumber()
{
    QFETCH(double, number);
    for (const bool useGamma : {true, false}) {
        dialog()->_useGamma->setChecked(useGamma);
        for (int channel = 0; channel < 9; ++channel) {
            dialog()->setColor({20, 0.25F, 0.75F});
            dialog()->setColor(ordinary);
            const QLxColor linear = inward(ordinary);
            m_log.take();
            const QByteArray slot = QByteArray(channels[channel]) + "SpinerChanged";
            QVERIFY(QMetaObject::invokeMethod(dialog(), slot, Q_ARG(double, number)));
            COMPARE_LOG(m_log, {emitted(edited(channel, linear, number))});
            QCOMPARE(badBoxes(dialog()), QString());
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
    for (const bool useGamma : {true, false}) {
        closeAll();
        QLx::colorUseGamma = useGamma;
        m_module = new QWidget;
        auto *const host = new QLxColorButton(m_module);
        host->setColor({0, 0, 0});
        press(host);
        QCOMPARE(dialog()->_r_label->text(), QStringLiteral("R: 0.0000"));
        QCOMPARE(dialog()->_s_label->text(), QStringLiteral("S: 0.0000"));
        QCOMPARE(dialog()->_astar_label->text(), QStringLiteral("a*: 0.000"));
        for (int channel = 0; channel < 9; ++channel)
            QCOMPARE(boxOf(dialog(), channel)->text(), QStringLiteral("0.000"));
        for (const QLxColorButton *const swatch : {dialog()->_current_color, dialog()->_previous_color})
            QCOMPARE(asText(swatch->getColor()), QStringLiteral("hsv 0 0 0"));
        m_log.watch(dialog(), &QLxColorDialog::colorChanged, "colorChanged");
        dialog()->setColor({0, 0, 0});
        COMPARE_LOG(m_log, {});
    }
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
    {
        setMode(dialog(), 0);
        QLxColorField *const field = dialog()->_colorField; // always encoded
        const auto at = [field](int x, int y) {
            const QLxColor picked{field->getConstantChannel(),
                                  static_cast<float>(x) / static_cast<float>(field->width()),
                                  1.0F - static_cast<float>(y) / static_cast<float>(field->height())};
            return Reference::eachChannel(picked, Reference::srgbToLinear);
        };
        Pointer pointer(field);
        const QLxColor first = at(30, 40);
        pointer.press({30, 40});
        COMPARE_LOG(m_log, {emitted(first)});
        dialog()->_useGamma->click();
        COMPARE_LOG(m_log, {emitted(first)});
        const QLxColor second = at(100, 60);
        pointer.move({100, 60});
        COMPARE_LOG(m_log, {emitted(second)});
        dialog()->_useGamma->click();
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

QLX_TEST_MAIN(TestDialogBadInput)
#include "tst_dialogbadinput.moc"
