// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "examples/minimal_host/ten_headlines.h"
#include "host/conformance/back_end_check.h"

#include <QStringList>

#include <gtest/gtest.h>

TEST(ExampleBackEnd, KeepsEveryDuty) {
    TenHeadlines backEnd;
    const std::vector<QString> broken = BrokenDuties(backEnd);
    EXPECT_EQ(QStringList(broken.begin(), broken.end()).join(u'\n').toStdString(), "");
}
