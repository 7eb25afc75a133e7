// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDoubleSpinerReceivers : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDoubleSpinerReceivers)
#include "tst_doublespinerreceivers.moc"
