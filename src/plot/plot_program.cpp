// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/plot_program.h"

#include <QApplication>
#include <QLoggingCategory>

namespace orva {

// Qt keeps references to the arguments as long as it runs.
struct PlotProgram::Application {
    char name[5] = "orva";
    char* argv[2] = {name, nullptr};
    int argc = 1;
    QApplication application{argc, argv};
};

PlotProgram::PlotProgram() {
    if (QCoreApplication::instance() != nullptr)
        return;
    // Standard error belongs to the program; the surroundings that Qt misses there do not matter offscreen.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application = std::make_unique<Application>();
}

PlotProgram::~PlotProgram() = default;

} // namespace orva
