// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The methods, properties and enums of every public widget class, in their order: hosts connect by
// signature and may call by index.
#include "QLxColorArray.h"
#include "QLxColorButton.h"
#include "QLxColorDialog_p.h"
#include "QLxColorField.h"
#include "QLxColorManipulator.h"
#include "QLxColorSlider.h"
#include "QLxComboBox.h"
#include "QLxDoubleSpiner.h"
#include "QLxSpiner.h"
#include "TestCase.h"

#include <QMetaEnum>
#include <QMetaMethod>

namespace {

struct Class
{
    const QMetaObject *meta;
    const char *base;
    const char *methods;    // "s" signal, "+" public slot, "-" private slot
    const char *properties; // in the words of the declaration
    const char *enums;
};

const Class classes[] = {
    {&QLxColorSlider::staticMetaObject, "QWidget",
     "s minColorChanged(QLxColor)\n"
     "s maxColorChanged(QLxColor)\n"
     "s valueChanged(float)\n"
     "s colorChanged(QLxColor)\n"
     "s valueChanged(QString)\n"
     "s sliderPressed()\n"
     "s sliderMoved(float)\n"
     "s sliderReleased()\n"
     "+ setMinColor(QLxColor)\n"
     "+ setMaxColor(QLxColor)\n"
     "+ setMinColor(float,float,float)\n"
     "+ setMaxColor(float,float,float)\n"
     "+ setValue(float,bool,bool)\n"
     "+ setValue(float,bool)\n"
     "+ setValue(float)\n"
     "+ setHueMode(bool)\n"
     "+ setSaturationMode(bool)\n"
     "+ setValueMode(bool)\n"
     "+ setRedMode(bool)\n"
     "+ setGreenMode(bool)\n"
     "+ setBlueMode(bool)\n"
     "+ setLstarMode(bool)\n"
     "+ setAstarMode(bool)\n"
     "+ setBstarMode(bool)\n",
     "Mode mode READ WRITE\n"
     "Qt::Orientation orientation READ WRITE\n",
     "Mode Hue=0 Saturation=1 Value=2 Red=3 Green=4 Blue=5 Lstar=6 Astar=7 Bstar=8\n"},
    {&QLxColorField::staticMetaObject, "QWidget",
     "s hueChanged(float)\n"
     "s saturationChanged(float)\n"
     "s valueChanged(float)\n"
     "s redChanged(float)\n"
     "s blueChanged(float)\n"
     "s greenChanged(float)\n"
     "s lstarChanged(float)\n"
     "s astarChanged(float)\n"
     "s bstarChanged(float)\n"
     "s colorChanged(QLxColor)\n"
     "s constantChannelChanged(float)\n"
     "+ setHSV(float,float,float)\n"
     "+ setHue(float)\n"
     "+ setSaturation(float)\n"
     "+ setValue(float)\n"
     "+ setRGB(float,float,float)\n"
     "+ setRed(float)\n"
     "+ setGreen(float)\n"
     "+ setBlue(float)\n"
     "+ setLab(float,float,float)\n"
     "+ setLstar(float)\n"
     "+ setAstar(float)\n"
     "+ setBstar(float)\n"
     "+ setColor(QLxColor)\n"
     "+ setHueMode(bool)\n"
     "+ setSaturationMode(bool)\n"
     "+ setValueMode(bool)\n"
     "+ setRedMode(bool)\n"
     "+ setGreenMode(bool)\n"
     "+ setBlueMode(bool)\n"
     "+ setLstarMode(bool)\n"
     "+ setAstarMode(bool)\n"
     "+ setBstarMode(bool)\n"
     "+ setMode(Mode)\n"
     "+ setConstantChannel(float)\n"
     "+ updateConstantChannel(QLxColor)\n",
     "", ""},
    {&QLxColorButton::staticMetaObject, "QPushButton",
     "s colorButtonClicked()\n"
     "s temporaryColorChosen(QLxColor)\n"
     "s finalColorChosen(QLxColor)\n"
     "s userSkipped()\n"
     "s userAccepted()\n"
     "+ setShowColorDialog(bool)\n"
     "- buttonClicked(bool)\n"
     "- colorChanged(QLxColor)\n"
     "- accepted()\n"
     "- rejected()\n",
     "bool showColorDialog READ WRITE\n", ""},
    {&QLxColorManipulator::staticMetaObject, "QWidget",
     "s buttonPressed()\n"
     "s sliderPressed()\n"
     "s sliderReleased()\n"
     "s sliderColorChanged(float,float,float)\n"
     "s colorChanged()\n"
     "s colorChanged(QLxColor)\n"
     "s colorChanged(int,int,int)\n"
     "s colorChanged(float,float,float)\n"
     "s dialogColorChanged()\n"
     "s dialogColorChanged(QLxColor)\n"
     "s dialogColorChanged(int,int,int)\n"
     "s dialogColorChanged(float,float,float)\n"
     "s finalColorSet(QLxColor)\n"
     "s cancelled()\n"
     "+ colorButtonPressed()\n"
     "+ sliderValueChanged(float)\n"
     "+ sliderValuePressed()\n"
     "+ sliderValueReleased()\n"
     "+ temporaryColorChanged(QLxColor)\n"
     "+ finalColorChanged(QLxColor)\n"
     "+ cancelledPressed()\n",
     "", ""},
    {&QLxDoubleSpiner::staticMetaObject, "QDoubleSpinBox",
     "s singleStepChanged(double)\n"
     "s mouseButtonPressed()\n"
     "s mouseButtonReleased()\n"
     "s relativeOperatorChanged(RelativeOperator,double)\n"
     "s relativeOperatorApplied(RelativeOperator,double)\n"
     "s focusGained()\n"
     "+ setSingleStep(double)\n"
     "+ stepEditingFinished()\n"
     "+ setDisplayDecimals(int)\n"
     "+ setUseExactDisplayDecimals(bool)\n"
     "- finishedEditing()\n"
     "- changedValue(QString)\n"
     "- checkInput(QString)\n"
     "- updateVisualInputFeedback()\n"
     "- setCurrentRelativeOperator(RelativeOperator,double)\n",
     "bool showStepHint READ WRITE\n"
     "int displayDecimals READ WRITE\n"
     "bool useExactDisplayDecimals READ WRITE\n"
     "bool displaySceneUnit READ WRITE\n",
     ""},
    {&QLxSpiner::staticMetaObject, "QSpinBox",
     "s singleStepChanged(int)\n"
     "+ setSingleStep(int)\n"
     "- finishedEditing()\n",
     "bool showStepHint READ WRITE\n"
     "bool autoStepsOnMousePress READ WRITE\n"
     "bool displaySceneUnit READ WRITE\n",
     ""},
    {&QLxComboBox::staticMetaObject, "QComboBox",
     "s popupHidden()\n"
     "s popupShown(int)\n",
     "", ""},
    {&QLxColorArray::staticMetaObject, "QWidget", "s selected(int)\n", "", ""},
    {&QLxColorDialog::staticMetaObject, "QDialog",
     "s colorChanged(QLxColor)\n"
     "- hueSliderChanged(float)\n"
     "- saturationSliderChanged(float)\n"
     "- valueSliderChanged(float)\n"
     "- redSliderChanged(float)\n"
     "- greenSliderChanged(float)\n"
     "- blueSliderChanged(float)\n"
     "- lstarSliderChanged(float)\n"
     "- astarSliderChanged(float)\n"
     "- bstarSliderChanged(float)\n"
     "- colorFieldChanged(QLxColor)\n"
     "- colorFieldSliderChanged(float)\n"
     "- setHueMode(bool)\n"
     "- setSaturationMode(bool)\n"
     "- setValueMode(bool)\n"
     "- setRedMode(bool)\n"
     "- setGreenMode(bool)\n"
     "- setBlueMode(bool)\n"
     "- setLstarMode(bool)\n"
     "- setAstarMode(bool)\n"
     "- setBstarMode(bool)\n"
     "- hueSpinerChanged(double)\n"
     "- saturationSpinerChanged(double)\n"
     "- valueSpinerChanged(double)\n"
     "- redSpinerChanged(double)\n"
     "- greenSpinerChanged(double)\n"
     "- blueSpinerChanged(double)\n"
     "- lstarSpinerChanged(double)\n"
     "- astarSpinerChanged(double)\n"
     "- bstarSpinerChanged(double)\n"
     "- addCustomColor()\n"
     "- getCustomColor(int)\n"
     "- toggleColorPipette(bool)\n"
     "- restorePreviousColor()\n"
     "- setUseGamma(bool)\n"
     "- setGammaValue(double)\n"
     "- tabChanged(int)\n"
     "- setUseSpectrum(bool)\n"
     "- saveSpectrumButtonClicked()\n"
     "- loadSpectrumLineChanged()\n"
     "- loadSpectrumButtonClicked()\n"
     "- addSpectrumButtonClicked()\n"
     "- loadSpectrumFile(const char*)\n"
     "- addSpectrumFile(const char*)\n"
     "- reject()\n"
     "- rejectSpectrum()\n"
     "- setUniformMode(bool)\n"
     "- setNonUniformMode(bool)\n"
     "- updateSpectrum()\n"
     "- resetSpectrum()\n"
     "- setSamplingPreset(int)\n"
     "- resampleSpectrum()\n"
     "- analyticFunctionChanged(int)\n"
     "- setAnalyticFunction()\n"
     "- addAnalyticFunction()\n"
     "- rgbSpectrumSliderChanged(float)\n"
     "- scaleSpectrumSliderChanged(float)\n"
     "- toggleSamplingEditor(bool)\n"
     "- preGrabScreenColor()\n"
     "+ setSpectrumInfo(QLxColor)\n"
     "+ setColor(QLxColor)\n"
     "+ setColorInfo(QLxColor)\n",
     "", ""},
};

QString methodsOf(const QMetaObject *meta)
{
    QString text;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const bool isPublic = method.access() == QMetaMethod::Public;
        QString kind = QStringLiteral("?");
        if (method.methodType() == QMetaMethod::Signal)
            kind = QStringLiteral("s");
        else if (method.methodType() == QMetaMethod::Slot)
            kind = isPublic ? QStringLiteral("+") : QStringLiteral("-");
        text += kind + QLatin1Char(' ') + QString::fromLatin1(method.methodSignature()) + QLatin1Char('\n');
    }
    return text;
}

QString propertiesOf(const QMetaObject *meta)
{
    QString text;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        text += QString::fromLatin1(property.typeName()) + QLatin1Char(' ') +
                QString::fromLatin1(property.name()) +
                (property.isReadable() ? QStringLiteral(" READ") : QString()) +
                (property.isWritable() ? QStringLiteral(" WRITE") : QString()) +
                (property.hasNotifySignal() ? QStringLiteral(" NOTIFY") : QString()) + QLatin1Char('\n');
    }
    return text;
}

QString enumsOf(const QMetaObject *meta)
{
    QString text;
    for (int i = meta->enumeratorOffset(); i < meta->enumeratorCount(); ++i) {
        const QMetaEnum enumerator = meta->enumerator(i);
        text += QString::fromLatin1(enumerator.name());
        for (int k = 0; k < enumerator.keyCount(); ++k)
            text += QStringLiteral(" %1=%2").arg(QLatin1String(enumerator.key(k))).arg(enumerator.value(k));
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

class TestMetaObjects : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tableHolds_data();
    void tableHolds();
};

void TestMetaObjects::tableHolds_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Class &entry : classes)
        QTest::newRow(entry.meta->className()) << index++;
}

void TestMetaObjects::tableHolds()
{
    QFETCH(int, index);
    const Class &expected = classes[index];
    QCOMPARE(expected.meta->superClass()->className(), expected.base);
    QCOMPARE(methodsOf(expected.meta), QString::fromLatin1(expected.methods));
    QCOMPARE(propertiesOf(expected.meta), QString::fromLatin1(expected.properties));
    QCOMPARE(enumsOf(expected.meta), QString::fromLatin1(expected.enums));
    QCOMPARE(QMetaType::type("QLxColor"), int(QMetaType::UnknownType)); // never registered
}

QLX_TEST_MAIN(TestMetaObjects)
#include "tst_metaobjects.moc"
