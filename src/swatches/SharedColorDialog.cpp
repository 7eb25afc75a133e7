// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SharedColorDialog_p.h"

#include "WhileAlive_p.h"

#include <utility>

namespace {
SharedColorDialog::Factory currentFactory = nullptr;
}

QPointer<SharedColorDialog> sharedColorDialog;

SharedColorDialog::Factory SharedColorDialog::setFactory(Factory factory)
{
    return std::exchange(currentFactory, factory);
}

SharedColorDialog::~SharedColorDialog()
{
    // Qt itself would clear it only after the dialog's children have gone.
    if (sharedColorDialog == this)
        sharedColorDialog.clear();
}

void SharedColorDialog::done(int result)
{
    hide();
    setResult(result);
    whileAlive(
        this,
        [&] {
            if (result == Accepted)
                Q_EMIT accepted();
            else if (result == Rejected)
                Q_EMIT rejected();
        },
        [&] { Q_EMIT finished(result); });
}

SharedColorDialog *SharedColorDialog::create(const QLxColor &color, QWidget *parent)
{
    return currentFactory ? currentFactory(color, parent) : nullptr;
}
