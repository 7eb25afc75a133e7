// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDoubleSpiner : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDoubleSpiner)
#include "tst_doublespiner.moc"
