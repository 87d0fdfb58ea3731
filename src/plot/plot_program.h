// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace orva {

// What drawing needs in a program without windows: an application object on the offscreen platform, unless
// there is one already.
class PlotProgram {
public:
    PlotProgram();
    ~PlotProgram();
    PlotProgram(const PlotProgram&) = delete;
    PlotProgram& operator=(const PlotProgram&) = delete;

private:
    struct Application;
    std::unique_ptr<Application> application;
};

} // namespace orva
