// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
#include <qcustomplot.h>

#include "diagrams/diagram_fixture.h"
#include "diagrams/diagram_window.h"
#include "plot/chart_file.h"

namespace orva {
namespace {

// A full diagram: 24 isotherms of 800 grid points.
struct FullDiagram {
    test::MethaneDiagram d;
    DiagramWindow window;

    FullDiagram() : window(d.Records(), d.dialogs) {
        d.options.curvePoints = 800;
        window.Open(FindDiagram(1));
        for (int i = 0; i < largestCurveCount; ++i) {
            d.request.curveT = 160 + 4 * i;
            window.cmdDraw();
        }
    }
};

// Aim: below 50 ms.
void PaintFullDiagram(benchmark::State& state) {
    const FullDiagram full;
    QCustomPlot plot;
    plot.resize(1000, 700);
    PreparePlot(plot, {});
    for (auto _ : state) {
        ShowChart(plot, full.window.Chart(), {});
        plot.replot(QCustomPlot::rpImmediateRefresh);
    }
}
BENCHMARK(PaintFullDiagram)->Unit(benchmark::kMillisecond);

void WriteFullDiagram(benchmark::State& state) {
    const FullDiagram full;
    const auto format = static_cast<ImageFormat>(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = DrawImage(full.window.Chart(), format, {}).size();
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(WriteFullDiagram)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orva

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
