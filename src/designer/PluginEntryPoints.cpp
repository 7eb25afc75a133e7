// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
//
// What Qt's plugin loader looks up in the library: the metadata block and the two entry points.
#include "QLxColorManipulatorPlugin_p.h"

#include <QPointer>

namespace {

// Written by hand because this Qt's moc no longer writes this form: a marker and a Qt binary-JSON
// document (little endian, offsets counted from the object that holds them). The interface identifier is
// the short one on purpose. A loader that only scans the file needs the section, one that finds the
// library loaded already asks qt_plugin_query_metadata().
[[gnu::section(".qtmetadata"), gnu::used]] const char pluginMetadata[] =
    "QTMETADATA  "
    "qbjs"
    "\x01\0\0\0" // document version 1
    "\xb0\0\0\0"
    "\x0b\0\0\0"
    "\x9c\0\0\0" // object of 176 bytes, 5 keys, table at 156
    // 12: "IID", a string at 24
    "\x1b\x03\0\0"
    "\x03\0"
    "IID"
    "\0\0\0"
    "\x1e\0"
    "QDesignerCustomWidgetInterface"
    // 56: "MetaData", an empty object at 72
    "\x15\x09\0\0"
    "\x08\0"
    "MetaData"
    "\0\0"
    "\x0c\0\0\0"
    "\x01\0\0\0"
    "\0\0\0\0"
    // 84: "className", a string at 100
    "\x9b\x0c\0\0"
    "\x09\0"
    "className"
    "\0"
    "\x19\0"
    "QLxColorManipulatorPlugin"
    "\0"
    // 128: "debug", false
    "\x11\0\0\0"
    "\x05\0"
    "debug"
    "\0"
    // 140: "version", the number 329989 (0x050905, Qt 5.9.5) in the upper 27 bits
    "\xba\x20\xa1\0"
    "\x07\0"
    "version"
    "\0\0\0"
    // 156: where the five keys are
    "\x0c\0\0\0"
    "\x38\0\0\0"
    "\x54\0\0\0"
    "\x80\0\0\0"
    "\x8c\0\0";

} // namespace

extern "C" {

Q_DECL_EXPORT const char *qt_plugin_query_metadata()
{
    return pluginMetadata;
}

Q_DECL_EXPORT QObject *qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance)
        instance = new QLxColorManipulatorPlugin;
    return instance;
}
}
