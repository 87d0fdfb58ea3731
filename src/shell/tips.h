// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "state/machine.h"
#include "state/settings.h"

namespace orva {

// A random number from 0 up to, not including, 1.
using RandomNumber = std::function<double()>;
RandomNumber RandomNumbers();

// State and rules of `frmTip`, the window with hints on the work with the program. The tips are the lines of
// a text file in the installation folder.
class Tips {
public:
    // `showTipsExplicitly`: the user asked for the window, whatever the settings say.
    Tips(const Machine& machine, Settings& settings, bool englishText, bool showTipsExplicitly,
         RandomNumber random = RandomNumbers());

    // True if the window does not want to be shown.
    bool hideTip() const { return hide; }

    // `chkLoadTipsAtStartup`
    bool LoadTipsAtStartup() const;
    void SetLoadTipsAtStartup(bool load);

    // `cmdTipsZeigen`: reads the tips and picks one.
    void ShowTips();
    // `cmdNextTip`: the one after it, after the last the first. Nothing happens before there are tips.
    void ShowNext();

    bool HasTips() const { return !tips.empty(); }
    // The tip at hand with a line break behind it, or that its file is missing; empty at first.
    const std::string& Text() const { return text; }

private:
    const Machine& machine;
    Settings& settings;
    RandomNumber random;
    std::string file;
    bool hide;
    std::vector<std::string> tips;
    std::size_t current = 0;
    std::string text;
};

} // namespace orva
