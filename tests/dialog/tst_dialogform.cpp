// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDialogForm : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDialogForm)
#include "tst_dialogform.moc"
