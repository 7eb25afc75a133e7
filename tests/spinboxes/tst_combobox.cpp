// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestComboBox : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
