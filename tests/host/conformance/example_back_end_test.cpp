// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "examples/minimal_host/ten_headlines.h"
#include "host/conformance/back_end_check.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace wirepane {

TEST(ExampleBackEnd, KeepsEveryDuty) {
    TenHeadlines backEnd;
    const std::vector<QString> broken = brokenDuties(backEnd);
    EXPECT_EQ(QStringList(broken.begin(), broken.end()).join(u'\n').toStdString(), "");
}

}  // namespace wirepane
