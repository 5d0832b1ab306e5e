#include "qt/qt_printer.h"
#include "window_fixture.h"

namespace tessoro::test {

/// The files of a print server of the test's own: its settings, its two queues, the default's
/// driver, and a command that sends nothing while the server is busy.
static const std::map<QString, QString> serverFiles{
    {"cupsd.conf",
     "Listen HERE/cups\nBrowsing Off\nDirtyCleanInterval 0\n"
     "<Policy default>\n<Limit All>\nAllow from all\n</Limit>\n</Policy>\n"},
    {"files.conf",
     "ServerRoot HERE\nRequestRoot HERE/spool\nCacheDir HERE/cache\nStateDir HERE/state\n"
     "TempDir HERE\nErrorLog stderr\nAccessLog HERE/access\nPageLog HERE/page\n"},
    {"printers.conf",
     "<Printer A>\nDeviceURI file:///dev/null\nAccepting No\n</Printer>\n"
     "<DefaultPrinter B>\nDeviceURI file:///dev/null\nAccepting Yes\n</DefaultPrinter>\n"},
    {"ppd/B.ppd",
     "*PPD-Adobe: \"4.3\"\n*cupsFilter: \"application/pdf 0 -\"\n*OpenUI *PageSize: PickOne\n"
     "*DefaultPageSize: Legal\n*PageSize Legal: \"\"\n*CloseUI: *PageSize\n"
     "*PaperDimension Legal: \"612 1008\"\n*ImageableArea Legal: \"0 0 612 1008\"\n"},
    {"lp", "#!/bin/sh\nwhile test -e HERE/busy; do sleep 0.02; done\nexec /usr/bin/lp \"$@\"\n"}};

struct PrintTest : WindowTest {
  using OnWait = std::function<void(QProgressDialog&)>;
  const QDir folder = QFileInfo(qgetenv("CUPS_SERVER")).dir();
  QProcess server;

  /// What the program says on standard output, or that and why it failed.
  static QString output(const QString& program, const QStringList& arguments,
                        const QByteArray& input = {}) {
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool done = process.waitForFinished() && process.exitCode() == 0;
    return done ? process.readAllStandardOutput()
                : program + " failed: " + process.errorString() + process.readAllStandardError();
  }
  void startServer() {
    const QString here = folder.path();
    folder.mkdir("ppd");
    for (auto [name, text] : serverFiles) {
      QFile file(folder.filePath(name));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(text.replace("HERE", here).toUtf8());
      file.setPermissions(QFile::Permissions(0x7700));
    }
    qputenv("PATH", here.toUtf8() + ":" + qgetenv("PATH"));
    server.start("/usr/sbin/cupsd", {"-f", "-c", here + "/cupsd.conf", "-s", here + "/files.conf"});
    const auto queues = [] { return output("lpstat", {"-a"}); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return queues().contains("B accepting"); }, 30000))
        << queues().toStdString() << server.readAllStandardError().toStdString();
  }
  /// Has the page printed; where a file is asked for, names that, or cancels without a name. Does
  /// what is to be done while the printer is waited for. Gives what the last box said.
  std::string print(const QString& chosen = {}, const OnWait& onWait = [](auto&) {}) {
    onModal = [this, chosen, onWait, answer = onModal](QWidget* modal) {
      if (auto* wait = dynamic_cast<QProgressDialog*>(modal)) return onWait(*wait);
      auto* dialog = dynamic_cast<QFileDialog*>(modal);
      if (dialog == nullptr) return answer(modal);
      const QString file = QFileInfo(dialog->selectedFiles().value(0)).fileName();
      messages.push_back(dialog->windowTitle() + ' ' + file + ' ' + dialog->selectedNameFilter());
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(chosen);
      QMetaObject::invokeMethod(dialog, chosen.isEmpty() ? "reject" : "accept");
    };
    choose("Print");
    return messages.back().toStdString();
  }
  /// Compares the file with the page, line by line; blank lines do not survive the reading.
  void expectThePage(const QString& file, const char* paper) const {
    QString page;
    for (const auto& line : game.page.PrintLines) page += QString::fromStdString(line) + "\n";
    QString printed = output("pdftotext", {"-layout", "-fixed", "7.2", folder.filePath(file), "-"});
    const QRegularExpression blanks("\\s*\n\\s*");
    EXPECT_EQ(printed.replace(blanks, "\n").trimmed().toStdString(),
              page.replace(blanks, "\n").trimmed().toStdString());
    const QString facts = output("pdfinfo", {folder.filePath(file)}).simplified();
    EXPECT_TRUE(facts.contains("Title: Tessoro puzzles") && facts.contains("Pages: 1 "));
    EXPECT_TRUE(facts.contains(paper)) << facts.toStdString();
    EXPECT_TRUE(output("pdffonts", {folder.filePath(file)}).contains("LiberationMono "));
  }
};

TEST_F(PrintTest, ThePageIsPrintedOrSavedAsPdf) {
  const std::string asked = "TESSORO: Print Puzzle No(s): 4, 2, 3";
  const std::string noPrinter =
      "No printer was found: save the page as PDF Tessoro puzzles.pdf PDF (*.pdf)";
  for (int puzzle = 2; puzzle <= 4; ++puzzle) game.search.FindSolution();
  print(folder.filePath("saved"));
  expectThePage("saved.pdf", " pts (");
  EXPECT_EQ(print(), noPrinter) << "cancelling is no failure";
  EXPECT_EQ(print("/dev/full/page.pdf"),
            "TESSORO: The page could not be saved there; it can be printed again.");

  if (!QFile::exists("/usr/sbin/cupsd")) GTEST_SKIP() << "There is no print server to print on.";
  startServer();
  EXPECT_EQ(print(), asked);
  expectThePage("spool/d00001-001", "612 x 1008 pts");
  const QString busy = folder.filePath("busy");
  output("touch", {busy});
  const auto goOn = [&](auto& wait) { messages.push_back(wait.labelText()), QFile::remove(busy); };
  EXPECT_EQ(print({}, goOn), "Sending the page to the printer ...");
  output("/usr/sbin/cupsreject", {"B"});
  EXPECT_EQ(print(),
            "TESSORO: The page could not be sent to the printer; it can be printed again.");
  output("touch", {busy});
  EXPECT_EQ(
      print({}, [](auto& wait) { wait.template findChild<QPushButton*>()->click(); }),
      "TESSORO: It is not known whether the printer has got the page: look for it there before "
      "you print it again.");
  server.close();
  EXPECT_EQ(print(), noPrinter);
}

/// 10 characters and 6 lines to the inch, whole on the paper, smaller only where it is too small.
TEST_F(PrintTest, TheSheetStandsWholeOnOnePage) {
  qt::QtPrinter printer("Tessoro puzzles", {});
  printer.setFontName("Courier");
  printer.setFontSize(12);
  for (int line = 0; line < 59; ++line) printer.printLine(std::string(75, 'H'));
  for (const auto& [paper, scale] : std::map<QPageSize::PageSizeId, double>{
           {QPageSize::A4, 1}, {QPageSize::Letter, 1}, {QPageSize::A6, 0.4833}}) {
    std::vector<double> edges;  // the left, top and right of each line
    const QString words = output("pdftotext", {"-bbox", "-", "-"}, printer.sheet(QPageSize(paper)));
    const QRegularExpression edge("(?:xMin|yMin|xMax)=\"([0-9.]+)\"");
    for (const auto& match : edge.globalMatch(words)) edges.push_back(match.captured(1).toDouble());
    ASSERT_EQ(edges.size(), 59U * 3);
    const double last = edges[58 * 3 + 1];
    EXPECT_NEAR(edges[2] - edges[0], 540 * scale, 1);
    EXPECT_NEAR(last - edges[1], 58 * 12 * scale, 1);
    EXPECT_NEAR(edges[0] + edges[2], QPageSize(paper).size(QPageSize::Point).width(), 1);
    const QSizeF size = QPageSize(paper).size(QPageSize::Point) - QSizeF(17.9, 17.9);
    EXPECT_TRUE(edges[0] > 17.9 && edges[1] > 17.9 && edges[2] < size.width() &&
                last + 12 * scale < size.height());
  }
}

}  // namespace tessoro::test
