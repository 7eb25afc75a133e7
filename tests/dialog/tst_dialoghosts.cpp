// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDialogHosts : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDialogHosts)
#include "tst_dialoghosts.moc"
