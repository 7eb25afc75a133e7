// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ModulePage.h"

#include "Gestures.h"
#include "QLxColorButton.h"
#include "QLxColorField.h"
#include "QLxColorManipulator.h"
#include "QLxColorSlider.h"
#include "SignalLog.h"
#include "SwatchParts.h"

#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <memory>

namespace {

QLxColorButton *makeButton(const char *name, QRgb color, SignalLog *log)
{
    auto *const button = new QLxColorButton;
    button->setObjectName(QLatin1String(name));
    button->setColor(fromEncoded(color));
    button->setFixedSize(62, 16); // as those of the manipulators
    watch(button, log);
    return button;
}

QGroupBox *makeModule(SignalLog *log)
{
    const QString title = QStringLiteral("Module");
    auto *const module = new QGroupBox(title);
    module->setObjectName(title); // by this name the dialog finds its parent
    auto *const grid = new QGridLayout(module);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    int line = 0;
    grid->addWidget(new QLabel(QStringLiteral("Click a swatch: all three open the same dialog, and the one "
                                              "clicked last hears from it.")),
                    line++, 0, 1, 2);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{makeManipulator("Manipulator 1", 0xc8793a, log),
                                          makeManipulator("Manipulator 2", 0x3a7bc8, log)}) {
        grid->addWidget(new QLabel(widget->objectName()), line, 0);
        grid->addWidget(widget, line++, 1);
    }
    QLxColorButton *const button = makeButton("Button", 0x5fa854, log);
    grid->addWidget(new QLabel(button->objectName()), line, 0);
    grid->addWidget(button, line++, 1, Qt::AlignRight);
    for (int i = 1; i < line; ++i)
        grid->setRowMinimumHeight(i, 26);
    grid->setColumnStretch(1, 1);
    return module;
}

} // namespace

QWidget *createModulePage()
{
    auto page = std::make_unique<QWidget>();
    auto *const log = new SignalLog;
    auto *const layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(14, 12, 14, 14);
    layout->setSpacing(14);
    layout->addWidget(makeModule(log));
    layout->addWidget(log, 1);
    return page.release();
}

void demonstrateModulePage(QWidget &page)
{
    auto &first = *page.findChild<QWidget *>(QStringLiteral("Manipulator 1"))->findChild<QLxColorButton *>();
    auto &button = *page.findChild<QLxColorButton *>(QStringLiteral("Button"));

    click(first);
    const auto &dialog = *page.findChild<QDialog *>();
    const auto press = [&](const char *name) {
        dialog.findChild<QAbstractButton *>(QLatin1String(name))->click();
    };
    auto &hue = *dialog.findChild<QLxColorSlider *>(QStringLiteral("_hueSlider"));
    auto &field = *dialog.findChild<QLxColorField *>(QStringLiteral("_colorField"));
    for (const double position : {0.01, 0.08, 0.14, 0.3, 0.45, 0.58, 0.75}) {
        click(hue, {position, 0.5});
        press("_store_custom_color");
    }
    press("_reject");

    click(button);
    click(field, {0.6, 0.45});
    press("_accept");

    click(first);
    click(hue, {0.93, 0.5});
}
