// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestPipette : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestPipette)
#include "tst_pipette.moc"
