// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SWATCHPARTS_H
#define GALLERY_SWATCHPARTS_H

#include "QLxColor.h"

#include <QRgb>

class QLxColorButton;
class QLxColorManipulator;
class SignalLog;

// What the pages with swatches share.

/// The colour that a screen shows for these sRGB-encoded channels.
QLxColor fromEncoded(QRgb rgb);

/// Logs everything that the button or the manipulator emits.
void watch(QLxColorButton *button, SignalLog *log);
void watch(QLxColorManipulator *manipulator, SignalLog *log);

/// A manipulator whose signals are logged.
QLxColorManipulator *makeManipulator(const char *name, SignalLog *log);
QLxColorManipulator *makeManipulator(const char *name, QRgb color, SignalLog *log);

#endif
