#include "qt/qt_printer.h"
#include "window_fixture.h"

namespace tessoro::test {

/// A print server's settings, the places of its files, and a printer that takes PDF on Legal paper.
static const std::map<QString, QString> serverFiles{
    {"cupsd.conf",
     "Listen SERVER\n<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n"},
    {"files.conf",
     "FileDevice Yes\nServerRoot HERE\nRequestRoot HERE/spool\nCacheDir HERE/cache\n"
     "StateDir HERE/state\nTempDir HERE\nErrorLog stderr\nAccessLog stderr\nPageLog stderr\n"},
    {"ppd",
     "*PPD-Adobe: \"4.3\"\n*cupsFilter2: \"application/pdf application/pdf 0 gziptoany\"\n"
     "*OpenUI *PageSize: PickOne\n*DefaultPageSize: Legal\n*PageSize Legal: \"\"\n"
     "*ImageableArea Legal: \"0 0 612 1008\"\n*PaperDimension Legal: \"612 1008\"\n"}};

struct PrintTest : WindowTest {
  const QTemporaryDir folder;
  const QString file = folder.filePath("page.pdf");
  QProcess server;

  static QString output(const QString& program, const QStringList& arguments,
                        const QByteArray& input = {}) {
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return process.exitCode() == 0 ? process.readAllStandardOutput() : "failed";
  }
  /// Starts a print server whose one printer prints into the file.
  bool startServer() {
    for (auto [name, text] : serverFiles) {
      QFile written(folder.filePath(name));
      text.replace("HERE", folder.path()).replace("SERVER", qgetenv("CUPS_SERVER"));
      EXPECT_TRUE(written.open(QIODevice::WriteOnly) && written.write(text.toUtf8()) > 0);
    }
    const auto path = [&](const QString& name) { return folder.filePath(name); };
    server.start("/usr/sbin/cupsd", {"-f", "-c", path("cupsd.conf"), "-s", path("files.conf")});
    const QStringList printer{"-p", "Test", "-E", "-v", "file:" + file, "-P", path("ppd")};
    return QTest::qWaitFor([&] { return output("/usr/sbin/lpadmin", printer) == ""; });
  }
  /// Has the page printed; where a file is asked for, names that, or cancels without a name.
  void print(const QString& chosen = {}) {
    onModal = [this, chosen, answer = onModal](QWidget* modal) {
      auto* dialog = dynamic_cast<QFileDialog*>(modal);
      if (dialog == nullptr) return answer(modal);
      messages.push_back(dialog->windowTitle());
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(chosen);
      QMetaObject::invokeMethod(dialog, chosen.isEmpty() ? "reject" : "accept");
    };
    choose("Print");
  }
  /// Compares the file with the page, line by line; blank lines do not survive the reading.
  void expectThePage() const {
    QString page;
    for (const auto& line : game.page.PrintLines) page += QString::fromStdString(line) + "\n";
    QString printed = output("pdftotext", {"-layout", "-fixed", "7.2", file, "-"});
    const QRegularExpression blanks("\\s*\n\\s*");
    EXPECT_EQ(printed.replace(blanks, "\n").trimmed(), page.replace(blanks, "\n").trimmed());
    const QString facts = output("pdfinfo", {file});
    EXPECT_TRUE(facts.contains("Tessoro puzzles") && facts.contains("Pages:           1"));
  }
};

TEST_F(PrintTest, WithoutAPrinterThePageIsSavedAsPdf) {
  for (int puzzle = 2; puzzle <= 4; ++puzzle) game.search.FindSolution();
  print(file);
  expectThePage();
  print();
  EXPECT_EQ(messages.size(), 4U) << "cancelling is no failure";
  print("/dev/full/page.pdf");
  EXPECT_EQ(messages.back(),
            "TESSORO: The page could not be saved there. It can be printed again.");
}

TEST_F(PrintTest, ARealPrintServerGetsThePage) {
  if (!startServer()) GTEST_SKIP() << "No print server starts; it takes CUPS and root's rights.";
  print();
  EXPECT_TRUE(QTest::qWaitFor([] { return output("lpstat", {"-o"}) == ""; }));
  expectThePage();
  EXPECT_TRUE(output("pdfinfo", {file}).contains("612 x 1008"));
  EXPECT_EQ(messages.size(), 1U);
  output("/usr/sbin/cupsreject", {"Test"});
  print();
  EXPECT_EQ(messages.back(),
            "TESSORO: The page could not be sent to the printer. It can be printed again.");
  server.close();
  print();
  EXPECT_EQ(messages.back(), "No printer was found: save the page as PDF");
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
    const QSizeF size = QPageSize(paper).size(QPageSize::Point) - QSizeF(17.9, 17.9);
    EXPECT_TRUE(edges[0] > 17.9 && edges[1] > 17.9 && edges[2] < size.width() &&
                last + 12 * scale < size.height());
  }
}

}  // namespace tessoro::test
