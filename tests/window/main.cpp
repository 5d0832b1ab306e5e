#include <gtest/gtest.h>

#include "print_server.h"
#include "window_fixture.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Never the printers of the machine: where no test has started a server, there is none.
  qputenv("CUPS_SERVER", tessoro::test::PrintServer::address);
  qt::QtDesktop desktop(argv[0], {.name = "Tessoro",
                                  .messageTitle = "TESSORO",
                                  .documentName = "Tessoro puzzles",
                                  .packageName = "tessoro"});
  tessoro::test::theDesktop = &desktop;
  return RUN_ALL_TESTS();
}
