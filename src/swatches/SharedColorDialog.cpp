// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SharedColorDialog_p.h"

#include <utility>

namespace {
SharedColorDialog::Factory currentFactory = nullptr;
}

QPointer<SharedColorDialog> sharedColorDialog;

SharedColorDialog::Factory SharedColorDialog::setFactory(Factory factory)
{
    return std::exchange(currentFactory, factory);
}

SharedColorDialog *SharedColorDialog::create(const QLxColor &color, QWidget *parent)
{
    return currentFactory ? currentFactory(color, parent) : nullptr;
}
