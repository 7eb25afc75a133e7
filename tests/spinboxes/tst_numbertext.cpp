// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestNumberText : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestNumberText)
#include "tst_numbertext.moc"
