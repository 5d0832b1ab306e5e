#include <benchmark/benchmark.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "app/game.h"
#include "program.h"
#include "qt/form_view.h"
#include "qt/form_window.h"
#include "qt/qt_desktop.h"

/// Benchmarks of the program in a real window. They need an X server, such as xvfb-run's.
namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Watcher of the X root window that reports newly mapped windows.
class RootWindow {
 public:
  RootWindow() : connection_(xcb_connect(nullptr, nullptr)) {
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    xcb_change_window_attributes(connection_, screen->root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_);
  }
  ~RootWindow() { xcb_disconnect(connection_); }
  RootWindow(const RootWindow&) = delete;
  RootWindow& operator=(const RootWindow&) = delete;

  void waitForMapped() {
    for (bool mapped = false; !mapped;) {
      xcb_generic_event_t* event = xcb_wait_for_event(connection_);
      if (event == nullptr) std::abort();
      mapped = (event->response_type & 0x7f) == XCB_MAP_NOTIFY;
      std::free(event);
    }
  }
  void drain() {
    while (xcb_generic_event_t* event = xcb_poll_for_event(connection_)) std::free(event);
  }

 private:
  xcb_connection_t* connection_;
};

double residentMegabytes(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmRSS:" && status >> kilobytes) return kilobytes / 1024;
  }
  return 0;
}

struct Start {
  double milliseconds;  ///< from exec to the mapped window
  double megabytes;     ///< resident set size after drawing
};

Start start(const char* program) {
  RootWindow root;
  root.drain();
  const auto begin = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    execl(program, program, nullptr);
    _exit(127);
  }
  root.waitForMapped();
  const double milliseconds = millisecondsSince(begin);
  usleep(300000);
  const double megabytes = residentMegabytes(process);
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  return {milliseconds, megabytes};
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

/// Starts the game and a bare Qt window in turn and compares the medians, which a busy moment of
/// the machine does not shift.
void startUp(benchmark::State& run) {
  std::vector<double> game;
  std::vector<double> bare;
  double megabytes = 0;
  double megabytesMore = 0;
  for (auto _ : run) {
    const Start one = start(BENCH_PROGRAM);
    const Start other = start(BENCH_BARE_WINDOW);
    run.SetIterationTime(one.milliseconds / 1000);
    game.push_back(one.milliseconds);
    bare.push_back(other.milliseconds);
    megabytes += one.megabytes;
    megabytesMore += one.megabytes - other.megabytes;
  }
  const auto runs = static_cast<double>(run.iterations());
  run.counters["to_bare_window"] = median(game) / median(bare);
  run.counters["game_ms"] = median(game);
  run.counters["bare_window_ms"] = median(bare);
  run.counters["MB"] = megabytes / runs;
  run.counters["MB_more"] = megabytesMore / runs;
}
BENCHMARK(startUp)->UseManualTime()->Iterations(51)->Unit(benchmark::kMillisecond);

/// Game in a window of this process.
struct Shown {
  static inline qt::QtDesktop* desktop = nullptr;
  tessoro::ReseededDigits digits{*desktop};
  tessoro::Game game{*desktop, digits};
  qt::FormWindow* window;

  Shown() {
    game.startUp.Form_Load();
    window = &desktop->show(game.form, {});
    settle();
  }
  ~Shown() { desktop->close(); }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

  static void settle() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
  }
  void press(int cell) const {
    const platform::Place place = tessoro::placeOf(cell);
    const QPointF at((place.left + 60 + 225) / 15.0, (place.top + 60 + 225) / 15.0);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, window->view().mapTo(window, at), window->view().mapToGlobal(at),
                        Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(window->windowHandle(), &event);
    }
  }
};

/// From a mouse press until the window is repainted. `of_a_frame` is in frames of 1/60 second.
void pressToRepaint(benchmark::State& run) {
  const Shown shown;
  const auto start = Clock::now();
  const long before = shown.window->view().drawnControls();
  for (auto _ : run) {
    const long drawn = shown.window->view().drawnControls();
    shown.press(17);
    while (shown.window->view().drawnControls() == drawn) QApplication::processEvents();
  }
  const auto runs = static_cast<double>(run.iterations());
  run.counters["of_a_frame"] = millisecondsSince(start) / runs * 60 / 1000;
  run.counters["controls_drawn"] =
      static_cast<double>(shown.window->view().drawnControls() - before) / runs;
}
BENCHMARK(pressToRepaint)->Unit(benchmark::kMicrosecond);

/// 500 failing attempts, each after the window processes its events, without the final message.
void searchThatGivesUp(benchmark::State& run) {
  Shown shown;
  tessoro::SolutionAttempt attempt(shown.game.state, shown.digits);
  shown.game.state.TargetBR = 12;  // not a digit, so no attempt succeeds
  const auto start = Clock::now();
  for (auto _ : run) {
    for (int i = 0; i < 500; ++i) {
      Shown::desktop->yield();
      benchmark::DoNotOptimize(attempt.run());
    }
    Shown::desktop->yield();
  }
  run.counters["of_a_frame"] =
      millisecondsSince(start) / static_cast<double>(run.iterations()) * 60 / 1000;
}
BENCHMARK(searchThatGivesUp)->Unit(benchmark::kMillisecond);

/// Growth of resident memory between 1,000 and 100,000 puzzles, with one move in each.
void memoryGrowth(benchmark::State& run) {
  Shown shown;
  const auto play = [&](int times) {
    for (int i = 0; i < times; ++i) {
      shown.game.newGame.NewPuz_Click();
      shown.press(i % 2 == 0 ? 17 : 16);
      QApplication::processEvents();
    }
    return residentMegabytes(getpid());
  };
  double growth = 0;
  for (auto _ : run) {
    const double early = play(1000);
    growth = play(99000) - early;
  }
  run.counters["MB_growth"] = growth;
}
BENCHMARK(memoryGrowth)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace

int main(int argc, char* argv[]) {
  benchmark::Initialize(&argc, argv);
  qt::QtDesktop desktop(argv[0], tessoro::program());
  Shown::desktop = &desktop;
  benchmark::RunSpecifiedBenchmarks();
}
