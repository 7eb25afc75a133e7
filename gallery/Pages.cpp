// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Pages.h"

#include "FieldPage.h"
#include "NumbersPage.h"
#include "SlidersPage.h"
#include "SwatchesPage.h"

const QVector<Page> &pages()
{
    static const QVector<Page> all = {
        {QStringLiteral("Sliders"), createSlidersPage, demonstrateSlidersPage},
        {QStringLiteral("Field"), createFieldPage, demonstrateFieldPage},
        {QStringLiteral("Swatches"), createSwatchesPage, demonstrateSwatchesPage},
        {QStringLiteral("Numbers"), createNumbersPage, demonstrateNumbersPage},
    };
    return all;
}
