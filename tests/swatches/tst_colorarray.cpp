// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The row of custom colours: what it stores and paints, mouse and keys.
#include "ArrayProbe.h"

class TestColorArray : public ArrayTest
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
    void startsAsDocumented();
    void colorsFillFreeCells();
    void colorsReplaceTheCurrentCell();
    void colorsAreStoredByWayOfRgb_data();
    void colorsAreStoredByWayOfRgb();
    void badIndices();
    void arraysShareTheirColors();
    void paintsCells_data() { cellColorRows(); }
    void paintsCells();
    void repaintsWhatHasChanged();
    void mouse_data();
    void mouse();
    void mouseAsNoOtherButton();
    void keys_data();
    void keys();
    void keysOfTheCells();
};

void TestColorArray::startsAsDocumented()
{
    QCOMPARE(m_array->minimumHeight(), 16);
    QCOMPARE(m_array->focusPolicy(), Qt::NoFocus);
    const auto *const row = qobject_cast<QBoxLayout *>(m_array->layout());
    QVERIFY(row);
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->spacing(), QHBoxLayout(m_parent).spacing());
    QCOMPARE(row->count(), Count);
    m_array->setFixedWidth(m_array->sizeHint().width());
    m_array->setParent(nullptr);
    m_array->show();
    for (int i = 0; i < Count; ++i) {
        QCOMPARE(cell(i)->geometry(), QRect(i * (16 + row->spacing()), 0, 16, 16));
        QCOMPARE(cell(i)->minimumSize(), QSize(16, 16));
        QCOMPARE(cell(i)->maximumSize(), QSize(16, 16));
        QCOMPARE(cell(i)->parentWidget(), m_array);
        QVERIFY(cell(i)->acceptDrops());
        QVERIFY(m_array->isFreeCell(i));
        QCOMPARE(stored(i), QStringLiteral("hsv 0 0 0"));
    }
    QCOMPARE(current(), -1);
    const QLxColorArray other;
    QCOMPARE(processCells().size(), Count); // the other has added none
    delete m_array;
}

void TestColorArray::colorsFillFreeCells()
{
    m_array->addColor({60, 1, 1});
    QCOMPARE(filled(), QStringLiteral("0"));
    QVERIFY(sendDrop(cellOf(QLxColorArray(), 2), colorData(Qt::green).get()));
    m_array->addColor({300, 1, 1});
    m_array->addColor({180, 1, 1}); // past the one that was dropped
    QCOMPARE(filled(), QStringLiteral("0 1 2 3"));
    QCOMPARE(stored(2), QStringLiteral("hsv 120 1 1"));
    QCOMPARE(stored(3), QStringLiteral("hsv 180 1 1"));
    for (int i = 4; i < Count; ++i)
        m_array->addColor({0, 1, 0.0625F * static_cast<float>(i)});
    QCOMPARE(filled(), QStringLiteral("0 1 2 3 4 5 6 7 8 9 10"));
    QCOMPARE(stored(10), QStringLiteral("hsv 0 1 0.625"));
    m_array->addColor({240, 1, 1}); // none is free
    QCOMPARE(stored(0), QStringLiteral("hsv 240 1 1"));
    QCOMPARE(stored(1), QStringLiteral("hsv 300 1 1"));
    QCOMPARE(current(), -1);
    COMPARE_LOG(m_log, {});
}

void TestColorArray::colorsReplaceTheCurrentCell()
{
    m_array->addColor({60, 1, 1});
    click(*cell(4));
    for (const float value : {1.0F, 0.5F, 0.25F}) {
        m_array->addColor({120, 1, value});
        QCOMPARE(filled(), QStringLiteral("0 4"));
        QCOMPARE(m_array->getColor(4).value, value);
        QCOMPARE(current(), 4);
    }
    COMPARE_LOG(m_log, {});
}

void TestColorArray::colorsAreStoredByWayOfRgb_data()
{
    QTest::addColumn<Numbers>("given");
    QTest::newRow("as it is") << Numbers{120, 1, 0.5F};
    QTest::newRow("a grey loses its hue") << Numbers{200, 0, 0.5F};
    QTest::newRow("black loses all") << Numbers{200, 0.5F, 0};
    QTest::newRow("negative hue") << Numbers{-30, 1, 1};
    QTest::newRow("magenta side of red") << Numbers{345, 0.5F, 1};
    QTest::newRow("full turn") << Numbers{360, 1, 1};
    QTest::newRow("far over the full turn") << Numbers{1e9F, 0.5F, 1};
    QTest::newRow("far above white") << Numbers{0, 0, 1e6F};
    QTest::newRow("negative value") << Numbers{60, 1, -1};
    QTest::newRow("saturation above 1") << Numbers{60, 2, 1};
    QTest::newRow("NaN hue") << Numbers{Nan, 1, 1};
    QTest::newRow("NaN value") << Numbers{0, 0, Nan};
    QTest::newRow("infinite") << Numbers{0, 0, std::numeric_limits<float>::infinity()};
}

void TestColorArray::colorsAreStoredByWayOfRgb()
{
    QFETCH(Numbers, given);
    const QLxColor color{given[0], given[1], given[2]};
    m_array->addColor(color);
    QCOMPARE(stored(0), asText(Reference::rgbToHsv(Reference::hsvToRgb(color))));
    if (QString::fromLatin1(QTest::currentDataTag()).startsWith(QStringLiteral("a grey")))
        QCOMPARE(stored(0), QStringLiteral("hsv 0 0 0.5"));
    QLx::colorUseGamma = false; // plays no part
    m_array->addColor(color);
    QCOMPARE(stored(1), stored(0));
    QVERIFY(!m_array->grab().isNull());
}

void TestColorArray::badIndices()
{
    for (int i = 0; i < Count; ++i)
        m_array->addColor({0, 1, 1});
    constexpr auto lowest = std::numeric_limits<int>::min();
    for (const int index : {lowest, -2, -1, Count, Count + 1, std::numeric_limits<int>::max()}) {
        QVERIFY(m_array->isFreeCell(index));
        QCOMPARE(stored(index), QStringLiteral("hsv 0 0 0"));
    }
}

void TestColorArray::arraysShareTheirColors()
{
    QLxColorArray other;
    m_log.watch(&other, &QLxColorArray::selected, "other");
    fill(7, {120, 1, 1});
    QCOMPARE(filled(other), QStringLiteral("7"));
    QCOMPARE(picture(cellOf(other, 7)).pixelColor(8, 8), Reference::display({120, 1, 1}, true));
    QCOMPARE(current(), 7); // which is each array's own
    QCOMPARE(currentOf(other), -1);
    other.addColor({240, 1, 1});
    QCOMPARE(stored(0), QStringLiteral("hsv 240 1 1"));
    click(*cellOf(other, 7));
    COMPARE_LOG(m_log, {"other(7)"});
    delete m_array; // the colours survive it
    QCOMPARE(filled(other), QStringLiteral("0 7"));
    m_array = new QLxColorArray(m_parent);
    QCOMPARE(filled(*m_array), QStringLiteral("0 7"));
    QCOMPARE(stored(7), QStringLiteral("hsv 120 1 1"));
    QCOMPARE(current(), -1);
}

void TestColorArray::paintsCells()
{
    QFETCH(Numbers, hsv);
    if (!hsv.isEmpty())
        m_array->addColor({hsv[0], hsv[1], hsv[2]});
    for (const bool isCurrent : {false, true}) {
        makeCurrent(isCurrent ? 0 : 5);
        for (const bool useGamma : {true, false}) {
            QLx::colorUseGamma = useGamma; // read at each repaint
            const QImage actual = picture(cell(0));
            for (int x = 0; x < 16; ++x)
                for (int y = 0; y < 16; ++y) {
                    QColor expected = (x + y) % 2 ? Qt::black : Qt::white; // every other pixel is left alone
                    if (x % 15 == 0 || y % 15 == 0)
                        expected = isCurrent ? Qt::red : Qt::black;
                    else if (!hsv.isEmpty())
                        expected = Reference::display(m_array->getColor(0), useGamma);
                    QCOMPARE(actual.pixelColor(x, y), expected);
                }
        }
    }
}

void TestColorArray::repaintsWhatHasChanged()
{
    m_parent->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_parent));
    PaintCounter first(cell(0));
    PaintCounter second(cell(1));
    const auto painted = [&](const std::function<void()> &act) {
        first.takeScheduled();
        second.take();
        act();
        const int firstPaints = first.takeScheduled();
        return QPoint(firstPaints, second.take());
    };
    QCOMPARE(painted([&] { m_array->addColor({10, 1, 1}); }), QPoint(1, 0));
    QCOMPARE(painted([&] { m_array->addColor({10, 1, 1}); }), QPoint(0, 1));
    QCOMPARE(painted([&] { click(*cell(3), Qt::MiddleButton); }), QPoint(0, 0));
    QCOMPARE(painted([&] { click(*cell(3), Qt::RightButton); }), QPoint(1, 1));
    QCOMPARE(painted([&] { click(*cell(3)); }), QPoint(1, 1));
    QCOMPARE(painted([&] { QTest::keyClick(m_array, Qt::Key_Right); }), QPoint(1, 1));
    QCOMPARE(painted([&] { QTest::keyClick(m_array, Qt::Key_Return); }), QPoint(1, 1));
    QCOMPARE(painted([&] { sendDrop(cell(9), colorData(Qt::red).get()); }), QPoint(1, 1));
}

void TestColorArray::mouse_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("released");
    QTest::addColumn<bool>("counts");
    const std::pair<const char *, Qt::MouseButton> buttons[] = {
        {"left", Qt::LeftButton}, {"right", Qt::RightButton}, {"middle", Qt::MiddleButton}};
    for (const auto &[name, button] : buttons) {
        const bool counts = button != Qt::MiddleButton;
        QTest::addRow("%s, inside", name) << int(button) << QPoint(5, 5) << counts;
        QTest::addRow("%s, first pixel", name) << int(button) << QPoint(0, 0) << counts;
        QTest::addRow("%s, just past the corner", name) << int(button) << QPoint(16, 16) << counts;
        QTest::addRow("%s, left", name) << int(button) << QPoint(-1, 5) << false;
        QTest::addRow("%s, above", name) << int(button) << QPoint(5, -1) << false;
        QTest::addRow("%s, right", name) << int(button) << QPoint(17, 5) << false;
        QTest::addRow("%s, below", name) << int(button) << QPoint(5, 17) << false;
    }
}

void TestColorArray::mouse()
{
    QFETCH(int, button);
    QFETCH(QPoint, released);
    QFETCH(bool, counts);
    QObject::connect(m_array, &QLxColorArray::selected, m_log.context(),
                     [this] { m_log.note(QStringLiteral("while %1 is current").arg(current())); });
    for (const bool full : {false, true}) {
        if (full)
            fill(4);
        makeCurrent(8);
        Pointer pointer(cell(4));
        pointer.press({5, 5}, static_cast<Qt::MouseButton>(button));
        QCOMPARE(current(), 8);
        COMPARE_LOG(m_log, {});
        pointer.release(released, static_cast<Qt::MouseButton>(button));
        QCOMPARE(current(), counts ? 4 : 8);
        if (counts && full && button == Qt::LeftButton)
            COMPARE_LOG(m_log, {"selected(4)", "while 4 is current"});
        COMPARE_LOG(m_log, {});
    }
}

void TestColorArray::mouseAsNoOtherButton()
{
    fill(0);
    m_log.watch(cell(0), &QAbstractButton::pressed, "pressed");
    m_log.watch(cell(0), &QAbstractButton::released, "released");
    m_log.watch(cell(0), &QAbstractButton::clicked, "clicked");
    Pointer pointer(cell(0));
    pointer.press({3, 3});
    QVERIFY(!cell(0)->isDown());
    pointer.release({3, 3});
    COMPARE_LOG(m_log, {"selected(0)"}); // and nothing of the base class's
    pointer.release({3, 3});             // also without a press
    COMPARE_LOG(m_log, {"selected(0)"});
    m_array->setEnabled(false);
    click(*cell(0));
    COMPARE_LOG(m_log, {});
}

void TestColorArray::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<QString>("log");
    const auto row = [](int key, int before, int after, const QString &log = {}) {
        QTest::addRow("%s at %d", qPrintable(QKeySequence(key).toString()), before)
            << key << before << after << log;
    };
    for (const auto &[before, after] : {std::pair(-1, 0), {0, 1}, {9, 10}, {10, 10}})
        row(Qt::Key_Right, before, after);
    for (const auto &[before, after] : {std::pair(-1, -1), {10, 9}, {1, 0}, {0, 0}})
        row(Qt::Key_Left, before, after);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        row(key, -1, -1);
        row(key, 0, 0, QStringLiteral("selected(0)"));
        row(key, 10, 10, QStringLiteral("selected(10)"));
        row(key, 5, 5); // free
    }
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_A})
        row(key, 4, 4, QStringLiteral("key %1").arg(key)); // goes on to the parent
}

void TestColorArray::keys()
{
    QFETCH(int, key);
    QFETCH(int, before);
    for (int i = 0; i < Count; ++i)
        if (i != 5)
            fill(i);
    if (before < 0) {
        delete m_array;
        m_array = new QLxColorArray(m_parent);
        m_log.watch(m_array.data(), &QLxColorArray::selected, "selected");
    } else {
        makeCurrent(before);
    }
    EventLog atParent(&m_log);
    m_parent->installEventFilter(&atParent);
    QTest::keyClick(m_array, static_cast<Qt::Key>(key));
    QTEST(m_log.take().join(QLatin1Char('\n')), "log");
    QTEST(current(), "after");
}

void TestColorArray::keysOfTheCells()
{
    m_parent->show();
    QApplication::setActiveWindow(m_parent);
    QVERIFY(QTest::qWaitForWindowActive(m_parent));
    fill(0);
    m_log.watch(cell(6), &QAbstractButton::clicked, "clicked");
    EventLog atParent(&m_log);
    m_parent->installEventFilter(&atParent);
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    cell(6)->setFocus();
    press(Qt::Key_Return); // left to the array, which picks its current cell
    press(Qt::Key_Enter);
    COMPARE_LOG(m_log, {"selected(0)", "selected(0)"});
    press(Qt::Key_A);
    COMPARE_LOG(m_log, {"key 65"});
    press(Qt::Key_Space); // any button's own
    COMPARE_LOG(m_log, {"clicked(false)"});
    press(Qt::Key_Right);
    QVERIFY(cell(7)->hasFocus());
    press(Qt::Key_Up);
    QVERIFY(cell(6)->hasFocus());
    QCOMPARE(current(), 0);
    COMPARE_LOG(m_log, {});
}

QLX_TEST_MAIN(TestColorArray)
#include "tst_colorarray.moc"
