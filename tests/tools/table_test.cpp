// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "database/table.h"

#include "database/table_layout.h"

namespace orva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TableResult {
    Table table;
    std::vector<std::string> refusals;
};

TableResult Read(std::string_view bytes) {
    Refusals refusals;
    TableResult result{ReadTable("t.tsv", bytes, {"cas", "A"}, refusals), {}};
    for (const Refusal& refusal : refusals)
        result.refusals.push_back(RefusalText(refusal));
    return result;
}

TEST(ReadTable, GivesRowsWithTheirLines) {
    const TableResult result = Read("# head\n\ncas\tA\n1\t\n# between\n2\t5");
    EXPECT_THAT(result.refusals, IsEmpty());
    ASSERT_EQ(result.table.rows.size(), 2u);
    EXPECT_EQ(result.table.rows[0].line, 4);
    EXPECT_EQ(result.table.Cell(result.table.rows[0], "A"), "");
    EXPECT_EQ(result.table.rows[1].line, 6);
    EXPECT_EQ(result.table.Cell(result.table.rows[1], "A"), "5");
    EXPECT_EQ(result.table.Cell(result.table.rows[1], "B"), "");
}

TEST(ReadTable, TakesColumnsInAnyOrderAndFilesOfOtherSystems) {
    const TableResult result = Read("\xEF\xBB\xBF"
                                    "A\tcas\r\n5\t1\r\n");
    EXPECT_THAT(result.refusals, IsEmpty());
    ASSERT_EQ(result.table.rows.size(), 1u);
    EXPECT_EQ(result.table.Cell(result.table.rows[0], "cas"), "1");
    EXPECT_EQ(result.table.Cell(result.table.rows[0], "A"), "5");
}

TEST(ReadTable, RefusesOtherColumns) {
    EXPECT_THAT(Read("# x\ncas\tB\tcas\n1\t2\t3\n").refusals,
                ElementsAre("t.tsv:2: column \"cas\" stands more than once", "t.tsv:2: unknown column \"B\"",
                            "t.tsv:2: column \"cas\" stands more than once",
                            "t.tsv:2: column \"A\" is missing"));
    EXPECT_THAT(Read("").refusals, ElementsAre("t.tsv: no line names the columns"));
}

TEST(ReadTable, RefusesBrokenRowsAndKeepsTheOthers) {
    const TableResult result = Read("cas\tA\n1\n2\t3\t4\n3\t\xFF\n4\t\x01\n5\t 1\n6\t1\xC2\xA0\n7\t7\n");
    EXPECT_THAT(result.refusals, ElementsAre("t.tsv:2: 1 cells where the table has 2 columns",
                                             "t.tsv:3: 3 cells where the table has 2 columns",
                                             "t.tsv:4: not UTF-8", "t.tsv:5: holds a control character",
                                             "t.tsv:6: A: blank at the beginning or the end",
                                             "t.tsv:7: holds a no-break space"));
    ASSERT_EQ(result.table.rows.size(), 1u);
    EXPECT_EQ(result.table.Cell(result.table.rows[0], "cas"), "7");
}

TEST(TableLayouts, NameAPlaceInTheRecordForEachValueAndNoPlaceTwice) {
    std::vector<int> taken;
    for (const TableLayout& layout : TableLayouts()) {
        for (const ValueColumn& column : layout.values) {
            const int position = ColumnPosition(column);
            EXPECT_GE(position, 0) << layout.file << " " << column.column;
            EXPECT_LT(position, 124) << layout.file << " " << column.column;
            EXPECT_THAT(taken, testing::Not(testing::Contains(position)))
                << layout.file << " " << column.column;
            taken.push_back(position);
        }
    }
}

} // namespace
} // namespace orva
