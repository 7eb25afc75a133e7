// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The row of custom colours: drags, drops, and hosts that take it away.
#include "ArrayProbe.h"

class TestColorArrayDrag : public ArrayTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        begin();
    }
    void cleanup()
    {
        end();
        TestCase::cleanup();
    }
    void dragStarts_data();
    void dragStarts();
    void dragCarriesTheColor_data() { cellColorRows(); }
    void dragCarriesTheColor();
    void dropStoresTheColor_data();
    void dropStoresTheColor();
    void dropOfOtherDataChangesNothing();
    void draggedOverCells();
    void cellsApartFromTheirArray();
    void deletedInsideSelected_data();
    void deletedInsideSelected();
};

void TestColorArrayDrag::dragStarts_data()
{
    QTest::addColumn<QString>("steps"); // p and r: press and release, with the button; m: move by x, y
    QTest::addColumn<int>("drags");
    const auto row = [](const char *name, const char *steps, int drags) {
        QTest::newRow(name) << QString::fromLatin1(steps) << drags;
    };
    row("exactly the distance", "pL m10,0 m-10,0 m0,10", 0);
    row("exactly the distance, diagonally", "pL m4,6 m-5,-5", 0);
    row("farther", "pL m11,0", 1);
    row("farther, diagonally", "pL m-5,6", 1);
    row("in small steps", "pL m4,0 m8,0 m12,0", 1);
    row("and on", "pL m11,0 m20,0 m40,0", 1);
    row("free cell", "pL m40,0", 0);
    row("without a press", "m40,0", 0);
    row("right button", "pR m40,0", 0);
    row("after the release", "pL rL m40,0", 0);
    row("after another button's release", "pL pR rR m40,0", 0);
    row("with another button too", "pL pR m40,0", 1);
    row("twice", "pL m40,0 rL pL m40,0", 2);
}

void TestColorArrayDrag::dragStarts()
{
    QFETCH(QString, steps);
    QFETCH(int, drags);
    QCOMPARE(QApplication::startDragDistance(), 10);
    m_array->addColor({0, 1, 1});
    QAbstractButton *const source = cell(QTest::currentDataTag() == QByteArray("free cell") ? 1 : 0);
    Pointer pointer(source);
    const QStringList list = steps.split(QLatin1Char(' '));
    for (const QString &step : list) {
        const QStringList by = step.mid(1).split(QLatin1Char(','));
        const auto button = step.endsWith(QLatin1Char('L')) ? Qt::LeftButton : Qt::RightButton;
        if (step.startsWith(QLatin1Char('p')))
            pointer.press({8, 8}, button);
        else if (step.startsWith(QLatin1Char('r')))
            pointer.release({60, 8}, button); // outside, where it does nothing else
        else
            pointer.move(QPoint(8, 8) + QPoint(by[0].toInt(), by[1].toInt()));
    }
    QCOMPARE(source->findChildren<QDrag *>().size(), drags);
    QCOMPARE(current(), drags > 0 ? 0 : -1);
    COMPARE_LOG(m_log, {});
}

void TestColorArrayDrag::dragCarriesTheColor()
{
    QFETCH(Numbers, hsv);
    if (!hsv.isEmpty())
        fill(3, {hsv[0], hsv[1], hsv[2]});
    Reference::Triple rgb = Reference::hsvToRgb(m_array->getColor(3));
    const bool nan = std::isnan(rgb[0]) || std::isnan(rgb[1]) || std::isnan(rgb[2]);
    for (float &channel : rgb)
        channel = nan ? 0.0F : qBound(0.0F, channel, 1.0F);
    const QColor linear = QColor::fromRgbF(qreal(rgb[0]), qreal(rgb[1]), qreal(rgb[2]));
    QImage swatch(16, 16, QImage::Format_RGB32);
    swatch.fill(Qt::black); // the outline; its right and bottom sides lie outside
    QPainter(&swatch).fillRect(1, 1, 15, 15, linear);
    for (const bool useGamma : {true, false}) {
        QLx::colorUseGamma = useGamma; // plays no part
        Pointer pointer(cell(3));
        pointer.press({8, 8});
        pointer.move({40, 8});
        const std::unique_ptr<QDrag> drag(cell(3)->findChild<QDrag *>());
        QCOMPARE(drag == nullptr, hsv.isEmpty());
        if (!drag)
            continue;
        QCOMPARE(drag->mimeData()->colorData().value<QColor>(), linear);
        QCOMPARE(drag->supportedActions(), Qt::CopyAction);
        QCOMPARE(drag->pixmap().toImage().convertToFormat(QImage::Format_RGB32), swatch);
    }
}

void TestColorArrayDrag::dropStoresTheColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("primary") << QColor(Qt::green);
    QTest::newRow("linear, never decoded") << QColor::fromRgbF(0.5, 0.25, 0.75);
    QTest::newRow("magenta side of red") << QColor::fromRgbF(1, 0.2, 0.4);
    QTest::newRow("grey") << QColor(128, 128, 128);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("translucent") << QColor(200, 100, 50, 10);
    QTest::newRow("HSV") << QColor::fromHsvF(0.6, 0.7, 0.8);
    QTest::newRow("CMYK") << QColor::fromCmyk(10, 200, 30, 40);
}

void TestColorArrayDrag::dropStoresTheColor()
{
    QFETCH(QColor, color);
    const auto channel = [](qreal x) { return static_cast<float>(x); };
    const QString expected =
        asText(Reference::rgbToHsv({channel(color.redF()), channel(color.greenF()), channel(color.blueF())}));
    for (const bool useGamma : {true, false}) {
        QLx::colorUseGamma = useGamma; // plays no part
        fill(1);
        for (const int index : {1, 4}) { // filled, free
            QVERIFY(sendDrop(cell(index), colorData(color).get()));
            QCOMPARE(stored(index), expected);
            QCOMPARE(current(), index);
        }
        QCOMPARE(filled(), QStringLiteral("1 4"));
        COMPARE_LOG(m_log, {});
        click(*cell(4)); // only now does the host hear of it
        COMPARE_LOG(m_log, {"selected(4)"});
        freeAllCells();
    }
}

void TestColorArrayDrag::dropOfOtherDataChangesNothing()
{
    m_array->addColor({60, 1, 1});
    QMimeData text;
    text.setText(QStringLiteral("#ff0000"));
    QMimeData garbage; // says that it is a colour, and is none
    garbage.setData(QStringLiteral("application/x-color"), "garbage");
    QMimeData invalid;
    invalid.setColorData(QColor());
    const QMimeData *const candidates[] = {&text, &garbage, &invalid, nullptr};
    for (const QMimeData *const data : candidates) {
        for (const int index : {0, 1}) {
            QVERIFY(!sendEnter(cell(index), data));
            QVERIFY(!sendMove(cell(index), data));
            QVERIFY(!sendDrop(cell(index), data));
        }
    }
    QCOMPARE(filled(), QStringLiteral("0"));
    QCOMPARE(stored(0), QStringLiteral("hsv 60 1 1"));
    QCOMPARE(current(), -1);
    COMPARE_LOG(m_log, {});
}

void TestColorArrayDrag::draggedOverCells()
{
    m_parent->setFocusPolicy(Qt::StrongFocus);
    m_parent->show();
    QApplication::setActiveWindow(m_parent);
    QVERIFY(QTest::qWaitForWindowActive(m_parent));
    m_parent->setFocus();
    EventLog atCell(&m_log);
    cell(2)->installEventFilter(&atCell);
    QMimeData text;
    text.setText(QStringLiteral("no colour"));
    QVERIFY(!sendEnter(cell(2), &text)); // takes the focus whatever is dragged
    m_parent->setFocus();
    const auto data = colorData(Qt::red);
    QVERIFY(sendEnter(cell(2), data.get()));
    COMPARE_LOG(m_log, {"focus 7", "focus 7"}); // Qt::OtherFocusReason
    QCOMPARE(current(), -1);                    // only the first move makes it current
    for (const int index : {2, 0, 10}) {
        QVERIFY(sendMove(cell(index), data.get()));
        QCOMPARE(current(), index);
        QVERIFY(cell(index)->hasFocus());
    }
    QDragLeaveEvent leave;
    QApplication::sendEvent(cell(10), &leave);
    QVERIFY(cell(10)->hasFocus()); // and keeps it
    QCOMPARE(filled(), QString());
}

void TestColorArrayDrag::cellsApartFromTheirArray()
{
    const std::unique_ptr<QAbstractButton> apart(cell(9));
    apart->setParent(nullptr);
    delete cell(3); // the others keep their numbers
    m_array->addColor({60, 1, 1});
    click(*apart, Qt::RightButton); // still belongs to the array that made it
    m_array->addColor({120, 1, 1});
    click(*apart);
    QCOMPARE(picture(apart.get()).pixelColor(0, 0), QColor(Qt::red));
    for (int i = 0; i < 6; ++i)
        QTest::keyClick(m_array, Qt::Key_Left);
    m_array->addColor({240, 1, 1}); // into the one that shows nowhere
    QTest::keyClick(m_array, Qt::Key_Return);
    COMPARE_LOG(m_log, {"selected(9)", "selected(3)"});

    delete m_array;
    QVERIFY(picture(apart.get()).pixelColor(0, 0) == Qt::black);
    QVERIFY(picture(apart.get()).pixelColor(5, 5) != picture(apart.get()).pixelColor(5, 6)); // as if free
    Pointer pointer(apart.get());
    pointer.press({8, 8});
    pointer.move({60, 8});
    QVERIFY(!apart->findChild<QDrag *>());
    pointer.release({8, 8});
    const auto data = colorData(Qt::blue);
    QVERIFY(sendMove(apart.get(), data.get()));
    QVERIFY(sendDrop(apart.get(), data.get())); // accepted, and without effect
    QCOMPARE(filled(), QStringLiteral("0 3 9"));
    COMPARE_LOG(m_log, {});
}

void TestColorArrayDrag::deletedInsideSelected_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("victim");
    for (const char *by : {"click", "Return", "Space", "Return in a cell"})
        for (const char *victim : {"array", "parent", "cell", "all cells"})
            QTest::addRow("%s deletes %s", by, victim)
                << QString::fromLatin1(by) << QString::fromLatin1(victim);
}

void TestColorArrayDrag::deletedInsideSelected()
{
    QFETCH(QString, by);
    QFETCH(QString, victim);
    fill(4);
    const QPointer<QAbstractButton> picked = cell(4);
    // clazy:excludeall=lambda-in-connect (the array goes before this function ends)
    QObject::connect(m_array, &QLxColorArray::selected, m_log.context(), [&] {
        if (victim == QLatin1String("all cells"))
            qDeleteAll(m_array->findChildren<QAbstractButton *>());
        else if (victim == QLatin1String("cell"))
            delete picked;
        else
            delete (victim == QLatin1String("array") ? m_array.data() : m_parent.data());
    });
    if (by == QLatin1String("click"))
        click(*picked);
    else if (by == QLatin1String("Return in a cell"))
        QTest::keyClick(picked, Qt::Key_Return);
    else
        QTest::keyClick(m_array, by == QLatin1String("Space") ? Qt::Key_Space : Qt::Key_Return);
    COMPARE_LOG(m_log, {"selected(4)"});
    QVERIFY(!picked);
    QCOMPARE(m_array.isNull(), !victim.contains(QLatin1String("cell")));
    QCOMPARE(filled(), QStringLiteral("4"));
}

QLX_TEST_MAIN(TestColorArrayDrag)
#include "tst_colorarraydrag.moc"
