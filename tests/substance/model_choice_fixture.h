// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "substance/model_choice.h"

namespace orva::test {

// The model window over a substance with all critical data; each test takes away or adds what it needs.
class ModelWindow : public testing::Test {
protected:
    SubstanceModel model;
    NameTables names = FillNameTables();
    ModelChoice window{model, names};
    SubstanceData& substance = model.substance;
    ModelSelection& selection = model.selection;

    ModelWindow() {
        substance.name = "n-Butan";
        substance.molarMass = 58.1222F;
        substance.Tc = 425.125;
        substance.pc = 3796;
        substance.omega = 0.2;
    }

    static std::vector<int> Numbers(const ChoiceList& list) {
        std::vector<int> numbers;
        for (const ChoiceRow& row : list.rows)
            numbers.push_back(row.number);
        return numbers;
    }

    void ChooseEos(int eos) { window.SelectEos(window.EOSKombi.RowOf(eos)); }
};

} // namespace orva::test
