#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <functional>

#include "allocations.h"
#include "app/game.h"

namespace {

class HeadlessDesktop final : public platform::Desktop {
 public:
  Answer messageBox(std::string_view /*text*/, Buttons /*buttons*/) override { return Answer::ok; }
  void announce(std::string_view /*sentence*/) override {}
  void yield() override {}
  double secondsSinceMidnight() override {
    const auto now = std::chrono::system_clock::now();
    return std::chrono::duration<double>(now - std::chrono::floor<std::chrono::days>(now)).count();
  }
  void showModal(platform::Form& /*form*/) override {}
  platform::Printer& printer() override { std::abort(); }
  platform::HelpViewer& helpViewer() override { std::abort(); }
  [[noreturn]] void endProgram() override { std::exit(EXIT_SUCCESS); }
};

struct Bench {
  HeadlessDesktop desktop;
  tessoro::ReseededDigits digits{desktop};
  tessoro::Game game{desktop, digits};

  Bench() { game.startUp.Form_Load(); }

  void fixCorners(const std::array<std::int16_t, 4>& targets) {
    for (int k = 1; k <= 4; ++k) game.state.*tessoro::cornerTargets[k] = targets[k - 1];
  }
};

/// Reports the average number of allocations per iteration since the count `before`.
void reportAllocations(benchmark::State& run, long before) {
  run.counters["allocations"] = benchmark::Counter(static_cast<double>(allocations - before),
                                                   benchmark::Counter::kAvgIterations);
}

class CountingDigits final : public tessoro::Digits {
 public:
  explicit CountingDigits(platform::Desktop& desktop) : digits_(desktop) {}
  int draw() override {
    ++drawn;
    return digits_.draw();
  }
  long drawn = 0;

 private:
  tessoro::ReseededDigits digits_;
};

double secondsFor(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// A search with free corners. `to_draws` is its time divided by the time of its draws alone. Each
/// draw reads the clock.
void freeSearch(benchmark::State& run) {
  Bench bench;
  const long before = allocations;
  for (auto _ : run) bench.game.search.FindSolution();
  reportAllocations(run, before);

  HeadlessDesktop desktop;
  CountingDigits counted(desktop);
  tessoro::Game game(desktop, counted);
  game.startUp.Form_Load();
  constexpr int searches = 50000;
  counted.drawn = 0;
  const double searching = secondsFor([&] {
    for (int i = 0; i < searches; ++i) game.search.FindSolution();
  });
  const long draws = counted.drawn;
  const double drawing = secondsFor([&] {
    for (long i = 0; i < draws; ++i) benchmark::DoNotOptimize(counted.draw());
  });
  run.counters["draws"] = static_cast<double>(draws) / searches;
  run.counters["to_draws"] = searching / drawing;
}
BENCHMARK(freeSearch);

void searchWithFourCornersFixed(benchmark::State& run) {
  Bench bench;
  bench.fixCorners({3, 5, 7, 4});
  double found = 0;
  for (auto _ : run) {
    bench.game.search.FindSolution();
    found += bench.game.search.SolveFound() ? 1 : 0;
  }
  run.counters["found"] = benchmark::Counter(found, benchmark::Counter::kAvgIterations);
}
BENCHMARK(searchWithFourCornersFixed);

/// All 500 attempts fail, because 12 is not a digit. They fail at the same stage as for corners
/// that are hard to match.
void searchThatGivesUp(benchmark::State& run) {
  Bench bench;
  bench.fixCorners({1, 9, 8, 12});
  for (auto _ : run) bench.game.search.FindSolution();
}
BENCHMARK(searchThatGivesUp);

void oneAttempt(benchmark::State& run) {
  Bench bench;
  tessoro::SolutionAttempt attempt(bench.game.state, bench.digits);
  const long before = allocations;
  for (auto _ : run) benchmark::DoNotOptimize(attempt.run());
  reportAllocations(run, before);
}
BENCHMARK(oneAttempt);

/// The minimum for an attempt: the nine draws of its first three rows.
void nineDraws(benchmark::State& run) {
  Bench bench;
  for (auto _ : run) {
    for (int i = 0; i < 9; ++i) benchmark::DoNotOptimize(bench.digits.draw());
  }
}
BENCHMARK(nineDraws);

void updateLines(benchmark::State& run) {
  Bench bench;
  bench.game.solutionDisplay.ShowSolution();
  for (auto _ : run) bench.game.results.UpdateLines("1503");
}
BENCHMARK(updateLines);

/// A move on a full board where only the last corner is wrong.
void oneMove(benchmark::State& run) {
  Bench bench;
  bench.game.solutionDisplay.ShowSolution();
  bench.game.state.SolNumbers[16] = " 0";
  const long before = allocations;
  for (auto _ : run) bench.game.form.board.GridDisp[17].press({});
  reportAllocations(run, before);
}
BENCHMARK(oneMove);

}  // namespace
