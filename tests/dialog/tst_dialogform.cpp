// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The colour dialog's form as it is laid out, what the dialog makes of it, and its texts in translation.
#include "FormTable.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "SignalLog.h"
#include "TestCase.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QTranslator>

#include <algorithm>
#include <memory>

using namespace FormTable;

namespace {

const QString Context = QStringLiteral("QLxColorDialogGUI");

/// The form on a dialog that has nothing else to do with colours.
struct PlainForm : QDialog, Ui::QLxColorDialogGUI
{
    PlainForm() { setupUi(this); }
};

const QString Mark = QStringLiteral("translated: ");

/// Marks every text of the form, and remembers what it was asked for.
class MarkingTranslator : public QTranslator
{
    Q_OBJECT

public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (QString::fromUtf8(context) != Context)
            return {};
        m_asked.append(QString::fromUtf8(source));
        return Mark + m_asked.constLast();
    }
    QStringList take() { return std::exchange(m_asked, {}); }

private:
    mutable QStringList m_asked;
};

} // namespace

class TestDialogForm : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void startsAsListed();
    void opensAtItsInitialSize_data();
    void opensAtItsInitialSize();
    void itemIsAsListed_data();
    void itemIsAsListed();
    void itemInTheDialog_data() { itemIsAsListed_data(); }
    void itemInTheDialog();
    void spacerIsAsListed_data();
    void spacerIsAsListed();
    void tableNamesEveryWidget();
    void placeholdersUntilTheDialogHasAColor();
    void hueIsTheOnlyCheckedMode();
    void spinBoxesShowThreeDecimals();
    void fourSwatchesOpenNoDialog();
    void toolTipOfTheCustomColors();
    void dialogTakesAGivenName();
    void everyTextIsTranslated();
    void liveLabelsAreNotTranslated();
    void slotsAreConnectedByNameLast();
    void dialogHasNoSlotToConnectByName();
    void noButtonIsADefault();
    void returnPressesNothing_data();
    void returnPressesNothing();

private:
    const QFont m_font = QApplication::font();
};

void TestDialogForm::cleanup()
{
    QLx::colorUseGamma = true;
    QApplication::setFont(m_font);
    TestCase::cleanup();
}

void TestDialogForm::startsAsListed()
{
    const PlainForm form;
    const QLxColorDialog dialog({}, nullptr, nullptr);
    for (const QDialog *top : std::initializer_list<const QDialog *>{&form, &dialog}) {
        QCOMPARE(top->objectName(), QStringLiteral("QLxColorDialogGUI"));
        QCOMPARE(top->windowTitle(), QStringLiteral("Choose a Color"));
        QCOMPARE(top->size(), QSize(894, 668));
    }
    QCOMPARE(dialog.windowFlags(), QDialog().windowFlags());
    QVERIFY(!dialog.isModal());
}

void TestDialogForm::opensAtItsInitialSize_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("9 pt") << 9;
    QTest::newRow("13 pt") << 13;
}

void TestDialogForm::opensAtItsInitialSize()
{
    QFETCH(int, points);
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.size(), QSize(894, 668));
    QVERIFY(dialog.minimumSizeHint().width() <= 894 && dialog.minimumSizeHint().height() <= 668);
}

void TestDialogForm::itemIsAsListed_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < std::size(items); ++i)
        QTest::newRow(items[i].name) << static_cast<int>(i);
}

void TestDialogForm::itemIsAsListed()
{
    QFETCH(int, index);
    const Item &item = items[index];
    const PlainForm form;
    const QList<QObject *> found = form.findChildren<QObject *>(text(item.name));
    QCOMPARE(found.size(), 1);
    QCOMPARE(text(found.first()->metaObject()->className()), text(item.className));
    const QString place = text(item.place);
    if (place.startsWith(QLatin1String("in ")))
        QVERIFY(isIn(found.first()->parent(), place.mid(3)));
    else
        QCOMPARE(placeOf(found.first(), &form), place);
    const QVector<Setting> all = settings(item);
    for (const Setting &setting : all)
        QCOMPARE(setting.name + QLatin1Char('=') + settingText(found.first(), setting.name, setting.value),
                 setting.name + QLatin1Char('=') + setting.value);
}

void TestDialogForm::itemInTheDialog()
{
    QFETCH(int, index);
    const Item &item = items[index];
    const QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    auto *const found = dialog.findChild<QObject *>(text(item.name));
    QVERIFY(found);
    const QVector<Setting> all = settings(item);
    for (const Setting &setting : all)
        QCOMPARE(setting.name + QLatin1Char('=') + settingText(found, setting.name, setting.value),
                 setting.name + QLatin1Char('=') + inDialog(item.name, setting));
}

void TestDialogForm::spacerIsAsListed_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < std::size(spacers); ++i)
        QTest::newRow(spacers[i].place) << static_cast<int>(i);
}

void TestDialogForm::spacerIsAsListed()
{
    QFETCH(int, index);
    const auto &listed = spacers[index];
    const PlainForm form;
    QLayoutItem *const item = layoutItems(&form).value(text(listed.place));
    QVERIFY(item);
    const QSpacerItem *const spacer = item->spacerItem();
    QVERIFY(spacer);
    if (listed.size)
        QCOMPARE(sizeText(spacer->sizeHint()), text(listed.size));
    if (listed.grows)
        QCOMPARE(spacer->expandingDirections() == Qt::Horizontal ? QStringLiteral("horizontally")
                 : spacer->expandingDirections() == Qt::Vertical ? QStringLiteral("vertically")
                                                                 : QStringLiteral("otherwise"),
                 text(listed.grows));
}

void TestDialogForm::tableNamesEveryWidget()
{
    const PlainForm form;
    QStringList missing;
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString name = widget->objectName();
        const bool own = name.isEmpty() || name.startsWith(QLatin1String("qt_")) ||
                         qobject_cast<QTabBar *>(widget->parent()); // parts of another widget
        const bool listed = std::any_of(std::begin(items), std::end(items),
                                        [&](const Item &item) { return name == text(item.name); });
        if (!own && !listed)
            missing.append(name);
    }
    QCOMPARE(missing.join(QLatin1Char(' ')), QString());
}

void TestDialogForm::placeholdersUntilTheDialogHasAColor()
{
    const PlainForm form;
    const QLxColorDialog dialog({}, nullptr, nullptr);
    for (const auto &label : liveLabels) {
        QCOMPARE(form.findChild<QLabel *>(text(label.name))->text(), text(label.placeholder));
        QVERIFY(dialog.findChild<QLabel *>(text(label.name))->text() != text(label.placeholder));
    }
}

void TestDialogForm::hueIsTheOnlyCheckedMode()
{
    const PlainForm form;
    const QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    for (const QDialog *top : std::initializer_list<const QDialog *>{&form, &dialog}) {
        QStringList checked;
        const QList<QRadioButton *> buttons = top->findChildren<QRadioButton *>();
        QCOMPARE(buttons.size(), 9);
        for (const QRadioButton *button : buttons)
            if (button->isChecked())
                checked.append(button->objectName());
        QCOMPARE(checked, QStringList{QStringLiteral("_hueButton")});
    }
}

void TestDialogForm::spinBoxesShowThreeDecimals()
{
    const QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    const QList<QLxDoubleSpiner *> boxes = dialog.findChildren<QLxDoubleSpiner *>();
    QCOMPARE(boxes.size(), 9);
    for (const QLxDoubleSpiner *box : boxes) {
        QCOMPARE(box->displayDecimals(), 3);
        QVERIFY(box->useExactDisplayDecimals());
        QCOMPARE(box->text().section(QLatin1Char('.'), 1).size(), 3);
    }
    QCOMPARE(dialog._hueSpiner->text(), QStringLiteral("200.000"));
    QCOMPARE(dialog._saturationSpiner->text(), QStringLiteral("0.500"));
}

void TestDialogForm::fourSwatchesOpenNoDialog()
{
    // They belong to the dialog: a click on one must not take it away from the host's button.
    const QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    const QList<QLxColorButton *> swatches = dialog.findChildren<QLxColorButton *>();
    QCOMPARE(swatches.size(), 4);
    for (QLxColorButton *const swatch : swatches) {
        if (swatch != dialog._previous_color) // which restores its colour
            Q_EMIT swatch->clicked();
        QVERIFY(!sharedColorDialog);
    }
}

void TestDialogForm::toolTipOfTheCustomColors()
{
    const PlainForm form;
    const QString toolTip = form._custom_colors->toolTip();
    QVERIFY(Qt::mightBeRichText(toolTip));
    QVERIFY(toolTip.startsWith(QLatin1String("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4")));
    QTextDocument document;
    document.setHtml(toolTip);
    QStringList runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextCharFormat format = fragment.fragment().charFormat();
            QCOMPARE(format.fontPointSize(), 8.0);
            runs.append((format.fontWeight() >= QFont::Bold ? QStringLiteral("b:") : QString()) +
                        (format.fontItalic() ? QStringLiteral("i:") : QString()) +
                        fragment.fragment().text());
        }
    }
    QCOMPARE(runs.join(QLatin1Char('\n')),
             logText({"Click to choose a color slot.", "b:Right click ", "to just choose the slot while ",
                      "i:not", " picking the stored color.", "b: Left click", " to choose the slot ", "i:and",
                      " to pick the stored color."}));
}

void TestDialogForm::dialogTakesAGivenName()
{
    const QLxColorDialog dialog({}, nullptr, "chosen");
    QCOMPARE(dialog.objectName(), QStringLiteral("chosen"));
}

void TestDialogForm::everyTextIsTranslated()
{
    PlainForm form;
    const QStringList before = shownTexts(&form);
    MarkingTranslator translator;
    form.retranslateUi(&form);
    const QStringList asked = translator.take();
    const QStringList listed = listedTexts();
    QVERIFY(listed.size() > 100);
    for (const QString &each : listed)
        QVERIFY2(asked.contains(each), qPrintable(each));
    for (const auto &label : liveLabels)
        QVERIFY2(asked.contains(text(label.placeholder)), label.placeholder);
    QVERIFY(asked.contains(form._custom_colors->toolTip().mid(Mark.size())));
    // And nothing is left that is not.
    const QStringList after = shownTexts(&form);
    QCOMPARE(after.size(), before.size());
    for (int i = 0; i < after.size(); ++i)
        QCOMPARE(after.at(i), Mark + before.at(i));
    // The form is translated from the beginning where a translator is there.
    QCOMPARE(PlainForm().windowTitle(), Mark + QStringLiteral("Choose a Color"));
}

void TestDialogForm::liveLabelsAreNotTranslated()
{
    MarkingTranslator translator;
    QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    QCOMPARE(dialog._accept->text(), Mark + QStringLiteral("Accept"));
    translator.take();
    dialog.setColor({100, 0.25F, 0.75F});
    QCOMPARE(translator.take(), QStringList());
    QCOMPARE(dialog._h_label->text(), QStringLiteral("H: 100.0000"));
    for (const auto &label : liveLabels) {
        const QString prefix = text(label.placeholder).section(QLatin1Char(' '), 0, 0);
        const QString shown = dialog.findChild<QLabel *>(text(label.name))->text();
        QVERIFY2(shown.startsWith(prefix + QLatin1Char(' ')), qPrintable(shown));
    }
}

namespace {

/// Has a slot with a name by which the form can find it.
class NamedSlots : public QDialog
{
    Q_OBJECT

public:
    int m_clicks = 0;

private Q_SLOTS:
    void on__accept_clicked() { ++m_clicks; } // clazy:exclude=connect-by-name
};

} // namespace

void TestDialogForm::slotsAreConnectedByNameLast()
{
    NamedSlots host;
    Ui::QLxColorDialogGUI form;
    form.setupUi(&host);
    form._accept->click();
    QCOMPARE(host.m_clicks, 1);
}

void TestDialogForm::dialogHasNoSlotToConnectByName()
{
    const QMetaObject &meta = QLxColorDialog::staticMetaObject;
    for (int i = 0; i < meta.methodCount(); ++i)
        QVERIFY2(!meta.method(i).name().startsWith("on_"), meta.method(i).name().constData());
}

void TestDialogForm::noButtonIsADefault()
{
    QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 15);
    for (QPushButton *const button : buttons) {
        button->setFocus(); // which makes an auto-default button the default
        QVERIFY2(!button->isDefault() && !button->autoDefault(), qPrintable(button->objectName()));
    }
}

void TestDialogForm::returnPressesNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestDialogForm::returnPressesNothing()
{
    QFETCH(int, key);
    QLxColorDialog dialog({200, 0.5F, 0.5F}, nullptr, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    SignalLog log;
    log.watch(&dialog, &QDialog::finished, "finished");
    const QList<QAbstractButton *> buttons = dialog.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        log.watch(button, &QAbstractButton::pressed, "pressed");
        log.watch(button, &QAbstractButton::clicked, "clicked");
        log.watch(button, &QAbstractButton::toggled, "toggled");
    }
    const QList<QAbstractSpinBox *> boxes = dialog.findChildren<QAbstractSpinBox *>();
    QCOMPARE(boxes.size(), 16); // nine on the colour page, seven on the other
    dialog._spectrum_input_group->setChecked(true);
    dialog._enableSamplingEditor->setChecked(true);
    log.take();
    for (QAbstractSpinBox *const box : boxes) {
        dialog.tabWidget->setCurrentIndex(isIn(box, QStringLiteral("_spectrum_tab")) ? 1 : 0);
        box->setFocus();
        QVERIFY2(box->hasFocus(), qPrintable(box->objectName()));
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("1"));
        SignalLog edits;
        edits.watch(box, &QAbstractSpinBox::editingFinished, "editingFinished");
        QTest::keyClick(box, static_cast<Qt::Key>(key)); // to the box, which passes it on to the dialog
        COMPARE_LOG(edits, {"editingFinished()"});
        COMPARE_LOG(log, {});
        QVERIFY(dialog.isVisible());
    }
}

QLX_TEST_MAIN(TestDialogForm)
#include "tst_dialogform.moc"
