// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/capitals.h"

namespace orva::test {
namespace {

TEST(Capitals, ChangeTheLettersOfAsciiOnly) {
    EXPECT_EQ(InCapitals("Butan_2.qcf"), "BUTAN_2.QCF");
    EXPECT_EQ(InCapitals("az`{ äß"), "AZ`{ äß");
    EXPECT_EQ(InCapitals(""), "");
}

} // namespace
} // namespace orva::test
