#include "qt/qt_printer.h"
#include "window_fixture.h"

namespace tessoro::test {

/// The settings of a print server of the test's own, and the places of its files.
static const std::map<QString, QString> serverFiles{
    {"cupsd.conf",
     "Listen SERVER\nDefaultAuthType None\nWebInterface No\nBrowsing Off\n"
     "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow from all\n</Limit>\n</Policy>\n"},
    {"files.conf",
     "ServerRoot HERE\nRequestRoot HERE/spool\nCacheDir HERE/cache\nStateDir HERE/state\n"
     "TempDir HERE/tmp\nErrorLog HERE/error\nAccessLog HERE/access\nPageLog HERE/page\n"}};

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
  /// Starts a print server with one queue, which makes PDF files in a folder of the user's home.
  bool startServer() {
    const auto path = [&](const QString& name) { return folder.filePath(name); };
    QDir(folder.path()).mkdir("tmp");
    // The filters of a queue run as another user.
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7755));
    QFile::setPermissions(path("tmp"), QFile::Permissions(0x7777));
    for (auto [name, text] : serverFiles) {
      QFile written(path(name));
      text.replace("HERE", folder.path()).replace("SERVER", qgetenv("CUPS_SERVER"));
      EXPECT_TRUE(written.open(QIODevice::WriteOnly) && written.write(text.toUtf8()) > 0);
    }
    server.start("/usr/sbin/cupsd", {"-f", "-c", path("cupsd.conf"), "-s", path("files.conf")});
    // This renderer keeps the text readable on its way through the printer's language.
    const QStringList queue{"-p",
                            "Test",
                            "-E",
                            "-v",
                            "cups-pdf:/",
                            "-P",
                            "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd",
                            "-o",
                            "pdftops-renderer-default=pdftocairo"};
    return QTest::qWaitFor([&] { return output("/usr/sbin/lpadmin", queue) == ""; });
  }
  /// Waits for the queue to be empty, and moves the file that is new into the test's folder.
  void collectPrinted(const QDir& prints, const QStringList& before) {
    EXPECT_TRUE(QTest::qWaitFor([] { return output("lpstat", {"-o"}) == ""; }));
    for (const QString& name : prints.entryList(QDir::Files)) {
      if (!before.contains(name)) QFile::rename(prints.filePath(name), file);
    }
    QDir::home().rmdir("PDF");  // which works only if it is empty
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
    EXPECT_TRUE(facts.contains("Tessoro puzzles")) << facts.toStdString();
    EXPECT_TRUE(facts.contains("Pages:           1"));
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
            "TESSORO: The page could not be saved there; it can be printed again.");
}

TEST_F(PrintTest, ARealPrintServerGetsThePage) {
  if (!startServer()) GTEST_SKIP() << "No print server starts; it takes CUPS and root's rights.";
  const QDir prints(QDir::home().filePath("PDF"));
  const QStringList before = prints.entryList(QDir::Files);
  print();
  collectPrinted(prints, before);
  expectThePage();
  EXPECT_EQ(messages.size(), 1U);
  output("/usr/sbin/cupsreject", {"Test"});
  print();
  EXPECT_EQ(messages.back(),
            "TESSORO: The page could not be sent to the printer; it can be printed again.");
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
