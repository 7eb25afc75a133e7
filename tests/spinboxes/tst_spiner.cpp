// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestSpiner : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestSpiner)
#include "tst_spiner.moc"
