// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>

#include "calc/protocol_text.h"

namespace orva::test {
namespace {

const ProtocolHead molarHead{"21.11.2026", "n-Butan", "CEOS Peng / Robinson; Wagner", 0, 0};

ProtocolRow RowWith(std::initializer_list<std::pair<std::size_t, float>> values) {
    ProtocolRow row{};
    for (const auto& [slot, value] : values)
        row.at(slot) = value;
    return row;
}

// The table below the head.
std::string TableOf(const std::vector<ProtocolRow>& rows, char separator = ';', NumberStyle style = {}) {
    const std::string text = ProtocolText(molarHead, rows, separator, style);
    return text.substr(text.find("\r\n\r\n") + 4);
}

TEST(ProtocolText, IsWrittenToTheByte) {
    EXPECT_EQ(ProtocolText(
                  molarHead,
                  {RowWith({{slotT, 300}, {slotP, 101.325F}}), RowWith({{slotT, 310.5F}, {slotB, -0.65F}})},
                  ';', {}),
              "ORVA-6: p-V-T Calculations of States and Processes - Protocol from 21.11.2026\r\n"
              "n-Butan\r\n"
              "CEOS Peng / Robinson; Wagner\r\n"
              "units: [T] = K   [p] = kPa   [B] = m^3/kmol    [v] = m^3/kmol \r\n"
              "molar SI-units for function z: [z] = kJ/kmol or kJ/(kmol K)\r\n"
              "\r\n"
              "T;p;B;\r\n"
              "300;101.325;0;\r\n"
              "310.5;0;-0.65;\r\n");
}

TEST(ProtocolText, NamesTheUnitsInForce) {
    ProtocolHead head = molarHead;
    head.volumeBasis = 1;
    head.unitBasis = 3;
    std::string text = ProtocolText(head, {}, ';', {});
    EXPECT_NE(text.find("[B] = m^3/kmol    [v] = m^3/kg\r\n"
                        "specific SI-units for function z: [z] = kJ/kg or kJ/(kg K)\r\n\r\n"),
              std::string::npos);
    for (const int basis : {1, 2}) {
        head.unitBasis = basis;
        text = ProtocolText(head, {}, ';', {});
        EXPECT_NE(text.find("[v] = m^3/kg\r\n\r\n"), std::string::npos) << basis;
    }
    head.volumeBasis = 2;
    EXPECT_NE(ProtocolText(head, {}, ';', {}).find("[v] = m^3/kg\r\n"), std::string::npos);
}

TEST(ProtocolText, HasANameForEverySlot) {
    ProtocolRow row;
    row.fill(1);
    const std::string table = TableOf({row});
    EXPECT_EQ(table.substr(0, table.find("\r\n")),
              "T;p;rho(global);v(global);rho(L);cp(S);x;cp(idG);x;v(V);h(V);s(V);g(V);u(V);a(V);eH(V); "
              "eU(V);cp(V);cV(V);v(L);h(L);s(L);g(L);u(L);a(L);eH(L);eU(L);cp(L);cV(L);delta(LV)h;delta(LV)s;"
              "alpha(V);chi(V);beta(V);delta(V);alpha(L);chi(L);beta(L);delta(L);sound speed(L);"
              "sound speed(V);B;");
    EXPECT_EQ(std::count(table.begin(), table.end(), ';'), 84);
}

TEST(ProtocolText, LeavesOutColumnsWhoseRowsSumUpToZero) {
    EXPECT_EQ(TableOf({RowWith({{slotP, 100}})}), "p;\r\n100;\r\n"); // T is 0 in all rows
    EXPECT_EQ(TableOf({RowWith({{slotT, 300}, {slotB, 0.5F}}), RowWith({{slotT, 301}, {slotB, -0.5F}})}),
              "T;\r\n300;\r\n301;\r\n"); // rows that cancel
    // 1e-3 is lost in the sum, so that it is exactly 0 in single precision and not in double.
    EXPECT_EQ(TableOf({RowWith({{slotT, 300}, {slotB, 1e8F}}), RowWith({{slotT, 300}, {slotB, 1e-3F}}),
                       RowWith({{slotT, 300}, {slotB, -1e8F}})}),
              "T;\r\n300;\r\n300;\r\n300;\r\n");
    // Beyond the largest single the sum is not 0 either.
    constexpr float huge = std::numeric_limits<float>::max();
    EXPECT_EQ(TableOf({RowWith({{slotB, huge}}), RowWith({{slotB, huge}})}),
              "B;\r\n3.402823E+38;\r\n3.402823E+38;\r\n");
    EXPECT_EQ(TableOf({ProtocolRow{}}), "\r\n\r\n");
}

TEST(ProtocolText, FollowsSeparatorAndDecimalStyle) {
    EXPECT_EQ(TableOf({RowWith({{slotT, 300.25F}, {slotP, 1e-4F}})}, '\t', {','}),
              "T\tp\t\r\n300,25\t0,0001\t\r\n");
}

TEST(ProtocolRows, AreSinglesAndFinite) {
    std::array<double, resultCount> results{};
    results[slotT] = 1.0 / 3;
    results[slotP] = 1e300;
    results[slotB] = std::numeric_limits<double>::quiet_NaN();
    const ProtocolRow row = ProtocolRowOf(results);
    EXPECT_EQ(row[slotT], 1.0F / 3);
    EXPECT_EQ(row[slotP], 0);
    EXPECT_EQ(row[slotB], 0);
}

TEST(ProtocolClipboard, HasTabsAndWholeLines) {
    EXPECT_EQ(ProtocolClipboardText("a;b;\r\n1;2;\nend", ';'), "a\tb\t\r\n1\t2\t\r\nend\r\n");
    EXPECT_EQ(ProtocolClipboardText("", ';'), "");
    EXPECT_EQ(ProtocolClipboardText("1\t2;\r\n", '\t'), "1\t2;\r\n");
}

TEST(ListSeparators, HaveTheirRowsAndFallBackToTheSemicolon) {
    EXPECT_EQ(ListSeparatorIndex(';'), 0);
    EXPECT_EQ(ListSeparatorIndex(','), 1);
    EXPECT_EQ(ListSeparatorIndex('\t'), 2);
    EXPECT_EQ(ListSeparatorIndex('|'), 0);
    EXPECT_EQ(listSeparators[2], '\t');
}

} // namespace
} // namespace orva::test
