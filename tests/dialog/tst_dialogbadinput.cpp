// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDialogBadInput : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDialogBadInput)
#include "tst_dialogbadinput.moc"
