#include <malloc.h>

#include "window_fixture.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  tessoro::test::programPath = argv[0];
  mallopt(M_PERTURB, 0xa5);  // freed memory is overwritten, so that its use crashes
  // The tests are independent of the user's language, units and folders, and of the machine's
  // printers: there is no print server unless a test starts one.
  const QTemporaryDir folder;
  const QByteArray home = folder.filePath("home").toUtf8();
  QDir().mkpath(home);
  for (const char* variable : {"HOME", "TMPDIR", "XDG_RUNTIME_DIR"}) qputenv(variable, home);
  qputenv("CUPS_SERVER", home + "/cups");
  qputenv("LC_ALL", "C.UTF-8");
  // The screen is a pixel too low for the game to start with a zoom of 2.
  QFile screen(folder.filePath("screen"));
  if (!screen.open(QIODevice::WriteOnly)) qFatal("Cannot write the screen's configuration.");
  screen.write(R"({"screens": [{"width": 2000, "height": 1799}]})");
  screen.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
  qputenv("QT_LOGGING_RULES",
          "default.warning=false");  // the offscreen platform warns of what it lacks
  return RUN_ALL_TESTS();
}
