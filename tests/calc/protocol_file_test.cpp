// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "calc/protocol.h"
#include "support/test_machine.h"
#include "text/text_file.h"

namespace orva::test {
namespace {

struct ProtocolName : testing::Test {
    TestMachine machine;

    void Make(const std::string& name, const char* bytes = "x") {
        ASSERT_TRUE(WriteFile(machine.WritableFolder() / name, bytes));
    }
};

TEST_F(ProtocolName, IsYearDayMonthAndTheFirstNumber) {
    EXPECT_EQ(NewProtocolFileName(machine), "26211101.CSV");
    machine.today = {std::chrono::year(2003), std::chrono::February, std::chrono::day(1)};
    EXPECT_EQ(NewProtocolFileName(machine), "03010201.CSV");
}

TEST_F(ProtocolName, CountsOnWhileTheFileExists) {
    Make("26211101.CSV");
    EXPECT_EQ(NewProtocolFileName(machine), "26211102.CSV");
    Make("26211103.CSV");
    EXPECT_EQ(NewProtocolFileName(machine), "26211102.CSV");
    Make("26211102.CSV");
    EXPECT_EQ(NewProtocolFileName(machine), "26211104.CSV");
}

TEST_F(ProtocolName, TakesAnEmptyFileForNone) {
    Make("26211101.CSV", "");
    EXPECT_EQ(NewProtocolFileName(machine), "26211101.CSV");
}

TEST_F(ProtocolName, TakesAThirdDigitBehind99) {
    for (int number = 1; number <= 99; ++number)
        Make((number < 10 ? "2621110" : "262111") + std::to_string(number) + ".CSV");
    EXPECT_EQ(NewProtocolFileName(machine), "262111100.CSV");
    Make("262111100.CSV");
    EXPECT_EQ(NewProtocolFileName(machine), "262111101.CSV");
}

} // namespace
} // namespace orva::test
