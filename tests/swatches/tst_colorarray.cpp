// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestColorArray : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestColorArray)
#include "tst_colorarray.moc"
