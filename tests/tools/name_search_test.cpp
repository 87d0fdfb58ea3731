// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/name_search.h"

#include <initializer_list>

#include <gtest/gtest.h>

namespace orva {
namespace {

struct Spelling {
    const char* text;
    const char* normalised;
};

void ExpectSpellings(std::initializer_list<Spelling> spellings) {
    for (const Spelling& spelling : spellings)
        EXPECT_EQ(NormaliseName(spelling.text), spelling.normalised) << spelling.text;
}

TEST(NormaliseName, BringsSpellingsIntoOne) {
    ExpectSpellings({Spelling{"Äthanol", "ETHANOL"}, Spelling{"Essigsaeure", "ESSIGSÄURE"},
                     Spelling{"Kohlendioxyd", "KOHLENDIOXID"}});
}

TEST(NormaliseName, ReplacesTheLettersOfGermanAndOldSpellings) {
    ExpectSpellings({Spelling{"diäthyläther", "DIETHYLETHER"}, Spelling{"Glykol", "GLYCOL"},
                     Spelling{"Karbonat", "CARBONAT"}, Spelling{"Sulphat", "SULFAT"},
                     Spelling{"Azeton und Azetat", "ACETONUNDACETAT"}, Spelling{"sek-Butanol", "SEC-BUTANOL"},
                     Spelling{"Zyklohexan", "CYCLOHEXAN"}, Spelling{"Zyclohexan", "CYCLOHEXAN"},
                     Spelling{"Cyklohexan", "CYCLOHEXAN"}, Spelling{"n-Dekan", "N-DECAN"},
                     Spelling{"o-Kresol", "O-CRESOL"}, Spelling{"Me-ether", "METHYLETHER"},
                     Spelling{"Et-benzol", "ETHYLBENZOL"}, Spelling{"SAEURE saeure", "SÄURESÄURE"}});
}

// A rule sees what the rules before it have made.
TEST(NormaliseName, AppliesEachRuleToWhatTheOnesBeforeHaveMade) {
    ExpectSpellings({Spelling{"m e - x", "METHYLX"}, Spelling{"Ät-OH", "ÄT-OH"}, Spelling{"Met-x", "METHYLX"},
                     Spelling{"ME-T-X", "METHYLT-X"}, Spelling{"Sulphoxyd", "SULFOXID"}});
}

TEST(NormaliseName, MakesCapitals) {
    ExpectSpellings({Spelling{"äöü", "ÄÖÜ"}, Spelling{"ß", "ß"}, Spelling{"éø", "ÉØ"}, Spelling{"÷", "÷"},
                     Spelling{"ÿœšž", "ŸŒŠŽ"}, Spelling{"", ""}, Spelling{"   ", ""},
                     Spelling{"Wasser (schwer)", "WASSER(SCHWER)"}});
}

TEST(NormaliseName, SurvivesBrokenText) {
    ExpectSpellings({Spelling{"a\xFFz", "A\uFFFDZ"}, Spelling{"a\xC3", "A\uFFFD"}});
}

TEST(NormaliseName, MakesOxidOfOxydButNotOfOxydi) {
    ExpectSpellings({Spelling{"oxyd", "OXID"}, Spelling{"Oxyd oxyd", "OXIDOXID"},
                     // OXYDI at the same place stays, and what stands behind it.
                     Spelling{"oxydimethyl", "OXYDIMETHYL"}, Spelling{"oxydioxyd", "OXYDIOXYD"},
                     // 1 and not 5 is 0: nothing is replaced.
                     Spelling{"oxydoxydi", "OXYDOXYDI"},
                     // 2 and not 6 is 0, 2 and not 7 is 0, 2 and not 8 is 2.
                     Spelling{"aoxydoxydi", "AOXYDOXYDI"}, Spelling{"aoxydboxydi", "AOXYDBOXYDI"},
                     Spelling{"aoxydbboxydi", "AOXIDBBOXYDI"}});
}

// 2 and not 7 is 0. Counted in bytes the positions are 3 and 8, which would replace.
TEST(NormaliseName, CountsCharactersNotBytes) {
    EXPECT_EQ(NormaliseName("äoxydboxydi"), "ÄOXYDBOXYDI");
}

TEST(SearchKey, LeavesOutHyphensBracketsAndDots) {
    EXPECT_EQ(SearchKey("BICYCLO[4.4.0]DECAN"), "BICYCLO440DECAN");
    EXPECT_EQ(SearchKey("(E)-1,3-R,S"), "E1,3R,S");
    EXPECT_EQ(SearchKey("-()[]."), "");
    EXPECT_EQ(SearchKey("ESSIGSÄURE"), "ESSIGSÄURE");
}

TEST(SearchKey, IsMadeBehindTheRulesForMethylAndEthyl) {
    EXPECT_EQ(SearchKey(NormaliseName("Me-OH")), "METHYLOH");
    EXPECT_EQ(SearchKey(NormaliseName("Et.-OH")), "ETOH");
}

} // namespace
} // namespace orva
