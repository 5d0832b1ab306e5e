#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QImage>
#include <QScreen>
#include <QThread>
#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <random>

#include "board/layout.h"
#include "rules/eval_line.h"

/// The program as it is installed, on an X server of its own: this process is another client, which
/// moves the mouse through the server and sees nothing but the screen.
namespace tessoro::test {
namespace {

pid_t start(const std::vector<const char*>& command) {
  const pid_t child = fork();
  if (child == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // nothing outlives a test that is cut off
    std::vector<char*> arguments;
    for (const char* argument : command) arguments.push_back(const_cast<char*>(argument));
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  return child;
}

std::string output(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  std::array<char, 256> buffer{};
  while (fgets(buffer.data(), buffer.size(), pipe) != nullptr) text += buffer.data();
  pclose(pipe);
  return text;
}

/// Waits until the condition gives a value, for at most ten seconds.
template <typename Condition>
auto eventually(Condition condition) {
  auto value = condition();
  for (int i = 0; i < 400 && !value; ++i) {
    QThread::msleep(25);
    value = condition();
  }
  return value;
}

/// The exit status of the program once it has ended by itself.
std::optional<int> exitStatus(pid_t child) {
  return eventually([&]() -> std::optional<int> {
    int status = 0;
    if (waitpid(child, &status, WNOHANG) != child) return {};
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  });
}

void end(pid_t child) {
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

struct DesktopTest : testing::Test {
  pid_t program = 0;
  std::string window;
  QPoint client;  ///< of the window's client area on the screen

  void SetUp() override {
    program = start({TESSORO_PROGRAM, "-platform", "nonsense"});
    eventually([&] {
      window = output("xdotool search --onlyvisible --name '^Puzzle Number  1$' 2>/dev/null");
      return !window.empty();
    });
    ASSERT_FALSE(window.empty()) << "the window is titled with the first puzzle's number";
    window.pop_back();
    const auto frame = eventually([&] { return findFrame(); });
    ASSERT_TRUE(frame.has_value());
    client = *frame - QPoint(4, 4);
  }
  void TearDown() override {
    if (program != 0) end(program);
  }

  static QImage screen() { return QApplication::primaryScreen()->grabWindow(0).toImage(); }
  /// The cell that must be black, the hole in row and column 2, tells where the board is.
  static std::optional<QPoint> findFrame() {
    const QImage image = screen();
    for (int y = 0; y < image.height() - 60; ++y) {
      for (int x = 60; x < 300; ++x) {
        const auto isHole = [&] {
          for (int at = 0; at < 27; ++at) {
            if (image.pixel(x + at, y) != qRgb(0, 0, 0) ||
                image.pixel(x, y + at) != qRgb(0, 0, 0)) {
              return false;
            }
          }
          return image.pixel(x - 1, y) != qRgb(0, 0, 0);
        };
        // The hole's black begins one pixel within its place, (1080, 1230) twips in the frame.
        if (isHole()) return QPoint(x - 1080 / 15 - 1, y - 1230 / 15 - 1);
      }
    }
    return {};
  }
  QRect rectOf(int cell) const {
    const platform::Place place = placeOf(cell);
    return {client.x() + 4 + place.left / 15, client.y() + 4 + place.top / 15, 30, 30};
  }
  void press(int cell, int button = 1) const {
    const QPoint at = rectOf(cell).center();
    output("xdotool mousemove " + std::to_string(at.x()) + " " + std::to_string(at.y()) +
           " click " + std::to_string(button));
  }
  /// The shape of the text in a cell: the pixels nearer to its text colour than its background.
  QImage shapeIn(int cell, bool whiteText) const {
    const QImage image = screen().copy(rectOf(cell).adjusted(3, 3, -3, -3));
    QImage shape(image.size(), QImage::Format_Mono);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const bool bright = qRed(image.pixel(x, y)) > 127;
        shape.setPixel(x, y, bright == whiteText ? 1 : 0);
      }
    }
    return shape;
  }
  QRgb backgroundOf(int cell) const {
    return screen().pixel(rectOf(cell).topLeft() + QPoint(3, 3));
  }
};

/// The line's digit, or 0 when it shows "?".
int lineValue(int a, int b, int c, int pair) {
  constexpr std::array<const char*, 3> ops{"+", "-", "*"};
  const auto narrow = [](int n) { return static_cast<std::int16_t>(n); };
  const int value = EvalLine(narrow(a), narrow(b), narrow(c), ops[pair / 3], ops[pair % 3]);
  return value >= 1 && value <= 9 ? value : 0;
}

/// A board with the given corners, as a player would look for it: nine numbers and eight pairs of
/// operators, by trial.
struct Solution {
  std::array<int, 9> numbers;
  std::array<int, 8> pairs;  ///< rows 1, 3, 5, 7, then columns 1, 3, 5, 7
};

Solution solve(const std::array<int, 4>& corner) {
  std::mt19937 random(1);
  std::uniform_int_distribution<int> digit(1, 9);
  std::uniform_int_distribution<int> pair(0, 8);
  for (;;) {
    Solution s{};
    for (int& n : s.numbers) n = digit(random);
    for (int& p : s.pairs) p = pair(random);
    s.numbers[0] = corner[0];
    const auto& n = s.numbers;
    std::array<int, 3> rows{};
    std::array<int, 3> columns{};
    bool whole = true;
    for (int i = 0; i < 3 && whole; ++i) {
      rows[i] = lineValue(n[3 * i], n[3 * i + 1], n[3 * i + 2], s.pairs[i]);
      columns[i] = lineValue(n[i], n[3 + i], n[6 + i], s.pairs[4 + i]);
      whole = rows[i] != 0 && columns[i] != 0;
    }
    if (whole && rows[0] == corner[1] && columns[0] == corner[2] &&
        lineValue(columns[0], columns[1], columns[2], s.pairs[3]) == corner[3]) {
      return s;
    }
  }
}

TEST_F(DesktopTest, APersonPlaysTheFirstPuzzleToItsEnd) {
  // Turning cell 3 through the nine digits shows what each looks like; the corners are then read.
  std::vector<QImage> digits(1);
  const QImage empty = shapeIn(3, false);
  for (int digit = 1; digit <= 9; ++digit) {
    press(3);
    const QImage before = digit == 1 ? empty : digits.back();
    ASSERT_TRUE(eventually([&] { return shapeIn(3, false) != before; })) << digit;
    digits.push_back(shapeIn(3, false));
  }
  const auto read = [&](int cell) {
    const QImage shape = shapeIn(cell, true);
    int best = 0;
    int fewest = shape.width() * shape.height();
    for (int digit = 1; digit <= 9; ++digit) {
      int different = 0;
      for (int y = 0; y < shape.height(); ++y) {
        for (int x = 0; x < shape.width(); ++x) {
          different += shape.pixelIndex(x, y) != digits[digit].pixelIndex(x, y) ? 1 : 0;
        }
      }
      if (different < fewest) {
        fewest = different;
        best = digit;
      }
    }
    return best;
  };
  EXPECT_EQ(backgroundOf(1), qRgb(0, 128, 0));
  EXPECT_EQ(backgroundOf(49), qRgb(0, 0, 0));
  const Solution solution = solve({read(1), read(51), read(52), read(53)});

  // Cell 3 shows 9; a press with the right button on an empty cell gives 9, and so on downwards.
  for (int i = 1; i < 9; ++i) {
    const int cell = numberCells[i / 3 * 4 + i % 3 + 1];
    if (i == 1) {
      for (int digit = 9; digit > solution.numbers[i]; --digit) press(cell, 3);
    } else {
      for (int digit = 0; digit < solution.numbers[i]; ++digit) press(cell);
    }
  }
  for (int line = 0; line < 8; ++line) {
    for (int presses = 0; presses <= solution.pairs[line] / 3; ++presses) {
      press(operatorCells[2 * line + 1]);
    }
    // A fourth result column is not asked for, and its operators may stay as they are.
    for (int presses = 0; presses <= solution.pairs[line] % 3 && line < 7; ++presses) {
      press(operatorCells[2 * line + 2]);
    }
  }
  // Row 7 has the last word on the grand result only with a move of its own or any number's.
  for (int presses = 0; presses < 9; ++presses) press(33);

  const std::string box = eventually([] {
                            const std::string found = output(
                                "xdotool search --onlyvisible --name '^TESSORO$' 2>/dev/null");
                            return found.empty() ? std::optional<std::string>() : found;
                          }).value_or("");
  ASSERT_FALSE(box.empty()) << "the message of the end";
  for (const int corner : {1, 7, 43, 49}) EXPECT_EQ(backgroundOf(corner), qRgb(0, 128, 0));
  output("xdotool windowfocus --sync " + box.substr(0, box.size() - 1) + " key Return");
  EXPECT_TRUE(eventually([] {
    return output("xdotool search --onlyvisible --name '^TESSORO$' 2>/dev/null").empty();
  }));
}

TEST_F(DesktopTest, ExitEndsTheProgram) {
  const QPoint menu = client + QPoint(20, -10);
  output("xdotool mousemove " + std::to_string(menu.x()) + " " + std::to_string(menu.y()) +
         " click 1 sleep 0.3 key Up key Return");
  EXPECT_EQ(exitStatus(program), 0);
  program = 0;
}

TEST(NoDisplayTest, OneLineSaysSoAndThereIsNoCoreDump) {
  const std::string said =
      output("env -u DISPLAY -u WAYLAND_DISPLAY " TESSORO_PROGRAM " 2>&1; echo status $?");
  EXPECT_EQ(said,
            "Tessoro: cannot open a window, because there is no display to open it on.\n"
            "status 1\n");
}

}  // namespace
}  // namespace tessoro::test

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  std::array<int, 2> number{};
  if (pipe(number.data()) != 0) return 1;
  const std::string descriptor = std::to_string(number[1]);
  const pid_t server = tessoro::test::start(
      {"Xvfb", "-displayfd", descriptor.c_str(), "-screen", "0", "640x480x24", "-nolisten", "tcp"});
  close(number[1]);
  std::array<char, 16> display{':'};
  if (read(number[0], display.data() + 1, display.size() - 2) <= 0) {
    std::fputs("Xvfb does not start.\n", stderr);
    return 1;
  }
  *std::find(display.begin(), display.end(), '\n') = '\0';
  setenv("DISPLAY", display.data(), 1);
  unsetenv("QT_QPA_PLATFORM");
  unsetenv("WAYLAND_DISPLAY");
  int result = 1;
  {
    const QApplication client(argc, argv);
    result = RUN_ALL_TESTS();
  }
  tessoro::test::end(server);
  return result;
}
