#include "qt/qt_printer.h"

#include <csignal>

#include "window_fixture.h"

namespace tessoro::test {

/// The files of a print server of the test's own, and a command that waits while that is busy.
static const std::map<QString, QString> serverFiles{
    {"cupsd.conf",
     "Listen HERE/cups\nBrowsing Off\nDirtyCleanInterval 0\n"
     "<Policy default>\n<Limit All>\nAllow from all\n</Limit>\n</Policy>\n"},
    {"cups-files.conf",
     "ServerRoot HERE\nRequestRoot HERE/spool\nCacheDir HERE/cache\nStateDir HERE/state\n"
     "TempDir HERE\nErrorLog stderr\nAccessLog HERE/access\nPageLog HERE/page\n"},
    {"printers.conf",
     "<Printer A>\nAccepting No\n</Printer>\n<DefaultPrinter B>\n</DefaultPrinter>\n"},
    {"ppd/B.ppd",
     "*PPD-Adobe: \"4.3\"\n*cupsFilter: \"application/pdf 0 -\"\n*OpenUI *PageSize: PickOne\n"
     "*DefaultPageSize: Legal\n*PageSize Legal: \"\"\n*CloseUI: *PageSize\n"
     "*PaperDimension Legal: \"612 1008\"\n*ImageableArea Legal: \"0 0 612 1008\"\n"},
    {"lp", "#!/bin/sh\nwhile test -e HERE/busy; do sleep 0.02; done\nexec /usr/bin/lp \"$@\"\n"}};

struct PrintTest : WindowTest {
  using OnWait = std::function<void(QProgressDialog&)>;
  const QDir folder = QFileInfo(qgetenv("CUPS_SERVER")).dir();
  const std::function<void(QWidget*)> answer = onModal;

  /// What the program says on standard output.
  static QString output(const QString& program, const QStringList& with, QByteArray input = {}) {
    QProcess process;
    process.start(program, with);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return process.readAllStandardOutput();
  }
  /// Has the page printed, or saved as the last of the files, else cancelled. Gives what is said.
  std::string print(QStringList files = {}, const OnWait& onWait = [](auto&) {}) {
    messages.clear();
    onModal = [&](QWidget* modal) {
      EXPECT_TRUE(modal->parent() == &window && modal->windowModality() == Qt::WindowModal);
      auto* box = dynamic_cast<QMessageBox*>(modal);
      if (box) return box->text().endsWith('?') && !files.isEmpty() ? box->reject() : answer(box);
      auto* wait = dynamic_cast<QProgressDialog*>(modal);
      if (wait) return onWait(*wait);
      auto& dialog = dynamic_cast<QFileDialog&>(*modal);
      messages.push_back(dialog.windowTitle() + ' ' + dialog.selectedFiles().value(0));
      EXPECT_EQ(dialog.selectedNameFilter(), "PDF (*.pdf)");
      if (files.isEmpty()) return dialog.reject();
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(files.takeFirst());
      QMetaObject::invokeMethod(&dialog, "accept");
    };
    choose("Print");
    const QStringList said(messages.begin(), messages.end());
    return said.mid(1).join('\n').toStdString();
  }
  /// Compares the file with the page, but for its blanks.
  void expectThePage(const QString& file, const char* paper) const {
    QString page;
    for (const auto& line : game.page.PrintLines) page += QString::fromStdString(line) + ' ';
    const QString printed = output("pdftotext", {"-layout", file, "-"});
    EXPECT_EQ(printed.simplified().toStdString(), page.simplified().toStdString());
    const QString facts = (output("pdfinfo", {file}) + output("pdffonts", {file})).simplified();
    const QString expected = "Title: Tessoro puzzles .*Pages: 1 .*%1.* LiberationMono ";
    EXPECT_TRUE(facts.contains(QRegularExpression(expected.arg(paper)))) << facts.toStdString();
  }
};

TEST_F(PrintTest, ThePageIsPrintedOrSavedAsPdf) {
  const std::string noPrinter =
      "TESSORO: No printer was found; the page can be saved as PDF.\nSave the page as PDF " +
      folder.filePath("Tessoro puzzles.pdf").toStdString();
  const std::string unknown =
      "TESSORO: It is not known whether the printer has got the page: look for it there before you "
      "print it again.";
  const std::string notSent =
      "TESSORO: The page could not be sent to the printer; it can be printed again.";
  QDir::setCurrent(folder.path());
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "");
  EXPECT_EQ(print(), noPrinter) << "there is no print system, and cancelling is no failure";
  qputenv("PATH", folder.path().toUtf8() + ":" + path);
  output("touch", {"saved.pdf", "busy"});
  print({"saved", "other"});
  EXPECT_EQ(QFileInfo("saved.pdf").size(), 0);
  EXPECT_EQ(print({"saved"}), noPrinter + "\nTESSORO: saved.pdf is already there: replace it?");
  expectThePage("saved.pdf", "pts .A4");
  EXPECT_FALSE(folder.exists(".config")) << "no settings are kept";

  if (!QFile::exists("/usr/sbin/cupsd")) GTEST_SKIP() << "There is no print server to print on.";
  folder.mkdir("ppd");
  for (auto [name, text] : serverFiles) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.replace("HERE", folder.path()).toUtf8());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  QProcess server;
  server.start("/usr/sbin/cupsd", {"-f", "-c", "cupsd.conf"});
  const auto isReady = [] { return output("lpstat", {"-a"}).contains("B accepting"); };
  ASSERT_TRUE(QTest::qWaitFor(isReady, 30000)) << server.readAllStandardError().toStdString();
  EXPECT_EQ(print({}, [](auto& wait) { wait.template findChild<QPushButton*>()->click(); }),
            unknown);
  EXPECT_EQ(print({}, [](auto&) { QFile::remove("busy"); }), "");
  expectThePage("spool/d00001-001", "612 x 1008 pts");
  EXPECT_TRUE(output("cat", {"spool/c00001"}).contains("Tessoro puzzles"));
  output("/usr/sbin/lpadmin", {"-x", "B"});
  EXPECT_EQ(print(), notSent) << "A, which is no default, rejects it";
  output("/usr/sbin/cupsaccept", {"A"});
  std::signal(SIGXFSZ, SIG_IGN);
  const QString self = QString::number(getpid());
  output("prlimit", {"--fsize=1000:", "--pid", self});
  EXPECT_EQ(print(), notSent) << "The disk is full";
  kill(static_cast<pid_t>(server.processId()), SIGSTOP);
  QString box;
  EXPECT_EQ(print({}, [&](auto& it) { box = it.windowTitle() + it.labelText(); }), notSent);
  EXPECT_EQ(box, "TessoroSending the page to the printer ...");
  server.close();
  qunsetenv("HOME");
  EXPECT_EQ(print({folder.filePath("page")}),
            noPrinter + "\nTESSORO: The page could not be saved there; it can be printed again.");
  output("prlimit", {"--fsize=unlimited", "--pid", self});
}

/// 10 characters and 6 lines to the inch in any typeface, smaller only where the paper is.
TEST_F(PrintTest, TheSheetStandsWholeOnOnePage) {
  qt::QtPrinter printer("Tessoro puzzles", {});
  printer.setFontName("Arial");
  printer.setFontSize(12);
  for (int line = 0; line < 59; ++line) printer.printLine(std::string(75, 'M'));
  for (const auto& [paper, scale] : std::map<QPageSize::PageSizeId, double>{
           {QPageSize::A4, 1}, {QPageSize::A6, 0.4833}, {QPageSize::Imperial8x10, 0.9661}}) {
    const QString words = output("pdftotext", {"-bbox", "-", "-"}, printer.sheet(QPageSize(paper)));
    const QStringList edges = words.split('"').mid(words.section("<word", 0, 0).count('"'));
    ASSERT_EQ(edges.size(), 59 * 8 + 1) << "four of each line, and what is between them";
    const QSizeF size = QPageSize(paper).size(QPageSize::Point);
    const QSizeF margin = (size - QSizeF(540, 708) * scale) / 2;
    EXPECT_NEAR(edges[1].toDouble(), margin.width(), 1);
    EXPECT_NEAR(edges[5].toDouble(), size.width() - margin.width(), 1);
    EXPECT_NEAR(edges[3].toDouble(), margin.height(), 1);
    EXPECT_NEAR(edges[58 * 8 + 3].toDouble(), size.height() - margin.height() - 12 * scale, 1);
  }
  printer.setFontName("of no machine");
  EXPECT_TRUE(output("pdffonts", {"-"}, printer.sheet(QPageSize(QPageSize::A4))).contains("Mono"));
}

}  // namespace tessoro::test
