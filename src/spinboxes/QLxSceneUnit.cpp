// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxSceneUnit.h"

#include "SceneUnitSuffix_p.h"

#include <QCoreApplication>

namespace {

float unit = 1.0F; // millimetres

} // namespace

float QLx::sceneUnit()
{
    return unit;
}

void QLx::setSceneUnit(float millimetres)
{
    unit = millimetres;
}

QString QLx::sceneUnitSuffix()
{
    if (unit == 1.0F)
        return QCoreApplication::translate("SceneUnit", " mm");
    if (unit == 10.0F)
        return QCoreApplication::translate("SceneUnit", " cm");
    if (unit == 1000.0F)
        return QCoreApplication::translate("SceneUnit", " m");
    return {};
}
