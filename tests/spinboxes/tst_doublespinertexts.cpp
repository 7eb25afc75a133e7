// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDoubleSpinerTexts : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDoubleSpinerTexts)
#include "tst_doublespinertexts.moc"
