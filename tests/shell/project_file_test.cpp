// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "shell/project_file.h"
#include "support/test_machine.h"
#include "text/text_file.h"

namespace orva::test {
namespace {

// Every value differs from the one that a new session has.
ProjectFile Sample() {
    ProjectFile project;
    project.date = "21.11.2026";
    project.comment = "Versuch, Größe 1 \"a\"";
    project.database = "ORVA.Q05";
    project.cas = "106-97-8";
    project.curveT = 425.125;
    project.curveP = 3796;
    project.curveV = 0.2549;
    project.energyFactor = 0.017205130707;
    project.volumeBasis = 1;
    project.unitBasis = 3;
    project.curveTpRestricted = false;
    project.curvePoints = 450;
    project.listSeparator = '\t';
    project.vaporPressure = 4;
    project.eos = 12;
    project.cpModel = 2;
    project.vaporization = 6;
    project.watsonExponent = 0.38F;
    project.eosPriority = false;
    project.referenceKind = 10;
    project.h0 = -125790;
    project.s0 = 310.12;
    project.T0 = 300.15F;
    project.p0 = 99.9F;
    project.Tenv = 288.15;
    project.penv = 100;
    project.processLineMode = 0;
    return project;
}

// Written by hand: what the sample is as bytes. The umlauts and the sharp s are single bytes.
const std::string sampleBytes = "21.11.2026\r\n"
                                "Versuch, Gr\xF6\xDF"
                                "e 1 \"a\"\r\n"
                                "ORVA.Q05\r\n"
                                "106-97-8    \r\n"
                                "425.125\r\n"
                                "3796\r\n"
                                "0.2549\r\n"
                                "0.017205130707\r\n"
                                "1\r\n"
                                "3\r\n"
                                "0\r\n"
                                "450\r\n"
                                "\"\t\"\r\n"
                                "4\r\n"
                                "12\r\n"
                                "2\r\n"
                                "6\r\n"
                                "0.38\r\n"
                                "0\r\n"
                                "10\r\n"
                                "-125790\r\n"
                                "310.12\r\n"
                                "300.15\r\n"
                                "99.9\r\n"
                                "288.15\r\n"
                                "100\r\n"
                                "0\r\n"
                                "0\r\n"
                                "0\r\n"
                                "0\r\n"
                                "0\r\n"
                                "0\r\n";

// The sample with another text in one line, counted from 1.
std::string WithLine(int number, const std::string& text) {
    std::size_t start = 0;
    for (int line = 1; line < number; ++line)
        start = sampleBytes.find("\r\n", start) + 2;
    std::string bytes = sampleBytes;
    return bytes.replace(start, bytes.find("\r\n", start) - start, text);
}

TEST(ProjectText, IsWrittenByteByByte) {
    EXPECT_EQ(WriteProject(Sample()), sampleBytes);
    ProjectFile standard = Sample();
    standard.curveTpRestricted = standard.eosPriority = true;
    standard.listSeparator = ';';
    standard.eos = -1;
    const std::string bytes = WriteProject(standard);
    EXPECT_NE(bytes.find("\r\n-1\r\n450\r\n\";\"\r\n4\r\n-1\r\n"), bytes.npos);
    EXPECT_NE(bytes.find("\r\n0.38\r\n-1\r\n10\r\n"), bytes.npos);
}

TEST(ProjectText, IsReadLineByLine) {
    ProjectFile read;
    EXPECT_EQ(ReadProject(sampleBytes, read), 32);
    ProjectFile expected = Sample();
    expected.cas = "106-97-8    ";
    EXPECT_EQ(read, expected);
}

TEST(ProjectText, BringsEveryNumberBackToTheLastBit) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-30, 30);
    for (int i = 0; i < 500; ++i) {
        ProjectFile project = Sample();
        project.h0 = -std::exp(exponent(random));
        project.energyFactor = std::exp(exponent(random));
        project.watsonExponent = static_cast<float>(std::exp(exponent(random)));
        project.cas = "106-97-8    ";
        ProjectFile read;
        ASSERT_EQ(ReadProject(WriteProject(project), read), 32);
        ASSERT_EQ(read, project);
    }
}

TEST(ProjectText, LineBreaksInTextsAndForeignLettersDoNotMoveTheLines) {
    ProjectFile project = Sample();
    project.comment = "eins\r\nzwei\nα";
    project.cas = "1234567-89-0-zu-lang";
    ProjectFile read;
    EXPECT_EQ(ReadProject(WriteProject(project), read), 32);
    EXPECT_EQ(read.comment, "eins  zwei ?");
    EXPECT_EQ(read.cas, "1234567-89-0");
}

TEST(ProjectText, TakesLinesOfOtherEditors) {
    std::string unixEnds = sampleBytes;
    std::erase(unixEnds, '\r');
    unixEnds.pop_back(); // no end of the last line
    ProjectFile read;
    EXPECT_EQ(ReadProject(unixEnds, read), 32);
    EXPECT_EQ(read.comment, Sample().comment);
    EXPECT_EQ(ReadProject(sampleBytes + "mehr\r\n\r\n", read), 32);
    EXPECT_EQ(ReadProject(WithLine(5, " 4.25125E+02 "), read), 32);
    EXPECT_EQ(read.curveT, 425.125);
    EXPECT_EQ(ReadProject(WithLine(11, "1"), read), 32);
    EXPECT_TRUE(read.curveTpRestricted);
    EXPECT_EQ(ReadProject(WithLine(13, "\"\""), read), 32);
    EXPECT_EQ(read.listSeparator, ' ');
    EXPECT_EQ(ReadProject(WithLine(13, ","), read), 32);
    EXPECT_EQ(read.listSeparator, ',');
}

TEST(ProjectText, StopsAtTheFirstLineThatItsRecordCannotHold) {
    const std::pair<int, const char*> broken[] = {
        {5, ""},      {5, "0"},    {5, "x"},      {5, "1e999"},  {6, "-1"},     {8, "0"},
        {9, "3"},     {10, "4"},   {11, "#"},     {12, "0"},     {12, "40000"}, {13, "\"\x01\""},
        {14, "9"},    {15, "17"},  {15, "-2"},    {16, "3"},     {17, "8"},     {18, "1e39"},
        {19, "wahr"}, {20, "3"},   {21, "nan"},   {22, "1e400"}, {23, "0"},     {24, "-1"},
        {25, "-1"},   {26, "1 2"}, {27, "70000"}, {28, "x"},     {32, "\"0\""}};
    for (const auto& [number, text] : broken) {
        ProjectFile read;
        read.penv = 7;
        EXPECT_EQ(ReadProject(WithLine(number, text), read), number - 1) << number << ' ' << text;
        EXPECT_EQ(read.comment, Sample().comment);
        EXPECT_EQ(read.penv, number > 26 ? 100 : 7) << number;
    }
}

TEST(ProjectText, CutAnywhereKeepsTheLinesBefore) {
    for (std::size_t length = 0; length <= sampleBytes.size(); ++length) {
        const std::string bytes = sampleBytes.substr(0, length);
        const int whole = static_cast<int>(std::ranges::count(bytes, '\n'));
        ProjectFile read;
        const int lines = ReadProject(bytes, read);
        ASSERT_GE(lines, whole) << length;
        ASSERT_LE(lines, whole + 1) << length;
        if (whole >= 26 || lines < 26) {
            ASSERT_EQ(read.penv, whole >= 26 ? 100 : ProjectFile().penv) << length;
        }
    }
}

TEST(ProjectText, SurvivesAnyBytes) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        std::string bytes = sampleBytes;
        for (unsigned hits = random() % 6; hits > 0; --hits)
            bytes[random() % bytes.size()] = static_cast<char>(random() % 256);
        if (i % 3 == 0)
            bytes.resize(random() % bytes.size());
        ProjectFile read;
        const int lines = ReadProject(bytes, read);
        ASSERT_TRUE(0 <= lines && lines <= 32);
        ASSERT_TRUE(std::isfinite(read.h0) && std::isfinite(read.s0) && std::isfinite(read.watsonExponent));
        ASSERT_TRUE(read.curveT > 0 && std::isfinite(read.curveT) && std::isfinite(read.energyFactor));
        ASSERT_TRUE(-1 <= read.eos && read.eos <= 16 && 0 <= read.vaporPressure && read.vaporPressure <= 8);
        ASSERT_TRUE(read.curvePoints > 0 && 0 <= read.unitBasis && read.unitBasis <= 3);
    }
}

TEST(ProjectText, TheStartOfAFileIsEnough) {
    const TestMachine machine;
    const auto path = machine.WritableFolder() / "groß.QCF";
    EXPECT_EQ(ReadFileStart(path), std::nullopt);
    EXPECT_EQ(ReadFileStart(machine.WritableFolder()), std::nullopt);
    ASSERT_TRUE(WriteFile(path, sampleBytes + std::string(1 << 20, 'x')));
    const auto bytes = ReadFileStart(path);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), 65536U);
    ProjectFile read;
    EXPECT_EQ(ReadProject(*bytes, read), 32);
}

} // namespace
} // namespace orva::test
