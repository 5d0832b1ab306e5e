#include <malloc.h>

#include "window_fixture.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  mallopt(M_PERTURB, 0xa5);  // what is freed is overwritten: whoever uses it still crashes
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Never the printers of the machine: where no test has started a server, there is none. Nor the
  // language, the units and the folders of whoever runs the tests.
  const QTemporaryDir folder;
  qputenv("LC_ALL", "C.UTF-8");
  for (const char* own : {"HOME", "TMPDIR"}) qputenv(own, folder.path().toUtf8());
  qputenv("CUPS_SERVER", folder.filePath("cups").toUtf8());
  qt::QtDesktop desktop(argv[0], tessoro::program());
  tessoro::test::theDesktop = &desktop;
  return RUN_ALL_TESTS();
}
