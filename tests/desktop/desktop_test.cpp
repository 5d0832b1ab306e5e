#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QtGui>

#include "board/layout.h"

/// The program as it is installed, on an X server of its own: this process is another client, which
/// moves the mouse through the server and sees nothing but the screen.
namespace tessoro::test {

/// A program that ends with the test, even with one that is cut off.
struct Process : QProcess {
  Process(const QString& command, const QStringList& arguments) {
    setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    start(command, arguments);
  }
  ~Process() override { close(); }
};

QString xdotool(const QString& arguments) {
  Process process("xdotool", arguments.split(' '));
  process.waitForFinished(10000);
  return process.readAllStandardOutput().trimmed();
}

/// Waits until the condition holds, for at most ten seconds.
bool eventually(const std::function<bool()>& condition) {
  for (int i = 0; i < 400 && !condition(); ++i) QThread::msleep(25);
  return condition();
}

struct DesktopTest : testing::Test {
  Process program{"env", {"QT_DEBUG_PLUGINS=1", TESSORO_PROGRAM, "-platform", "nonsense"}};
  QString window;  ///< the number that the server has for it

  void SetUp() override {
    ASSERT_TRUE(eventually([&] {
      window = xdotool("search --onlyvisible --name ^Puzzle\\sNumber\\s\\s1$");
      return !window.isEmpty();
    })) << "the window is titled with the first puzzle's number";
    ASSERT_TRUE(eventually([&] { return colourOf(49) == qRgb(0, 128, 0); })) << "it is drawn";
  }

  QImage picture() const {
    return QGuiApplication::primaryScreen()->grabWindow(window.toULongLong()).toImage();
  }
  /// Where a place in the frame is in the picture of the window; above it is the menu bar.
  QRect rectOf(const platform::Place& place) const {
    return {4 + place.left / 15, picture().height() - 306 + place.top / 15, 30, 30};
  }
  QRgb colourOf(int cell) const { return picture().copy(rectOf(placeOf(cell))).pixel(3, 3); }
  void press(QPoint at) const {
    xdotool(QString("mousemove --window %1 %2 %3 click 1").arg(window).arg(at.x()).arg(at.y()));
  }
};

TEST_F(DesktopTest, PressesMoveAndExitEndsTheProgram) {
  press(rectOf(placeOf(3)).center());
  EXPECT_TRUE(eventually([&] { return colourOf(49) == qRgb(0, 0, 0); }));
  EXPECT_EQ(xdotool("search --class ^Tessoro$"), window) << "by which desktops know whose it is";
  press({20, 10});
  EXPECT_TRUE(eventually([&] {
    xdotool("key Up Return");  // chooses the last command as soon as the menu is open
    program.waitForFinished(1);
    return program.state() == QProcess::NotRunning;
  }));
  EXPECT_EQ(program.exitCode(), 0);
  EXPECT_TRUE(program.readAllStandardError().contains("platforms/libqxcb.so\" loaded library\n"));
}

TEST(NoWindowTest, StandardErrorTellsWhyAndThereIsNoCoreDump) {
  const QTemporaryDir folder;  // of a copy that has none of the toolkit's plug-ins
  const QString copy = folder.filePath("tessoro");
  ASSERT_TRUE(QFile::copy(TESSORO_PROGRAM, copy));
  QFile plugins(folder.filePath("qt.conf"));
  ASSERT_TRUE(plugins.open(QIODevice::WriteOnly) && plugins.write("[Paths]\nPlugins=none\n") > 0);
  plugins.close();
  for (const auto& [command, reason] : std::map<QStringList, QByteArray>{
           {{TESSORO_PROGRAM},
            "cannot open a window, because there is no display to open it on.\n"},
           {{"WAYLAND_DISPLAY=nowhere", copy},
            "cannot open a window in this Wayland session, because the package qt6-wayland is not "
            "installed.\n"},
           {{"XDG_RUNTIME_DIR=" + folder.path(), "QT_QPA_PLATFORM=wayland", TESSORO_PROGRAM},
            "cannot open a window, because there is no display to open it on.\n"},
           {{"FONTCONFIG_FILE=" + folder.path(), "QT_QPA_PLATFORM=offscreen", TESSORO_PROGRAM},
            "cannot show any text, because no font is installed; install the package "
            "fonts-liberation.\n"},
           {{"LC_ALL=C", "DISPLAY=:0", copy}, "Could not find the Qt platform plugin \"xcb\""}}) {
    Process program("env", QStringList{"-u", "DISPLAY"} + command);
    ASSERT_TRUE(program.waitForFinished(10000));
    const QByteArray said = program.readAllStandardError();
    EXPECT_TRUE(said.startsWith("Tessoro: " + reason)) << said.toStdString();
    EXPECT_EQ(said.count('\n') == 1, reason.endsWith('\n')) << said.toStdString();
    EXPECT_EQ(program.exitCode(), 1);
  }
}

}  // namespace tessoro::test

/// The toolkit of Debian 13 loses 344 bytes of a client's ties to the desktop when the client ends.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:QGenericUnixServices";
}

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  tessoro::test::Process server(
      "Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
  if (!server.waitForReadyRead(10000)) qFatal("Xvfb does not start.");
  qputenv("DISPLAY", ":" + server.readLine().trimmed());
  for (auto* it : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"}) qunsetenv(it);
  qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
  const QGuiApplication client(argc, argv);
  return RUN_ALL_TESTS();
}
