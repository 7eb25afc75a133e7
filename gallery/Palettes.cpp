// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Palettes.h"

#include <QApplication>
#include <QStyle>

namespace {

struct RoleColor
{
    QPalette::ColorRole role;
    QRgb color;
};

// Light, Midlight, Mid, Dark and Shadow draw frames: a dark window needs them closer to each other than a
// light one does, or every edge glares.
constexpr RoleColor DarkColors[] = {
    {QPalette::Window, 0x2b2d30},
    {QPalette::WindowText, 0xe4e5e7},
    {QPalette::Base, 0x1f2023},
    {QPalette::AlternateBase, 0x26282b},
    {QPalette::Text, 0xe4e5e7},
    {QPalette::Button, 0x323539},
    {QPalette::ButtonText, 0xe4e5e7},
    {QPalette::BrightText, 0xff7b72},
    {QPalette::Light, 0x5a5e64},
    {QPalette::Midlight, 0x4a4d53},
    {QPalette::Mid, 0x26282a},
    {QPalette::Dark, 0x1c1d1f},
    {QPalette::Shadow, 0x111214},
    {QPalette::Highlight, 0x3584c8},
    {QPalette::HighlightedText, 0xffffff},
    {QPalette::Link, 0x6cb2f5},
    {QPalette::LinkVisited, 0xb49af0},
    {QPalette::ToolTipBase, 0x3a3d41},
    {QPalette::ToolTipText, 0xe4e5e7},
    {QPalette::PlaceholderText, 0x8a8d93},
};

constexpr RoleColor DarkDisabledColors[] = {
    {QPalette::WindowText, 0x7c7f85},
    {QPalette::Base, 0x2b2d30},
    {QPalette::Text, 0x7c7f85},
    {QPalette::Button, 0x323438},
    {QPalette::ButtonText, 0x7c7f85},
    {QPalette::BrightText, 0x9a6a67},
    {QPalette::Light, 0x44474c},
    {QPalette::Midlight, 0x3b3e42},
    {QPalette::Highlight, 0x50545a},
    {QPalette::HighlightedText, 0xa4a7ac},
    {QPalette::Link, 0x5a7186},
    {QPalette::LinkVisited, 0x726a86},
    {QPalette::PlaceholderText, 0x63666b},
};

} // namespace

QPalette lightPalette()
{
    return QApplication::style()->standardPalette();
}

QPalette darkPalette()
{
    QPalette palette;
    for (const RoleColor &entry : DarkColors)
        palette.setColor(QPalette::All, entry.role, QColor(entry.color));
    for (const RoleColor &entry : DarkDisabledColors)
        palette.setColor(QPalette::Disabled, entry.role, QColor(entry.color));
    return palette;
}
