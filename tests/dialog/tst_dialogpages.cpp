// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The colour dialog's custom colours, and its spectrum page, which does nothing.
#include "DialogProbe.h"

class TestDialogPages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void halfTypedNumberIsCommittedByLeavingThePage();
    void halfTypedNumberIsDroppedByCancelling_data();
    void halfTypedNumberIsDroppedByCancelling();

    // Custom colours
    void customColorIsTheSameWhateverTheSetting_data();
    void customColorIsTheSameWhateverTheSetting();
    void greyLosesItsHueAsACustomColor();
    void freeCellDoesNothing();
    void chosenCellIsStoredIntoAgainAndAgain();

    // Pages
    void tabChangedRefreshesForTheColorPage();
    void spectrumSlotDoesNothing_data();
    void spectrumSlotDoesNothing();
    void spectrumControlChangesNoColor_data();
    void spectrumControlChangesNoColor();
    void analyticFunctionShowsItsParameters_data();
    void analyticFunctionShowsItsParameters();
    void resizingTheSpectrumPageSetsTheScene();
};

void TestDialogPages::cleanup()
{
    QLx::colorUseGamma = true;
    QLx::colorGammaValue = 2.2F;
    delete sharedColorDialog.data();
    TestCase::cleanup();
}

void TestDialogPages::customColorIsTheSameWhateverTheSetting_data()
{
    QTest::addColumn<bool>("stored");
    QTest::addColumn<bool>("picked");
    QTest::newRow("stored with sRGB, picked with it") << true << true;
    QTest::newRow("stored with sRGB, picked without") << true << false;
    QTest::newRow("stored without sRGB, picked with it") << false << true;
    QTest::newRow("stored without sRGB, picked without") << false << false;
}

void TestDialogPages::customColorIsTheSameWhateverTheSetting()
{
    QFETCH(bool, stored);
    QFETCH(bool, picked);
    Probe dialog;
    dialog.show();
    click(dialog.cell(1), Qt::RightButton); // to store there
    QLx::colorUseGamma = stored;
    QTest::mouseClick(dialog._store_custom_color, Qt::LeftButton);
    COMPARE_LOG(dialog.log, {});
    const QLxColor kept = Reference::rgbToHsv(Reference::hsvToRgb(Sample));
    COMPARE_COLOR(dialog._custom_colors->getColor(1), kept);
    dialog.setColor(Other);
    dialog.log.take();
    QLx::colorUseGamma = picked;
    Probe another; // shows the same colours
    for (Probe *const each : {&dialog, &another, &another}) {
        click(each->cell(1)); // the second time it has the colour already
        COMPARE_COLOR(each->linear(), kept);
        COMPARE_LOG(each->log, {announced(picked ? kept : encoded(kept))});
    }
}

void TestDialogPages::greyLosesItsHueAsACustomColor()
{
    Probe dialog({200.0F, 0.0F, 0.5F});
    click(dialog.cell(2), Qt::RightButton);
    dialog._store_custom_color->click();
    COMPARE_LOG(dialog.log, {});
    click(dialog.cell(2));
    COMPARE_LOG(dialog.log, {announced({0.0F, 0.0F, 0.5F})});
}

void TestDialogPages::freeCellDoesNothing()
{
    Probe dialog;
    QVERIFY(dialog._custom_colors->isFreeCell(10)); // no test fills it
    click(dialog.cell(10));
    for (const int index : {10, 11, -1})
        dialog.call("getCustomColor", index);
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
}

void TestDialogPages::chosenCellIsStoredIntoAgainAndAgain()
{
    Probe dialog;
    click(dialog.cell(4));
    for (const QLxColor &color : {Sample, Other}) {
        dialog.setColor(color);
        dialog._store_custom_color->click();
        COMPARE_COLOR(dialog._custom_colors->getColor(4), Reference::rgbToHsv(Reference::hsvToRgb(color)));
    }
    QVERIFY(dialog._custom_colors->isFreeCell(5));
}

void TestDialogPages::tabChangedRefreshesForTheColorPage()
{
    Probe dialog;
    dialog.show();
    const float position = dialog._greenSlider->getValue();
    dialog._greenSlider->blockSignals(true);
    dialog._greenSlider->setValue(0.125F);
    dialog._redSpiner->blockSignals(true);
    dialog._redSpiner->setValue(0.75);
    dialog.tabWidget->setCurrentIndex(1); // connected to nothing
    dialog.tabWidget->setCurrentIndex(0);
    for (const int index : {1, 2, -1})
        dialog.call("tabChanged", index);
    QCOMPARE(dialog._greenSlider->getValue(), 0.125F);
    QCOMPARE(dialog._redSpiner->value(), 0.75);
    dialog.call("tabChanged", 0);
    QCOMPARE(dialog._greenSlider->getValue(), position);
    QVERIFY(dialog._redSpiner->value() != 0.75);
    COMPARE_LOG(dialog.log, {});
}

void TestDialogPages::spectrumSlotDoesNothing_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char *const signature : {"setUseSpectrum(bool)",
                                        "saveSpectrumButtonClicked()",
                                        "loadSpectrumLineChanged()",
                                        "loadSpectrumButtonClicked()",
                                        "addSpectrumButtonClicked()",
                                        "loadSpectrumFile(const char*)",
                                        "addSpectrumFile(const char*)",
                                        "rejectSpectrum()",
                                        "setUniformMode(bool)",
                                        "setNonUniformMode(bool)",
                                        "updateSpectrum()",
                                        "resetSpectrum()",
                                        "setSamplingPreset(int)",
                                        "resampleSpectrum()",
                                        "setAnalyticFunction()",
                                        "addAnalyticFunction()",
                                        "rgbSpectrumSliderChanged(float)",
                                        "scaleSpectrumSliderChanged(float)",
                                        "toggleSamplingEditor(bool)",
                                        "setSpectrumInfo(QLxColor)"})
        QTest::newRow(signature) << QByteArray(signature);
}

void TestDialogPages::spectrumSlotDoesNothing()
{
    QFETCH(QByteArray, signature);
    Probe dialog;
    dialog.show();
    dialog.tabWidget->setCurrentIndex(1);
    const QImage before = dialog.grab().toImage();
    const int method = dialog.metaObject()->indexOfMethod(signature.constData());
    QVERIFY(method >= dialog.metaObject()->methodOffset());
    bool on = true;
    int preset = 1;
    float position = 0.75F;
    const char *path = "no such file";
    QLxColor color = Other;
    void *argument = nullptr;
    const QByteArray type = signature.mid(signature.indexOf('(') + 1).chopped(1);
    if (type == "bool")
        argument = &on;
    else if (type == "int")
        argument = &preset;
    else if (type == "float")
        argument = &position;
    else if (type == "const char*")
        argument = &path;
    else if (type == "QLxColor")
        argument = &color;
    void *arguments[] = {nullptr, argument};
    QMetaObject::metacall(&dialog, QMetaObject::InvokeMetaMethod, method, arguments);
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.grab().toImage() == before);
    dialog.tabWidget->setCurrentIndex(0);
    QCOMPARE(dialog._h_label->text(), QStringLiteral("H: 200.0000"));
}

namespace {

/// Uses a control as a user does. Returns what it said about that.
QStringList use(QWidget *control)
{
    SignalLog log;
    if (auto *const slider = qobject_cast<QLxColorSlider *>(control)) {
        log.watch(slider, &QLxColorSlider::sliderReleased, "used");
        click(slider);
    } else if (auto *const box = qobject_cast<QAbstractSpinBox *>(control)) {
        log.watch(box, &QAbstractSpinBox::editingFinished, "used");
        type(box, QStringLiteral("7"));
    } else if (auto *const line = qobject_cast<QLineEdit *>(control)) {
        log.watch(line, &QLineEdit::returnPressed, "used");
        type(line, QStringLiteral("file"));
    } else if (auto *const presets = qobject_cast<QLxComboBox *>(control)) {
        log.watch(presets, &QLxComboBox::popupShown, "used"); // there is nothing in it
        QTest::mouseClick(presets, Qt::LeftButton);
        presets->hidePopup();
    } else if (auto *const list = qobject_cast<QComboBox *>(control)) {
        log.watch(list, QOverload<int>::of(&QComboBox::activated), "used");
        QTest::keyClick(list, Qt::Key_Down);
    } else if (auto *const group = qobject_cast<QGroupBox *>(control)) {
        log.watch(group, &QGroupBox::clicked, "used");
        QTest::mouseClick(group, Qt::LeftButton, {}, {8, 8});
    } else if (auto *const tabs = qobject_cast<QTabWidget *>(control)) {
        log.watch(tabs, &QTabWidget::currentChanged, "used");
        const QPoint other = tabs->tabBar()->tabRect(1 - tabs->currentIndex()).center();
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, other);
    } else if (auto *const view = qobject_cast<QGraphicsView *>(control)) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton);
        log.note(QStringLiteral("used()"));
    } else if (auto *const button = qobject_cast<QAbstractButton *>(control)) {
        log.watch(button, &QAbstractButton::clicked, "used");
        QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    }
    return log.take();
}

} // namespace

void TestDialogPages::spectrumControlChangesNoColor_data()
{
    QTest::addColumn<QString>("name");
    const Probe dialog;
    const QList<QWidget *> widgets = dialog._spectrum_tab->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString name = widget->objectName();
        const auto *const group = qobject_cast<const QGroupBox *>(widget);
        const bool plain = qobject_cast<const QLabel *>(widget) || (group && !group->isCheckable()) ||
                           widget->metaObject() == &QFrame::staticMetaObject ||
                           widget->metaObject() == &QWidget::staticMetaObject;
        if (!plain && dialog.findChild<QWidget *>(name) == widget && !name.startsWith(QLatin1String("qt_")) &&
            !qobject_cast<QTabBar *>(widget->parent()))
            QTest::newRow(name.toLatin1().constData()) << name;
    }
    QTest::newRow("the pages' own tabs") << QStringLiteral("tabWidget");
}

void TestDialogPages::spectrumControlChangesNoColor()
{
    QFETCH(QString, name);
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.tabWidget->setCurrentIndex(1);
    auto *const control = dialog.findChild<QWidget *>(name);
    for (QGroupBox *const group : {dialog._spectrum_input_group, dialog._enableSamplingEditor})
        group->setChecked(group != control);
    if (dialog.tab_input_rgb->isAncestorOf(control))
        dialog.spectrum_input_tab->setCurrentIndex(0);
    QVERIFY(control->isVisible() && control->isEnabled());
    QCOMPARE(use(control).size(), 1);
    COMPARE_LOG(dialog.log, {});
    COMPARE_COLOR(dialog.getColor(), Sample);
    QVERIFY(dialog.isVisible());
    QVERIFY(!sharedColorDialog);
}

void TestDialogPages::analyticFunctionShowsItsParameters_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("thermal");
    QTest::newRow("none") << -1 << true;
    QTest::newRow("Blackbody") << 0 << true;
    QTest::newRow("CIE D") << 1 << true;
    QTest::newRow("Gauss") << 2 << false;
    QTest::newRow("Welch") << 10 << false;
}

void TestDialogPages::analyticFunctionShowsItsParameters()
{
    QFETCH(int, index);
    QFETCH(bool, thermal);
    Probe dialog;
    dialog.call("analyticFunctionChanged", thermal ? 2 : 0); // the other way round
    const auto shown = [&](const QList<QWidget *> &widgets) {
        return std::count_if(widgets.begin(), widgets.end(), [](QWidget *each) { return !each->isHidden(); });
    };
    const QList<QWidget *> peak{dialog.label_analytic_peak_wavelength,
                                dialog._analytic_peak_wavelength,
                                dialog.label_analytic_peak_intensity,
                                dialog._analytic_peak_intensity,
                                dialog.label_analytic_fwhm,
                                dialog._analytic_fwhm};
    const QList<QWidget *> temperature{dialog.label_analytic_temperature, dialog._analytic_temperature};
    QCOMPARE(int(shown(peak)), thermal ? 6 : 0);
    QCOMPARE(int(shown(temperature)), thermal ? 0 : 2);
    dialog._analytic_function->setCurrentIndex(3); // which is not connected
    dialog._analytic_function->setCurrentIndex(0);
    QCOMPARE(int(shown(peak)), thermal ? 6 : 0);
    dialog.call("analyticFunctionChanged", index);
    QCOMPARE(int(shown(peak)), thermal ? 0 : 6);
    QCOMPARE(int(shown(temperature)), thermal ? 2 : 0);
    COMPARE_LOG(dialog.log, {});
}

void TestDialogPages::resizingTheSpectrumPageSetsTheScene()
{
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.resize(950, 700);
    dialog.tabWidget->setCurrentIndex(1);
    QCOMPARE(dialog._spectrumPlot->sceneRect(), QRectF()); // neither on the colour page nor by turning to it
    for (const QSize &size : {QSize(1000, 800), QSize(960, 720)}) {
        dialog.resize(size);
        QCOMPARE(dialog.size(), size);
        QCOMPARE(dialog._spectrumPlot->sceneRect(),
                 QRectF(QPointF(), dialog._spectrumPlot->viewport()->size()));
        QVERIFY(dialog._spectrumPlot->viewport()->width() > 300);
    }
    const QRectF scene = dialog._spectrumPlot->sceneRect();
    dialog.tabWidget->setCurrentIndex(0);
    dialog.resize(1100, 900);
    QCOMPARE(dialog._spectrumPlot->sceneRect(), scene);
    COMPARE_LOG(dialog.log, {});
}

static void typeHalf(Probe &probe)
{
    probe.show();
    QApplication::setActiveWindow(&probe);
    probe._redSpiner->setFocus();
    probe._redSpiner->selectAll();
    QTest::keyClicks(probe._redSpiner, QStringLiteral("0.7"));
    QCOMPARE(probe.log.text(), QString());
}

void TestDialogPages::halfTypedNumberIsCommittedByLeavingThePage()
{
    Probe probe;
    typeHalf(probe);
    probe.tabWidget->setCurrentIndex(1); // no control paints meanwhile
    QCOMPARE(probe.log.take().size(), 1);
    probe.tabWidget->setCurrentIndex(0);
    QCOMPARE(probe._redSlider->getValue(), 0.7F);
    for (const QWidget *const control :
         {static_cast<QWidget *>(probe._redSlider), static_cast<QWidget *>(probe._valueSlider),
          static_cast<QWidget *>(probe._colorField), static_cast<QWidget *>(probe._colorFieldSlider)})
        QVERIFY(control->updatesEnabled()); // and all do again
}

void TestDialogPages::halfTypedNumberIsDroppedByCancelling_data()
{
    QTest::addColumn<bool>("closed");
    QTest::newRow("Escape") << false;
    QTest::newRow("window closed") << true;
}

void TestDialogPages::halfTypedNumberIsDroppedByCancelling()
{
    QFETCH(bool, closed);
    Probe probe;
    typeHalf(probe);
    const QString previous = QStringLiteral("colorChanged(%1)").arg(asText(Sample));
    if (closed) {
        probe.close();
        COMPARE_LOG(probe.log, {previous, previous, "rejected()"});
    } else {
        QTest::keyClick(probe._redSpiner, Qt::Key_Escape);
        COMPARE_LOG(probe.log, {previous, "rejected()"});
    }
    COMPARE_COLOR(probe.getColor(), Sample);
}

QLX_TEST_MAIN(TestDialogPages)
#include "tst_dialogpages.moc"
