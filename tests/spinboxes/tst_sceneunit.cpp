// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "TestCase.h"

class TestSceneUnit : public TestCase
{
    Q_OBJECT
};

QLX_TEST_MAIN(TestSceneUnit)
#include "tst_sceneunit.moc"
