// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/columns.h"
#include "text/paths.h"

namespace orva::test {
namespace {

TEST(ShortenPath, LeavesAPathThatFits) {
    EXPECT_EQ(ShortenPath("C:\\ORVA\\Daten", 13), "C:\\ORVA\\Daten");
    EXPECT_EQ(ShortenPath("", 0), "");
}

TEST(ShortenPath, KeepsTheBeginningAndWholeNamesOfTheEnd) {
    const std::string path = "C:\\Programme\\ORVA\\Projekte\\Butan.QCF"; // 36 characters
    EXPECT_EQ(ShortenPath(path, 35), "C:...\\ORVA\\Projekte\\Butan.QCF");
    EXPECT_EQ(ShortenPath(path, 29), "C:...\\ORVA\\Projekte\\Butan.QCF");
    EXPECT_EQ(ShortenPath(path, 28), "C:...\\Projekte\\Butan.QCF");
    EXPECT_EQ(ShortenPath(path, 23), "C:...\\Butan.QCF");
}

TEST(ShortenPath, NeverGetsLongerThanItsLimit) {
    const std::string path = "C:\\Bücher\\Übungen zur Thermodynamik\\Größen\\n-Butan.QCF";
    for (std::size_t limit = 5; limit < CharacterCount(path); ++limit) {
        const std::string shortened = ShortenPath(path, limit);
        EXPECT_LE(CharacterCount(shortened), limit) << limit;
        EXPECT_TRUE(shortened.starts_with("C:...")) << limit;
    }
}

TEST(ShortenPath, CountsCharactersAndCutsNone) {
    EXPECT_EQ(ShortenPath("C:\\äöüäöüäöü\\ÄÖÜ.QCF", 14), "C:...\\ÄÖÜ.QCF");
}

TEST(ShortenPath, KnowsFoldersWithoutDrives) {
    EXPECT_EQ(ShortenPath("/home/student/orva/projekte/butan.qcf", 30), "/.../orva/projekte/butan.qcf");
}

TEST(ShortenPath, CutsAVeryLongNameInside) {
    EXPECT_EQ(ShortenPath("C:\\einsehrlangername.QCF", 14), "C:...rname.QCF");
    EXPECT_EQ(ShortenPath("abcdefghij", 3), "ab...");
}

TEST(Paths, GoThroughTextAndBack) {
    const std::string text = "Übung/größer.QCF";
    EXPECT_EQ(PathText(PathOf(text)), text);
}

} // namespace
} // namespace orva::test
