// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SwatchesPage.h"

#include "Gestures.h"
#include "QLxColorButton.h"
#include "QLxColorManipulator.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"
#include "SignalLog.h"
#include "SwatchParts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVariant>

#include <memory>

namespace {

constexpr QSize SwatchSize(48, 32);

QLxColorButton *makeSwatch(const QString &name, QRgb color, SignalLog *log)
{
    auto *const swatch = new QLxColorButton;
    swatch->setObjectName(name);
    swatch->setToolTip(name);
    swatch->setColor(fromEncoded(color));
    swatch->setShowColorDialog(false);
    swatch->setFixedSize(SwatchSize);
    watch(swatch, log);
    return swatch;
}

QGroupBox *makeSwatches(SignalLog *log)
{
    struct Named
    {
        const char *name;
        QRgb color;
    };
    constexpr Named colors[] = {{"Red", 0xd64550},    {"Orange", 0xee8b3a}, {"Yellow", 0xf2c84b},
                                {"Green", 0x5fa854},  {"Teal", 0x2f9c95},   {"Blue", 0x3a7bc8},
                                {"Violet", 0x7d5ba6}, {"Grey", 0x8a8f98}};
    constexpr Named marked[] = {{"Marked pink", 0xd9769f}, {"Marked cyan", 0x62b6cb}};
    constexpr int columns = 4;

    auto *const box = new QGroupBox(QStringLiteral("Colour buttons"));
    auto *const grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Drag a colour from one swatch to another.")), 0, 0, 1,
                    columns + 1);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(8);
    int i = 0;
    for (const Named &color : colors) {
        grid->addWidget(makeSwatch(QLatin1String(color.name), color.color, log), 1 + i / columns,
                        i % columns);
        ++i;
    }
    i = 0;
    for (const Named &color : marked) {
        QLxColorButton *const swatch = makeSwatch(QLatin1String(color.name), color.color, log);
        swatch->setProperty("multiselect", true);
        grid->addWidget(swatch, 3, i++);
    }
    grid->addWidget(new QLabel(QStringLiteral("\u201cmultiselect\u201d is set")), 3, 2, 1, columns - 1);
    grid->setColumnStretch(columns, 1);
    return box;
}

QGroupBox *makeManipulators(SignalLog *log)
{
    auto *const box = new QGroupBox(QStringLiteral("Colour manipulators"));
    auto *const grid = new QGridLayout(box);
    grid->setVerticalSpacing(8);
    grid->addWidget(new QLabel(QStringLiteral("Move a slider, click a button, or drop a swatch on it.")), 0,
                    0, 1, 2);
    int line = 1;
    for (QLxColorManipulator *manipulator :
         {makeManipulator("Manipulator 1", log), makeManipulator("Manipulator 2", 0xc8793a, log),
          makeManipulator("Manipulator 3", 0x3a7bc8, log)}) {
        grid->setRowMinimumHeight(line, SwatchSize.height());
        grid->addWidget(new QLabel(manipulator->objectName()), line, 0);
        grid->addWidget(manipulator, line++, 1);
    }
    grid->setColumnStretch(1, 1);
    return box;
}

} // namespace

QWidget *createSwatchesPage()
{
    auto page = std::make_unique<QWidget>();
    auto *const log = new SignalLog;
    auto *const grid = new QGridLayout(page.get());
    grid->setContentsMargins(14, 12, 14, 14);
    grid->setSpacing(14);
    grid->addWidget(makeSwatches(log), 0, 0);
    grid->addWidget(makeManipulators(log), 0, 1);
    grid->addWidget(log, 1, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return page.release();
}

void demonstrateSwatchesPage(QWidget &page)
{
    const auto swatch = [&](const char *name) {
        return page.findChild<QLxColorButton *>(QLatin1String(name));
    };
    const auto *const first = page.findChild<QWidget *>(QStringLiteral("Manipulator 1"));
    const auto *const second = page.findChild<QWidget *>(QStringLiteral("Manipulator 2"));
    click(*swatch("Teal"));
    dropColor(*first->findChild<QLxColorButton *>(), QLx::toQColorF(swatch("Violet")->getColor()));
    dragAcross(*second->findChild<QLxColorSlider *>(), 0.9, 0.7, 1);
    dropColor(*swatch("Grey"), QLx::toQColorF(second->findChild<QLxColorButton *>()->getColor()));
}
