// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <random>

#include "helpers/dvopar/request.h"
#include "helpers/dvopar/result_text.h"
#include "helpers/dvopar/vo_halme_fit.h"
#include "helpers/request_samples.h"
#include "text/number_format.h"

namespace orva::dvopar {
namespace {

// Whatever the request: a refusal in one line, or constants that are all finite.
void ExpectSound(const std::string& text) {
    const ParsedRequest parsed = ParseRequest(text);
    if (!parsed.request) {
        EXPECT_FALSE(parsed.error.empty());
        EXPECT_EQ(parsed.error.find('\n'), std::string::npos);
        return;
    }
    const VoHalmeFit fit = FitVoHalme(*parsed.request);
    if (!fit.parameters) {
        EXPECT_FALSE(fit.error.empty());
        EXPECT_EQ(fit.error.find('\n'), std::string::npos);
        return;
    }
    const VoHalmeParameters& vh = *fit.parameters;
    EXPECT_TRUE(std::isfinite(vh.m1 + vh.m2 + vh.m3 + vh.zeta + vh.k)) << text;
    EXPECT_GE(vh.zeta, 0.2);
    EXPECT_LE(vh.zeta, 0.37);
}

TEST(DvoparRobustness, SurvivesAnyBytes) {
    std::mt19937 random(1);
    for (int run = 0; run < 3000; ++run) {
        std::string bytes(random() % 400, '\0');
        for (char& c : bytes)
            c = static_cast<char>(random());
        ExpectSound(bytes);
    }
}

TEST(DvoparRobustness, SurvivesMutatedAndTruncatedRequests) {
    std::mt19937 random(2);
    const std::string good = test::WaterRequest("11");
    for (std::size_t length = 0; length < good.size(); length += 7)
        ExpectSound(good.substr(0, length));
    for (int run = 0; run < 250; ++run) {
        std::string text = good;
        for (int i = 0; i < 1 + run % 4; ++i)
            text[random() % text.size()] = "0123456789.,-+E\"\r\n N"[random() % 20];
        ExpectSound(text);
    }
}

TEST(DvoparRobustness, SurvivesRandomNumbersInEveryPlace) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> exponent(-8, 8);
    const char* flags[] = {"0, 1, 0", "0, 1, 1", "1, 1, 1", "0, 1, 2", "1, 1, 3"};
    for (int run = 0; run < 250; ++run) {
        std::string text = run % 2 == 0 ? "10\n\"x\"\n" : "11\n\"x\"\n";
        text.append(flags[random() % 5]).append("\n");
        for (int i = 0; i < 27; ++i) {
            double x = std::pow(10.0, exponent(random));
            if (i > 3 && random() % 3 == 0)
                x = random() % 2 == 0 ? 0 : -x;
            text.append(Format(x, ".00000000E+00")).append("\n");
        }
        ExpectSound(text);
    }
}

TEST(DvoparRobustness, SurvivesRandomCoefficientsForARealSubstance) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> exponent(-3, 4);
    const char* flags[] = {"0, 1, 1", "1, 1, 1", "0, 1, 2", "1, 1, 3"};
    for (int run = 0; run < 150; ++run) {
        std::string numbers;
        for (int i = 0; i < 19; ++i) {
            const double x = (random() % 2 == 0 ? 1 : -1) * std::pow(10.0, exponent(random));
            numbers.append(Format(random() % 4 == 0 ? 0 : x, ".00000000E+00"))
                .append(i == 6 ? ", 280, 600\n" : ", ");
        }
        numbers += "280, 600\n";
        // Seven coefficients of the density with their limits, ten parameters and limits of the pressure.
        ExpectSound(
            test::RequestOf(run % 2 == 0 ? "10" : "11", flags[run % 4], test::waterConstants, "", numbers));
    }
}

TEST(DvoparRobustness, RefusesZerosAndTextInPlaceOfNumbers) {
    std::string zeros = "10\n\"\"\n0,1,0\n";
    std::string words = "10\n\"\"\n0,1,0\n";
    for (int i = 0; i < 27; ++i) {
        zeros += "0.00000000E+00\n";
        words += "NaN\n";
    }
    EXPECT_EQ(ParseRequest(zeros).error, "molar mass, critical temperature or critical pressure is missing");
    EXPECT_EQ(ParseRequest(words).error, "item 6 of the request is no number");
}

} // namespace
} // namespace orva::dvopar
