// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The row of custom colours: what it stores and paints, mouse, keys, drags and drops.
#include "ButtonProbe.h"
#include "PaintCounter.h"
#include "QLxColorArray.h"
#include "QLxColorCell_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "TestCase.h"

#include <QBoxLayout>
#include <QDrag>
#include <QPainter>

#include <functional>
#include <limits>

namespace {

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
constexpr int Count = 11;
using Numbers = QVector<float>;

// The colours last as long as the process; that each test can start without any, it frees them from behind.
QList<QLxColorCellData *> &processCells();
template <auto Cells>
struct Behind
{
    friend QList<QLxColorCellData *> &processCells() { return *Cells; }
};
template struct Behind<&QLxColorArray::s_cellData>;

void freeAllCells()
{
    for (QLxColorCellData *const cell : qAsConst(processCells()))
        *cell = QLxColorCellData();
}

QAbstractButton *cellOf(const QLxColorArray &array, int index)
{
    return static_cast<QAbstractButton *>(array.layout()->itemAt(index)->widget());
}

QImage picture(QWidget *cell)
{
    QImage image(cell->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    cell->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The index of the cell with the red frame, -1 if there is none.
int currentOf(const QLxColorArray &array)
{
    int current = -1;
    for (int i = 0; i < Count; ++i)
        if (picture(cellOf(array, i)).pixelColor(0, 0) == Qt::red)
            current = current < 0 ? i : Count; // at most one
    return current;
}

/// Indices of the filled cells.
QString filled(const QLxColorArray &array = QLxColorArray())
{
    QStringList indices;
    for (int i = 0; i < Count; ++i)
        if (!array.isFreeCell(i))
            indices.append(QString::number(i));
    return indices.join(QLatin1Char(' '));
}

/// Logs the keys and the focus reasons of what it watches.
class EventLog : public QObject
{
public:
    explicit EventLog(SignalLog *log)
        : m_log(log)
    {
    }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            m_log->note(QStringLiteral("key %1").arg(static_cast<QKeyEvent *>(event)->key()));
        else if (event->type() == QEvent::FocusIn)
            m_log->note(QStringLiteral("focus %1").arg(static_cast<QFocusEvent *>(event)->reason()));
        return false;
    }

private:
    SignalLog *m_log;
};

} // namespace

class TestColorArray : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startsAsDocumented();
    void colorsFillFreeCells();
    void colorsReplaceTheCurrentCell();
    void colorsAreStoredByWayOfRgb_data();
    void colorsAreStoredByWayOfRgb();
    void badIndices();
    void arraysShareTheirColors();
    void paintsCells_data();
    void paintsCells();
    void repaintsWhatHasChanged();
    void mouse_data();
    void mouse();
    void mouseAsNoOtherButton();
    void keys_data();
    void keys();
    void keysOfTheCells();
    void dragStarts_data();
    void dragStarts();
    void dragCarriesTheColor_data() { paintsCells_data(); }
    void dragCarriesTheColor();
    void dropStoresTheColor_data();
    void dropStoresTheColor();
    void dropOfOtherDataChangesNothing();
    void draggedOverCells();
    void cellsApartFromTheirArray();
    void deletedInsideSelected_data();
    void deletedInsideSelected();

private:
    QAbstractButton *cell(int index) const { return cellOf(*m_array, index); }
    int current() const { return currentOf(*m_array); }
    QString stored(int index) const { return asText(m_array->getColor(index)); }
    void makeCurrent(int index) { click(*cell(index), Qt::RightButton); }
    void fill(int index, const QLxColor &color = {0, 1, 1})
    {
        makeCurrent(index);
        m_array->addColor(color);
    }

    QPointer<QWidget> m_parent;
    QPointer<QLxColorArray> m_array;
    SignalLog m_log;
};

void TestColorArray::init()
{
    TestCase::init();
    m_parent = new QWidget;
    m_array = new QLxColorArray(m_parent);
    freeAllCells();
    m_log.watch(m_array.data(), &QLxColorArray::selected, "selected");
}

void TestColorArray::cleanup()
{
    delete m_parent;
    m_log.take();
    freeAllCells();
    QLx::colorUseGamma = true;
    TestCase::cleanup();
}

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

void TestColorArray::paintsCells_data()
{
    QTest::addColumn<Numbers>("hsv");
    QTest::newRow("free") << Numbers();
    QTest::newRow("white") << Numbers{0, 0, 1};
    QTest::newRow("mid grey") << Numbers{0, 0, 0.5F};
    QTest::newRow("green") << Numbers{120, 1, 0.5F};
    QTest::newRow("orange") << Numbers{30, 0.8F, 0.7F};
    QTest::newRow("black, which is not free") << Numbers{0, 0, 0};
    QTest::newRow("above white") << Numbers{0, 0, 5};
    QTest::newRow("channels below 0") << Numbers{30, 3, 1};
    QTest::newRow("NaN") << Numbers{0, 0, Nan};
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

void TestColorArray::dragStarts_data()
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

void TestColorArray::dragStarts()
{
    QFETCH(QString, steps);
    QFETCH(int, drags);
    QCOMPARE(QApplication::startDragDistance(), 10);
    m_array->addColor({0, 1, 1});
    QAbstractButton *const source = cell(QTest::currentDataTag() == QByteArray("free cell") ? 1 : 0);
    Pointer pointer(source);
    for (const QString &step : steps.split(QLatin1Char(' '))) {
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

void TestColorArray::dragCarriesTheColor()
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

void TestColorArray::dropStoresTheColor_data()
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

void TestColorArray::dropStoresTheColor()
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

void TestColorArray::dropOfOtherDataChangesNothing()
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

void TestColorArray::draggedOverCells()
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

void TestColorArray::cellsApartFromTheirArray()
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

void TestColorArray::deletedInsideSelected_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("victim");
    for (const char *by : {"click", "Return", "Space", "Return in a cell"})
        for (const char *victim : {"array", "parent", "cell", "all cells"})
            QTest::addRow("%s deletes %s", by, victim)
                << QString::fromLatin1(by) << QString::fromLatin1(victim);
}

void TestColorArray::deletedInsideSelected()
{
    QFETCH(QString, by);
    QFETCH(QString, victim);
    fill(4);
    const QPointer<QAbstractButton> picked = cell(4);
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

QLX_TEST_MAIN(TestColorArray)
#include "tst_colorarray.moc"
