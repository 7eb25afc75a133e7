// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDialogEdits : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDialogEdits)
#include "tst_dialogedits.moc"
