// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// Qt Designer's own components, without a display: the widget box lists the manipulator, and a form that
// holds one opens with the real widget in it.
#include "TestCase.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerWidgetBoxInterface>

#include <memory>

class TestWidgetBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listsTheManipulator();
    void opensAForm();
    void uiLoaderBuildsTheForm();

private:
    QTemporaryDir m_home; // Designer reads and writes files there
};

namespace {

const char Form[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <property name="geometry"><rect><x>0</x><y>0</y><width>300</width><height>200</height></rect></property>
  <widget class="QLxColorManipulator" name="tint">
   <property name="geometry"><rect><x>10</x><y>20</y><width>150</width><height>16</height></rect></property>
  </widget>
 </widget>
 <customwidgets>
  <customwidget>
   <class>QLxColorManipulator</class>
   <extends>QWidget</extends>
   <header>QLxColorManipulator.h</header>
  </customwidget>
 </customwidgets>
</ui>
)";

} // namespace

void TestWidgetBox::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
    QCoreApplication::setLibraryPaths({QStringLiteral(QLX_PLUGIN_ROOT)}); // no other plugins
    QDesignerComponents::initializeResources();
}

void TestWidgetBox::listsTheManipulator()
{
    const std::unique_ptr<QDesignerFormEditorInterface> core(QDesignerComponents::createFormEditor(nullptr));
    auto *const box = QDesignerComponents::createWidgetBox(core.get(), nullptr);
    const std::unique_ptr<QWidget> owner(box);
    core->setWidgetBox(box);
    box->setFileName(QStringLiteral(":/qt-project.org/widgetbox/widgetbox.xml"));
    QVERIFY(box->load());
    QStringList listed;
    QString xml;
    for (int i = 0; i < box->categoryCount(); ++i) {
        const auto category = box->category(i);
        for (int k = 0; k < category.widgetCount(); ++k) {
            if (category.name() == QLatin1String("Orvo Controls")) {
                listed.append(category.widget(k).name());
                xml = category.widget(k).domXml();
            }
        }
    }
    QCOMPARE(listed, QStringList{QStringLiteral("QLxColorManipulator")});
    QVERIFY(xml.contains(QStringLiteral("name=\"qLxColorManipulator\"")));
}

void TestWidgetBox::opensAForm()
{
    const std::unique_ptr<QDesignerFormEditorInterface> core(QDesignerComponents::createFormEditor(nullptr));
    QDesignerComponents::initializePlugins(core.get());
    core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core.get(), nullptr));
    const std::unique_ptr<QWidget> properties(core->propertyEditor());
    const QDesignerIntegration integration(core.get());
    QDesignerFormWindowInterface *const form = core->formWindowManager()->createFormWindow();
    const std::unique_ptr<QWidget> owner(form);
    QBuffer buffer;
    buffer.setData(Form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    QVERIFY2(form->setContents(&buffer, &error), qPrintable(error));
    auto *const tint = form->findChild<QWidget *>(QStringLiteral("tint"));
    QVERIFY(tint);
    QCOMPARE(tint->metaObject()->className(), "QLxColorManipulator");
    QCOMPARE(tint->geometry(), QRect(10, 20, 150, 16));
    QVERIFY(form->contents().contains(QStringLiteral("<header>QLxColorManipulator.h</header>")));
}

void TestWidgetBox::uiLoaderBuildsTheForm()
{
    QUiLoader loader;
    QVERIFY(loader.availableWidgets().contains(QStringLiteral("QLxColorManipulator")));
    QBuffer buffer;
    buffer.setData(Form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&buffer));
    QVERIFY(form);
    auto *const tint = form->findChild<QWidget *>(QStringLiteral("tint"));
    QVERIFY(tint);
    QCOMPARE(tint->metaObject()->className(), "QLxColorManipulator");
}

QLX_TEST_MAIN(TestWidgetBox)
#include "tst_widgetbox.moc"
