// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXSCENEUNIT_H
#define QLXSCENEUNIT_H

#include "QLxExport.h"

namespace QLx {

/// The length of one scene unit in millimetres, for all spin boxes of the process that show it; 1 at first.
QLX_EXPORT float sceneUnit();

/// Sets the length of one scene unit in millimetres. Spin boxes show " mm" for 1, " cm" for 10, " m" for
/// 1000 and no unit for any other number, NaN included.
///
/// Refreshes nothing by itself: afterwards call QLxDoubleSpiner::updateInstancesWithSceneUnit() and
/// QLxSpiner::updateInstancesWithSceneUnit(). Values are not converted.
QLX_EXPORT void setSceneUnit(float millimetres);

} // namespace QLx

#endif
