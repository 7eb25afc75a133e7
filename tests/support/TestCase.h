// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef TESTCASE_H
#define TESTCASE_H

#include <QApplication>
#include <QtTest>

/// Base of all test classes: a warning that no test expects fails the function that caused it.
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    // A class that has these slots too calls them from its own.
    void init();
    void cleanup();
};

/// Pins what a picture or a platform-dependent test depends on; offscreen unless QLX_TEST_PLATFORM says
/// otherwise. Call before the application is made.
void pinTestEnvironment();
/// The rest of it: style, palette and font. Call after the application is made.
void pinTestLook();

#define QLX_TEST_MAIN(Class)                                                                                 \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        pinTestEnvironment();                                                                                \
        QApplication application(argc, argv);                                                                \
        pinTestLook();                                                                                       \
        Class test;                                                                                          \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

#endif
