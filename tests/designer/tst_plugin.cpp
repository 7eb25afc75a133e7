// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// The built library as Qt's plugin loader and Qt Designer see it. Does not link the library.
#include "TestCase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

namespace {

QString pluginPath()
{
    return QStringLiteral(QLX_PLUGIN_ROOT "/designer/libQLxControls.so");
}

} // namespace

class TestPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metadataOfTheFile();
    void metadataBlock();
    void instanceIsOneAndComesBack();
    void metaObject();
    void metacast();
    void description();
    void createsManipulators();
    void initializesOnce();

private:
    QDesignerCustomWidgetInterface *plugin()
    {
        return qobject_cast<QDesignerCustomWidgetInterface *>(m_loader.instance());
    }

    QPluginLoader m_loader{pluginPath()};
};

namespace {

QJsonObject expectedMetadata()
{
    return {{QStringLiteral("IID"), QStringLiteral("QDesignerCustomWidgetInterface")},
            {QStringLiteral("className"), QStringLiteral("QLxColorManipulatorPlugin")},
            {QStringLiteral("version"), 0x050905},
            {QStringLiteral("debug"), false},
            {QStringLiteral("MetaData"), QJsonObject()}};
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // the block is in this deprecated form
    QJsonObject
    readBinary(const QByteArray &document)
{
    return QJsonDocument::fromBinaryData(document).object();
}
QByteArray writeBinary(const QJsonObject &object)
{
    return QJsonDocument(object).toBinaryData();
}
QT_WARNING_POP

} // namespace

void TestPlugin::metadataOfTheFile()
{
    const QPluginLoader unloaded(pluginPath());
    QVERIFY(!unloaded.isLoaded());
    QCOMPARE(unloaded.metaData(), expectedMetadata());
    QCOMPARE(unloaded.metaData().value(QStringLiteral("version")).toInt(), 329989);
}

void TestPlugin::metadataBlock()
{
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    using Query = const char *(*)();
    const auto query = reinterpret_cast<Query>(QLibrary::resolve(pluginPath(), "qt_plugin_query_metadata"));
    QVERIFY(query);
    const QByteArray document = writeBinary(expectedMetadata());
    const QByteArray block(query(), 12 + document.size());
    QCOMPARE(block.left(12), QByteArray("QTMETADATA  "));
    QCOMPARE(block.mid(12, 8), QByteArray("qbjs\1\0\0\0", 8));
    QCOMPARE(readBinary(block.mid(12)), expectedMetadata());
    QCOMPARE(block.mid(12).toHex(), document.toHex()); // laid out as Qt would

    QFile file(pluginPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains(block));
}

void TestPlugin::instanceIsOneAndComesBack()
{
    using Instance = QObject *(*)();
    const auto instance = reinterpret_cast<Instance>(QLibrary::resolve(pluginPath(), "qt_plugin_instance"));
    QVERIFY(instance);
    const QPointer<QObject> first = instance();
    QVERIFY(first);
    QCOMPARE(instance(), first.data());
    QCOMPARE(m_loader.instance(), first.data());
    QVERIFY(!first->parent());
    delete first;
    QVERIFY(instance()); // a new one
    QVERIFY(plugin());
    QVERIFY(!plugin()->isInitialized());
}

void TestPlugin::metaObject()
{
    const QMetaObject *meta = m_loader.instance()->metaObject();
    QCOMPARE(meta->className(), "QLxColorManipulatorPlugin");
    QCOMPARE(meta->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta->enumeratorCount(), QObject::staticMetaObject.enumeratorCount());
}

void TestPlugin::metacast()
{
    QObject *const object = m_loader.instance();
    QCOMPARE(object->qt_metacast("QLxColorManipulatorPlugin"), static_cast<void *>(object));
    void *const interface = object->qt_metacast("QDesignerCustomWidgetInterface");
    QVERIFY(interface);
    QCOMPARE(object->qt_metacast("org.qt-project.QDesignerCustomWidgetInterface"), interface);
    QCOMPARE(static_cast<QDesignerCustomWidgetInterface *>(interface)->name(),
             QStringLiteral("QLxColorManipulator"));
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void *>(object));
    QVERIFY(!object->qt_metacast("QDesignerContainerExtension"));
    QVERIFY(!object->qt_metacast(nullptr));
}

void TestPlugin::description()
{
    QVERIFY(plugin());
    QCOMPARE(plugin()->name(), QStringLiteral("QLxColorManipulator"));
    QCOMPARE(plugin()->group(), QStringLiteral("Orvo Controls"));
    QCOMPARE(plugin()->toolTip(), QString());
    QCOMPARE(plugin()->whatsThis(), QString());
    QCOMPARE(plugin()->includeFile(), QStringLiteral("QLxColorManipulator.h"));
    QVERIFY(plugin()->icon().isNull());
    QVERIFY(!plugin()->isContainer());
    QCOMPARE(plugin()->codeTemplate(), QString());
    QCOMPARE(plugin()->domXml(),
             QStringLiteral("<widget class=\"QLxColorManipulator\" name=\"qLxColorManipulator\">\n"
                            " <property name=\"geometry\">\n"
                            "  <rect>\n"
                            "   <x>0</x>\n"
                            "   <y>0</y>\n"
                            "   <width>100</width>\n"
                            "   <height>100</height>\n"
                            "  </rect>\n"
                            " </property>\n"
                            "</widget>\n"));
}

void TestPlugin::createsManipulators()
{
    const std::unique_ptr<QWidget> top(plugin()->createWidget(nullptr));
    QCOMPARE(top->metaObject()->className(), "QLxColorManipulator");
    QVERIFY(top->isWindow());
    QCOMPARE(top->objectName(), QString());
    QWidget parent;
    QCOMPARE(plugin()->createWidget(&parent)->parentWidget(), &parent);
}

void TestPlugin::initializesOnce()
{
    plugin()->initialize(nullptr);
    QVERIFY(plugin()->isInitialized());
    plugin()->initialize(nullptr);
    QVERIFY(plugin()->isInitialized());
}

QLX_TEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
