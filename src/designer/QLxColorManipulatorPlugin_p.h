// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORMANIPULATORPLUGIN_P_H
#define QLXCOLORMANIPULATORPLUGIN_P_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// Offers QLxColorManipulator to Qt Designer, in the widget-box group "Orvo Controls".
///
/// The class has no Q_PLUGIN_METADATA: PluginEntryPoints.cpp holds its metadata and entry points.
class QLxColorManipulatorPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;
    QString codeTemplate() const override;

private:
    bool m_initialized = false;
};

#endif
