#include "qt/qt_printer.h"

#include "window_fixture.h"

namespace tessoro::test {

/// Printing without a printer, from a program started in the user's home folder.
struct PrintTest : WindowTest {
  QDir folder{QString(qgetenv("HOME"))};
  QString saveAs;  ///< the file name that the user enters; empty to cancel

  PrintTest() {
    folder.removeRecursively();
    folder.mkpath(".");
    QDir::setCurrent(folder.path());
    onBox = [this](Box box) {
      EXPECT_EQ(box.widget.windowModality(), Qt::WindowModal);
      EXPECT_EQ(box.widget.parentWidget(), &window);
      if (auto* dialog = dynamic_cast<QFileDialog*>(&box.widget)) return answer(*dialog);
      for (auto* it : box.widget.findChildren<QPushButton*>())
        if (it->isDefault() || it->text() == "Cancel") return it->click();
    };
  }
  void answer(QFileDialog& dialog) {
    dialog.findChild<QLineEdit*>()->setText(saveAs);
    // After one answer, the user cancels.
    QMetaObject::invokeMethod(&dialog, std::exchange(saveAs, "").isEmpty() ? "reject" : "accept");
  }
  /// Prints the page and returns the texts of the boxes after "Print Puzzle No(s)".
  QStringList print(const QString& name = {}) {
    saveAs = name;
    boxes.clear();
    choose("Print");
    return boxes.mid(1);
  }
  /// Writes a file, with HERE replaced by the folder.
  void write(const QString& name, QString text = {}) const {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.replace("HERE", folder.path()).toUtf8());
  }
  static QString output(const QString& program, const QStringList& with) {
    QProcess process;
    process.start(program, with);
    process.waitForFinished();
    return process.readAllStandardOutput();
  }
  /// Returns where the PDF file shows a word, in points.
  static QPointF pointOf(const QString& word) {
    static const QString place = R"re(xMin="(.*)" yMin="(.*)" xMax.*>)re";
    const QRegularExpressionMatch found =
        QRegularExpression(place + word).match(output("pdftotext", {"-bbox", "saved.pdf", "-"}));
    return {found.captured(1).toDouble(), found.captured(2).toDouble()};
  }
  void expectThePage(const QString& file, const QString& paper) const {
    QString page;
    for (const auto& line : game.page.PrintLines) page += QString::fromStdString(line) + ' ';
    EXPECT_EQ(output("pdftotext", {"-layout", file, "-"}).simplified(), page.simplified());
    EXPECT_TRUE(output("pdfinfo", {file}).contains(paper)) << "not on " << paper.toStdString();
    EXPECT_TRUE(output("pdffonts", {file}).contains("LiberationMono"));
  }
};

TEST_F(PrintTest, SavesThePageAndNoOtherFile) {
  print();  // cancelled, so the next page begins anew
  EXPECT_EQ(print("saved").value(0), "No printer was found; you can save the page as a PDF file.");
  expectThePage("saved.pdf", "(A4)");
  QStringList files;
  QDirIterator all(".", QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (all.hasNext()) files += all.next();
  EXPECT_EQ(files, QStringList("./saved.pdf"));
}

TEST_F(PrintTest, PageIsCentredAtTenCharactersAndSixLinesPerInch) {
  print("saved");
  const QPointF heading = pointOf("Puzzle");  // character 6 of 75 in line 5 of 59
  EXPECT_NEAR(heading.x(), 63.5, 0.5) << "of 595 points";
  EXPECT_NEAR(heading.y(), 115, 0.5) << "of 842 points";
}

TEST_F(PrintTest, FailureToSaveIsReported) {
  EXPECT_EQ(print("/proc/saved").last(),
            "The page could not be saved there. You can print it again.");
}

TEST_F(PrintTest, ExistingFileIsKeptByDefault) {
  write("saved.pdf", "old");
  EXPECT_EQ(print("saved").value(2), "saved.pdf already exists. Replace it?");
  EXPECT_EQ(output("cat", {"saved.pdf"}), "old");
}

/// Printing on the one printer of a print server that the test starts.
struct PrinterTest : PrintTest {
  QProcess server;

  void SetUp() override {
    if (!QFile::exists("/usr/sbin/cupsd")) GTEST_SKIP() << "There is no print server to print on.";
    write("cupsd.conf",
          "Listen HERE/cups\nBrowsing Off\nDirtyCleanInterval 0\n"
          "<Policy default>\n<Limit All>\nAllow from all\n</Limit>\n</Policy>\n");
    write("cups-files.conf",
          "ServerRoot HERE\nRequestRoot HERE/spool\nCacheDir HERE/cache\nStateDir HERE/state\n"
          "TempDir HERE\nErrorLog stderr\nAccessLog HERE/access\nPageLog HERE/page\n");
    write("printers.conf", "<DefaultPrinter B>\n</DefaultPrinter>\n");
    server.start("/usr/sbin/cupsd", {"-f", "-c", "cupsd.conf"});
    const auto isReady = [] { return output("lpstat", {"-a"}).contains("B accepting"); };
    ASSERT_TRUE(QTest::qWaitFor(isReady, 30000)) << server.readAllStandardError().toStdString();
  }
  void TearDown() override { server.close(); }
};

TEST_F(PrinterTest, DefaultPrinterGetsThePage) {
  EXPECT_EQ(print(), QStringList());
  expectThePage("spool/d00001-001", "(A4)");
}

TEST_F(PrinterTest, StoppedPrinterIsReported) {
  output("/usr/sbin/cupsdisable", {"B"});
  EXPECT_EQ(print(), QStringList("The printer is stopped; the page waits for it."));
}

}  // namespace tessoro::test
