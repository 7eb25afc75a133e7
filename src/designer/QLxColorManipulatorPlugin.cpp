// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorManipulatorPlugin_p.h"

#include "QLxColorManipulator.h"

#include <QIcon>

QString QLxColorManipulatorPlugin::name() const
{
    return QStringLiteral("QLxColorManipulator");
}

QString QLxColorManipulatorPlugin::group() const
{
    return QStringLiteral("Orvo Controls");
}

QString QLxColorManipulatorPlugin::toolTip() const
{
    return {};
}

QString QLxColorManipulatorPlugin::whatsThis() const
{
    return {};
}

QString QLxColorManipulatorPlugin::includeFile() const
{
    return QStringLiteral("QLxColorManipulator.h");
}

QIcon QLxColorManipulatorPlugin::icon() const
{
    return {};
}

bool QLxColorManipulatorPlugin::isContainer() const
{
    return false;
}

QWidget *QLxColorManipulatorPlugin::createWidget(QWidget *parent)
{
    return new QLxColorManipulator(parent, nullptr);
}

bool QLxColorManipulatorPlugin::isInitialized() const
{
    return m_initialized;
}

void QLxColorManipulatorPlugin::initialize(QDesignerFormEditorInterface * /*core*/)
{
    m_initialized = true;
}

QString QLxColorManipulatorPlugin::domXml() const
{
    return QStringLiteral(R"(<widget class="QLxColorManipulator" name="qLxColorManipulator">
 <property name="geometry">
  <rect>
   <x>0</x>
   <y>0</y>
   <width>100</width>
   <height>100</height>
  </rect>
 </property>
</widget>
)");
}

QString QLxColorManipulatorPlugin::codeTemplate() const
{
    return {};
}
