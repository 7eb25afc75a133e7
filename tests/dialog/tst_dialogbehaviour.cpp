// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestDialogBehaviour : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestDialogBehaviour)
#include "tst_dialogbehaviour.moc"
