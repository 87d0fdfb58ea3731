// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tips.h"

#include <algorithm>
#include <random>

#include "text/code_page.h"
#include "text/lines.h"
#include "text/text_file.h"

namespace orva {

namespace {

constexpr std::string_view section = "Options";
constexpr std::string_view key = "Show Tips at Startup";
constexpr int shown = 1;

std::vector<std::string> ReadTips(const std::filesystem::path& path) {
    std::vector<std::string> tips;
    const std::string text = Utf8FromTextFile(ReadFile(path).value_or(""));
    LineReader lines(text);
    while (const auto line = lines.Next())
        tips.emplace_back(*line);
    return tips;
}

} // namespace

RandomNumber RandomNumbers() {
    return [generator = std::mt19937(std::random_device()())]() mutable {
        return std::uniform_real_distribution<double>()(generator);
    };
}

Tips::Tips(const Machine& ownMachine, Settings& ownSettings, bool englishText, bool showTipsExplicitly,
           RandomNumber ownRandom)
    : machine(ownMachine), settings(ownSettings), random(std::move(ownRandom)),
      file(englishText ? "ORVATIPS_E.TXT" : "ORVATIPS.TXT"),
      hide(!LoadTipsAtStartup() && !showTipsExplicitly) {}

bool Tips::LoadTipsAtStartup() const {
    return settings.Number(section, key).value_or(shown) != 0;
}

void Tips::SetLoadTipsAtStartup(bool load) {
    settings.SetNumber(section, key, load ? shown : 0);
}

void Tips::ShowTips() {
    tips = ReadTips(machine.InstallationFolder() / file);
    if (tips.empty()) {
        text = "Die Datei " + file + " im ORVA-Verzeichnis nicht gefunden \n\n";
        return;
    }
    const auto picked = static_cast<std::size_t>(random() * static_cast<double>(tips.size()));
    current = std::min(picked, tips.size() - 1);
    text = tips[current] + "\n";
}

void Tips::ShowNext() {
    if (tips.empty())
        return;
    current = (current + 1) % tips.size();
    text = tips[current] + "\n";
}

} // namespace orva
