#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>

#include "print_server.h"
#include "qt/qt_printer.h"
#include "window_fixture.h"

namespace tessoro::test {
namespace {

class PrintTest : public WindowTest {
 protected:
  QTemporaryDir folder;

  void SetUp() override {
    WindowTest::SetUp();
    for (int puzzle = 2; puzzle <= 4; ++puzzle) game.search.FindSolution();
  }

  /// Asks for the page to be printed, and names `file` when a file is asked for; no name cancels.
  void print(const QString& file = {}) {
    answerBoxes(QMessageBox::Yes);
    QTimer naming;
    QObject::connect(&naming, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      EXPECT_TRUE(dialog->windowTitle().startsWith("No printer was found"));
      ++fileDialogs;
      naming.stop();
      if (file.isEmpty()) return dialog->reject();
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
      QMetaObject::invokeMethod(dialog, "accept");
    });
    naming.start(1);
    game.form.PrintX.choose();
  }
  int fileDialogs = 0;

  /// Compares a PDF with the page, line by line; blank lines do not survive the reading.
  void expectThePage(const QString& pdf) {
    std::vector<std::string> expected;
    for (int k = 1; k <= PrintPage::lineCount; ++k) {
      const std::string line(trimmed(game.page.PrintLines[k]));
      if (!line.empty()) expected.push_back(line);
    }
    std::vector<std::string> printed;
    for (const QByteArray& line :
         PrintServer::output("pdftotext", {"-layout", "-fixed", "7.2", pdf, "-"}).split('\n')) {
      const std::string text(trimmed(line.toStdString()));
      if (!text.empty() && text != "\f") printed.push_back(text);
    }
    EXPECT_EQ(printed, expected);
    const QByteArray facts = PrintServer::output("pdfinfo", {pdf});
    EXPECT_TRUE(facts.contains("Tessoro puzzles") && facts.contains("Pages:           1"))
        << facts.data();
  }
};

TEST_F(PrintTest, WithoutAPrinterThePageIsSavedAsPdf) {
  const QString file = folder.filePath("page.pdf");
  print(file);
  EXPECT_EQ(messages, std::vector<std::string>{"TESSORO: Print Puzzle No(s): 4, 2, 3"});
  expectThePage(file);

  print();
  EXPECT_EQ(fileDialogs, 2);
  EXPECT_EQ(messages.size(), 2U) << "cancelling is no failure";

  const auto page = game.page.PrintLines;
  print("/dev/full/page.pdf");
  EXPECT_EQ(messages.back(),
            "TESSORO: The page could not be saved there. It can be printed again.");
  EXPECT_EQ(game.page.PrintLines, page);
}

/// The measures of the sheet: 10 characters to the inch and 6 lines to the inch, whole on the
/// paper.
TEST_F(PrintTest, TheSheetStandsWholeOnOnePage) {
  qt::QtPrinter printer("Tessoro puzzles", {});
  printer.setFontName("Courier");
  printer.setFontSize(12);
  for (int line = 0; line < 59; ++line)
    printer.printLine(std::string(75, line % 58 == 0 ? 'H' : '-'));
  struct Paper {
    QPageSize::PageSizeId id;
    double scale;
  };
  for (const auto& [id, scale] : {Paper{QPageSize::A4, 1},
                                  {QPageSize::Letter, 1},
                                  {QPageSize::A5, 0.7111},
                                  {QPageSize::A6, 0.4833}}) {
    QFile file(folder.filePath("sheet.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(printer.sheet(QPageSize(id)));
    file.close();
    const QString boxes = PrintServer::output("pdftotext", {"-bbox", file.fileName(), "-"});
    QRegularExpression word("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\"");
    std::vector<QRectF> words;
    for (auto match = word.globalMatch(boxes); match.hasNext();) {
      const auto found = match.next();
      const auto number = [&](int n) { return found.captured(n).toDouble(); };
      words.emplace_back(number(1), number(2), number(3) - number(1), 0);
    }
    ASSERT_EQ(words.size(), 59U);
    const QSizeF page = QPageSize(id).size(QPageSize::Point);
    EXPECT_NEAR(words.front().width(), 540 * scale, 1);
    EXPECT_NEAR(words.back().y() - words.front().y(), 58 * 12 * scale, 1);
    EXPECT_GE(words.front().left(), 17.9);
    EXPECT_LE(words.front().right(), page.width() - 17.9);
    EXPECT_GE(words.front().top(), 17.9);
    EXPECT_LE(words.back().top() + 12 * scale, page.height() - 17.9);
  }
}

TEST_F(PrintTest, ARealPrintServerGetsThePage) {
  PrintServer server;
  if (const std::string reason = server.start(); !reason.empty()) GTEST_SKIP() << reason;
  print();
  EXPECT_EQ(fileDialogs, 0);
  EXPECT_EQ(messages.size(), 1U);
  expectThePage(server.printedFile());

  server.rejectJobs();
  const auto page = game.page.PrintLines;
  print();
  EXPECT_EQ(messages.back(),
            "TESSORO: The page could not be sent to the printer. It can be printed again.");
  EXPECT_EQ(game.page.PrintLines, page);
  server.stop();
  print();
  EXPECT_EQ(fileDialogs, 1) << "the server has gone, and with it the printer";
}

}  // namespace
}  // namespace tessoro::test
