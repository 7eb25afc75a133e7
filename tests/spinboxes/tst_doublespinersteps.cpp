// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDoubleSpinerSteps : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDoubleSpinerSteps)
#include "tst_doublespinersteps.moc"
