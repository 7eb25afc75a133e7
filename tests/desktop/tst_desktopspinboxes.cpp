// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDesktopSpinBoxes : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDesktopSpinBoxes)
#include "tst_desktopspinboxes.moc"
