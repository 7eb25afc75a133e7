// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef SCENEUNITSUFFIX_P_H
#define SCENEUNITSUFFIX_P_H

#include "WhileAlive_p.h"

#include <QString>

#include <set>

namespace QLx {

/// " mm", " cm", " m" or nothing, translated.
QString sceneUnitSuffix();

/// Gives a spin box the suffix of the scene unit, or takes away whatever suffix it has. Returns whether the
/// box still lives: a translator is the host's own code.
template <typename Box>
bool showSceneUnit(Box *box, bool shown)
{
    QString wanted;
    return whileAlive(
        box, [&] { wanted = shown ? sceneUnitSuffix() : QString(); },
        [&] {
            if (box->suffix() != wanted)
                box->setSuffix(wanted);
        });
}

/// Shows the scene unit or not from now on: boxes holds those that do.
template <typename Box>
void enrolForSceneUnit(Box *box, bool shown, std::set<Box *> &boxes)
{
    if (!showSceneUnit(box, shown))
        return;
    if (shown)
        boxes.insert(box);
    else
        boxes.erase(box);
}

/// Calls updateSceneUnit() of each box in ascending order. The set may change meanwhile: a box that has left
/// it before its turn is not visited.
template <typename Box>
void updateSceneUnits(const std::set<Box *> &boxes)
{
    for (auto next = boxes.begin(); next != boxes.end();) {
        Box *const box = *next;
        box->updateSceneUnit();
        next = boxes.upper_bound(box);
    }
}

} // namespace QLx

#endif
