#include "qt/qt_printer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QProgressDialog>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QTimer>
#include <algorithm>
#include <optional>

#include "qt/convert.h"
#include "qt/modal.h"

namespace qt {
namespace {

constexpr double pointsPerInch = 72;
constexpr double linePitch = pointsPerInch / 6;
/// Width of the edge of the paper that a printer may be unable to print on, in points.
constexpr double minimumMargin = pointsPerInch / 4;

/// Width of a fixed-pitch character in ems: at 12 points, an inch has 10 characters.
constexpr double characterWidth = 0.6;

/// Pixel size at which lines are drawn. They are then scaled to the font's size, which need not be
/// a whole number of pixels.
constexpr int drawnSize = 100;

// Milliseconds.
constexpr int answerTimeout = 10000;  ///< of the print system
constexpr int delayBeforeBox = 200;   ///< shorter waits show no box

constexpr std::string_view notSent =
    "The page could not be sent to the printer. You can print it again.";

QPageSize defaultPaper() {
  const bool metric = QLocale::system().measurementSystem() == QLocale::MetricSystem;
  return {metric ? QPageSize::A4 : QPageSize::Letter};
}

QPrinterInfo choosePrinter() {
  const QPrinterInfo preferred = QPrinterInfo::defaultPrinter();
  if (!preferred.isNull()) return preferred;
  const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
  return all.isEmpty() ? preferred : all.first();
}

/// Runs a command of the print system, in English, and returns its standard output. Returns an
/// empty text if the command fails, and `nullopt` if the user cancels it or it needs too long. A
/// modal box over the window keeps the user from printing again; the window is still repainted.
std::optional<QString> runCommand(const QString& command, const QStringList& arguments,
                                  QWidget* window) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("LC_ALL", "C");
  process.setProcessEnvironment(environment);
  process.start(command, arguments);
  if (!process.waitForFinished(delayBeforeBox) && process.state() != QProcess::NotRunning) {
    QProgressDialog box("Sending the page to the printer ...", "Cancel", 0, 0, window);
    box.setWindowTitle(QCoreApplication::applicationName());
    box.setWindowModality(Qt::WindowModal);
    QObject::connect(&process, &QProcess::finished, &box, &QDialog::accept);
    QTimer::singleShot(answerTimeout - delayBeforeBox, &box, &QDialog::reject);
    runModal(box);
  }
  if (process.state() == QProcess::NotRunning) return process.readAllStandardOutput();
  process.kill();
  process.waitForFinished();
  return std::nullopt;
}

}  // namespace

void QtPrinter::printLine(std::string_view text) {
  lines_.append(toQString(text));
}

QByteArray QtPrinter::sheet(const QPageSize& paper) const {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(documentName_);
  writer.setPageSize(paper);
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.scale(writer.logicalDpiX() / pointsPerInch, writer.logicalDpiY() / pointsPerInch);

  qsizetype columns = 1;
  for (const QString& line : lines_) columns = std::max(columns, line.size());
  const double width = static_cast<double>(columns) * font_.points * characterWidth;
  const double height = static_cast<double>(lines_.size()) * linePitch;
  const QSizeF page = paper.size(QPageSize::Point);
  const double scale = std::min({1.0, (page.width() - 2 * minimumMargin) / width,
                                 (page.height() - 2 * minimumMargin) / height});
  painter.translate((page.width() - width * scale) / 2, (page.height() - height * scale) / 2);
  painter.scale(scale, scale);

  QFont font(toQString(font_.name));
  font.setStyleHint(QFont::TypeWriter);
  font.setPixelSize(drawnSize);
  painter.setFont(font);
  // Stretch a substitute of another width, so that the columns keep their places.
  const QFontMetricsF metrics(font, &writer);
  const double lineScale = font_.points / drawnSize;
  const double columnScale = width / metrics.horizontalAdvance(QString(columns, 'M'));
  painter.scale(columnScale, lineScale);
  double baseline = metrics.ascent();
  for (const QString& line : lines_) {
    painter.drawText(QPointF(0, baseline), line);
    baseline += linePitch / lineScale;
  }
  painter.end();
  return buffer.data();
}

void QtPrinter::endDocument() {
  const std::string_view message = printOrSave();
  lines_.clear();
  if (!message.empty()) messageBox_(message, Buttons::ok);
}

std::string_view QtPrinter::printOrSave() const {
  // Qt's look-up blocks the window until the print system answers, which it may never do. So a
  // command asks first, because the user can cancel it.
  const std::optional<QString> printers = runCommand("lpstat", {"-d", "-p"}, window_);
  if (!printers) return notSent;
  const QPrinterInfo printer = choosePrinter();
  const QPageSize paper = printer.defaultPageSize();
  const QByteArray pdf = sheet(paper.isValid() ? paper : defaultPaper());
  if (printer.isNull()) return saveAsPdf(pdf);
  const std::string_view failure = sendToPrinter(printer.printerName(), pdf);
  const bool isStopped =
      printers->contains("printer " + printer.printerName() + " disabled since ");
  return failure.empty() && isStopped ? "The printer is stopped; the page waits for it." : failure;
}

std::string_view QtPrinter::sendToPrinter(const QString& printer, const QByteArray& pdf) const {
  QTemporaryFile file(QDir::tempPath() + "/XXXXXX.pdf");
  if (!file.open() || file.write(pdf) != pdf.size() || !file.flush()) return notSent;
  // Qt does not report whether the print system has accepted a job. Its own command prints the name
  // of an accepted job.
  const std::optional<QString> job =
      runCommand("lp", {"-d", printer, "-t", documentName_, file.fileName()}, window_);
  if (!job) {
    return "The printer may already have the page. Look there before you print it again.";
  }
  return job->isEmpty() ? notSent : "";
}

std::string_view QtPrinter::saveAsPdf(const QByteArray& pdf) const {
  messageBox_("No printer was found; you can save the page as a PDF file.", Buttons::ok);
  QFileDialog dialog(window_, "Save the page as PDF", {}, "PDF (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.setWindowModality(Qt::WindowModal);
  // The program asks itself, because some dialogs of desktops ask before they append the suffix.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  // If the home folder is unknown, Qt returns the root folder.
  QFileInfo target(QDir::home().isRoot() ? QDir::temp() : QDir::home(), documentName_ + ".pdf");
  do {
    dialog.selectFile(target.filePath());
    if (runModal(dialog) != QDialog::Accepted) return {};
    target.setFile(dialog.selectedFiles().first());
  } while (target.exists() &&
           messageBox_((target.fileName() + " already exists. Replace it?").toStdString(),
                       Buttons::yesNoDefaultNo) != Answer::yes);
  QSaveFile file(target.filePath());
  // Flushed first, because commit() does not report a full disk.
  if (file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.flush() &&
      file.commit()) {
    return {};
  }
  return "The page could not be saved there. You can print it again.";
}

}  // namespace qt
