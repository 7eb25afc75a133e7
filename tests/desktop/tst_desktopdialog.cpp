// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDesktopDialog : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDesktopDialog)
#include "tst_desktopdialog.moc"
