// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Pages.h"

#include "FieldPage.h"
#include "ModulePage.h"
#include "NumbersPage.h"
#include "PatchesPage.h"
#include "SlidersPage.h"
#include "SwatchesPage.h"

const QVector<Page> &pages()
{
    static const QVector<Page> all = {
        {QStringLiteral("Sliders"), createSlidersPage, demonstrateSlidersPage},
        {QStringLiteral("Field"), createFieldPage, demonstrateFieldPage},
        {QStringLiteral("Swatches"), createSwatchesPage, demonstrateSwatchesPage},
        {QStringLiteral("Numbers"), createNumbersPage, demonstrateNumbersPage},
        {QStringLiteral("Module"), createModulePage, demonstrateModulePage},
        {QStringLiteral("Pipette"), createPatchesPage, demonstratePatchesPage},
    };
    return all;
}
