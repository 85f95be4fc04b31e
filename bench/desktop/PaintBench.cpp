// The time to show a board on the toolkit's offscreen platform: a whole window, a single cell, a
// press, and periods of a board in which much moves. What a screen's server adds is measured by
// measure.py.
#include "../Boards.h"

#include "desktop/BoardCanvas.h"
#include "host/MemoryPlatform.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>

#include <memory>

namespace tumbledeep {

namespace {

constexpr int LargestMap = 301; // cells, both ways
constexpr float CellAcross = 24;

/// A map in the middle of which a canvas of the given size looks.
class Shown {
  public:
    Shown(const std::string& map, QSize size) {
        platform.Files[MemoryPlatform::Directory + std::string("\\M.TBM")] = map;
        platform.Settings() = "[Level]\nLOAD=M.TBM\n[AutoMove]\nMOVE=False\nMODE=2\n";
        Canvas.CameUp = [] {};
        Canvas.BoardPainted = [] {};
        Canvas.BoardPressed = [] { return false; };
        Game.MDIForm_Activate();
        Game.ActiveChild.Form.Left = Game.ActiveChild.Form.Top = -100 * Pitch;
        Canvas.resize(size);
        Canvas.show();
        Settle();
    }
    void Settle() {
        Canvas.Sync();
        QApplication::processEvents();
    }

  private:
    MemoryPlatform platform;

  public:
    frmMain Game{platform};
    BoardCanvas Canvas{Game};
};

/// Every cell holds something.
Shown FullBoard() { return {MapOf90000Lines(), {1280, 800}}; }

void WholeWindow(benchmark::State& state) {
    Shown shown = FullBoard();
    for ([[maybe_unused]] auto paint : state) shown.Canvas.repaint();
}
BENCHMARK(WholeWindow)->Unit(benchmark::kMicrosecond);

void OneCell(benchmark::State& state) {
    Shown shown = FullBoard();
    for ([[maybe_unused]] auto paint : state) shown.Canvas.repaint(480, 480, 25, 25);
}
BENCHMARK(OneCell)->Unit(benchmark::kMicrosecond);

void OnePress(benchmark::State& state) {
    Shown shown = FullBoard();
    const QPointF at(20.5F * CellAcross, 20.5F * CellAcross);
    QMouseEvent press(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton, {});
    for ([[maybe_unused]] auto event : state) QApplication::sendEvent(&shown.Canvas, &press);
}
BENCHMARK(OnePress)->Unit(benchmark::kMicrosecond);

/// 4,000 mines in corridors with walls and dirt between. Shown or not, it plays whole cycles, so
/// that the difference is what showing costs.
void Corridors(benchmark::State& state, bool isShown) {
    const std::string map = MapOf(LargestMap, LargestMap, [](int col, int row) {
        if (row % 2 == 0) return Object{row % 4 == 0 ? "harddirt" : "dirt", ""};
        return col % 11 == 5 ? Object{"movingmineL", "R"} : Object{};
    });
    Shown shown(map + "gem1type 0 0\nyou 1e9 1e9\n", {1920, 1000});
    constexpr int cycle = 301;
    for ([[maybe_unused]] auto step : state) {
        for (int tick = 0; tick < cycle; ++tick) {
            shown.Game.TimerPeriod();
            if (isShown) shown.Settle();
        }
    }
    state.counters["per_tick"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * cycle,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(Corridors, Played, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Corridors, PlayedAndShown, true)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
