// SPDX-License-Identifier: GPL-3.0-or-later
// The same input gives the same result to the last bit, whatever was computed before.
#include <gtest/gtest.h>

#include <cstring>

#include "report_fixture.h"

namespace orva::test {
namespace {

struct Situation {
    int kind;
    BatchRow row;
    VesselInput vessel;
};

std::vector<Situation> Situations() {
    std::vector<Situation> all;
    for (int kind = kindTRho; kind <= kindSolidDensity; ++kind)
        for (const double T : {310.25, 425.0, 480.5}) {
            BatchRow row = RowTP(T, 812.5);
            row.rhoV = 45.5F;
            row.rhoL = 540.25F;
            all.push_back({kind, row, {90, 1.5F, static_cast<float>(T)}});
        }
    return all;
}

template<class Record> bool SameBits(const Record& a, const Record& b) {
    static_assert(std::is_trivially_copyable_v<Record>);
    return std::memcmp(&a, &b, sizeof a) == 0;
}

void ExpectSame(const PointResult& a, const PointResult& b, const std::string& where) {
    EXPECT_TRUE(SameBits(a.results, b.results)) << where;
    EXPECT_EQ(a.report, b.report) << where;
    for (const auto label : {&PointResult::par1, &PointResult::par2, &PointResult::co1, &PointResult::co2}) {
        EXPECT_EQ((a.*label).text, (b.*label).text) << where;
        EXPECT_EQ((a.*label).colour, (b.*label).colour) << where;
    }
    EXPECT_TRUE(SameBits(a.p, b.p) && SameBits(a.T, b.T)) << where;
    EXPECT_TRUE(SameBits(a.roots, b.roots)) << where;
    EXPECT_EQ(a.failed, b.failed) << where;
    EXPECT_EQ(a.note, b.note) << where;
    EXPECT_EQ(a.record.phase, b.record.phase) << where;
    EXPECT_TRUE(SameBits(a.record.deriv, b.record.deriv) && SameBits(a.record.coeff, b.record.coeff))
        << where;
    EXPECT_EQ(a.liquidPercent, b.liquidPercent) << where;
}

PointResult Calculate(Reported& c, const Situation& s) {
    c.state.vessel = s.vessel;
    return c.Run(s.kind, s.row);
}

struct Treatment {
    int eos;
    bool partial;
    std::int16_t volumeBasis;
};

class AnyOrder : public testing::TestWithParam<Treatment> {
protected:
    Reported Fresh() const {
        Reported c(GetParam().eos);
        if (GetParam().partial)
            c.TakePartial(true);
        c.state.ExtendedLevel = 4;
        c.state.FunctionList = true;
        c.options.volumeBasis = GetParam().volumeBasis;
        return c;
    }
};

// Every kind on fresh records, and again after every other kind at other temperatures has run on the same
// ones.
TEST_P(AnyOrder, OfCalculationsGivesTheSameBits) {
    const std::vector<Situation> all = Situations();
    Reported worn = Fresh();
    for (const Situation& other : all)
        Calculate(worn, other);
    for (std::size_t i = 0; i < all.size(); ++i) {
        Reported fresh = Fresh();
        const std::string where =
            "kind " + std::to_string(all[i].kind) + " T " + std::to_string(all[i].row.T);
        const PointResult first = Calculate(fresh, all[i]);
        ExpectSame(first, Calculate(fresh, all[i]), where + " at once again");
        Calculate(worn, all[(i * 7 + 5) % all.size()]);
        ExpectSame(first, Calculate(worn, all[i]), where + " after others");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Models, AnyOrder,
    testing::Values(Treatment{eosPengRobinson, false, 0}, Treatment{eosPengRobinson, true, 1},
                    Treatment{eosSoaveRedlichKwong, false, 2}, Treatment{eosVanDerWaals, false, 0},
                    Treatment{virialPitzerCurl, true, 0}, Treatment{eosIdealGas, true, 1}));

// The comparison of volume and co-volume takes the B of the last evaluation; a B of another state would let
// this liquid pass or fail.
TEST(StaleCoVolume, DoesNotShow) {
    Reported c(eosPengRobinson);
    const PointResult first = c.Run(kindTRho, RowTRho(430, 790));
    EXPECT_FALSE(first.failed);
    c.model.eos.B = 1e3;
    ExpectSame(first, c.Run(kindTRho, RowTRho(430, 790)), "with a stale B");
}

TEST(StaleParameters, DoNotReachTheTrailer) {
    Reported c;
    c.model.selection.eosPriority = false;
    const PointResult first = c.Run(kindSaturationTemperature, RowP(500));
    c.Run(kindTP, RowTP(600, 100));
    ExpectSame(first, c.Run(kindSaturationTemperature, RowP(500)), "the vapour-pressure equation alone");
}

TEST(SuppressedReport, LeavesNumbersAndRecordAsTheyAre) {
    for (const Situation& s : Situations()) {
        Reported c;
        c.state.ExtendedLevel = 4;
        c.state.FunctionList = true;
        const PointResult shown = Calculate(c, s);
        c.state.vessel = s.vessel;
        const PointResult hidden = c.Run(s.kind, s.row, {.suppressReport = true});
        EXPECT_EQ(hidden.report, "") << s.kind;
        EXPECT_TRUE(SameBits(shown.results, hidden.results)) << s.kind;
        EXPECT_EQ(shown.record.phase, hidden.record.phase) << s.kind;
        EXPECT_EQ(shown.failed, hidden.failed) << s.kind;
        EXPECT_EQ(shown.phaseVerdict, hidden.phaseVerdict) << s.kind;
        EXPECT_EQ(shown.messages.size(), hidden.messages.size()) << s.kind;
    }
}

TEST(KnownAmbientState, GivesTheSameFunctions) {
    Reported c;
    const AmbientState ambient = EvaluateAmbientState(c.model);
    const PointResult own = c.Run(kindFunctions, RowTP(350, 500));
    const PointResult given = c.Run(kindFunctions, RowTP(350, 500), {.ambient = &ambient});
    ExpectSame(own, given, "ambient state given");
}

} // namespace
} // namespace orva::test
