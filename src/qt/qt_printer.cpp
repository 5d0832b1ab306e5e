#include "qt/qt_printer.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QTimer>
#include <algorithm>

#include "qt/convert.h"

namespace qt {
namespace {

constexpr double pointsPerInch = 72;
constexpr double linePitch = pointsPerInch / 6;
/// What printers may not be able to reach at the edges of the paper, in points.
constexpr double smallestMargin = pointsPerInch / 4;

/// The width of a character of the fixed-pitch typefaces that `font` may be, in ems: 12 points make
/// 10 characters to the inch.
constexpr double characterWidth = 0.6;

/// The size at which lines are drawn before they are scaled to that of the font: typefaces take
/// whole numbers only.
constexpr int drawnSize = 100;

/// How long the print system may take to accept a job, and how long of that nobody notices, in
/// milliseconds.
constexpr int patience = 10000;
constexpr int unnoticed = 200;

QPageSize usualPaper() {
  const bool metric = QLocale::system().measurementSystem() == QLocale::MetricSystem;
  return {metric ? QPageSize::A4 : QPageSize::Letter};
}

QPrinterInfo printerToUse() {
  const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
  if (!usual.isNull()) return usual;
  const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
  return all.isEmpty() ? usual : all.first();
}

/// Waits until the job has ended, the user cancels or the time is up. A modal box over the window
/// keeps another page from being printed meanwhile, but the window goes on to be drawn.
void waitFor(QProcess& job, QWidget* window) {
  if (job.waitForFinished(unnoticed) || job.state() == QProcess::NotRunning) return;
  QProgressDialog box("Sending the page to the printer ...", "Cancel", 0, 0, window);
  box.setWindowModality(Qt::WindowModal);
  QObject::connect(&job, &QProcess::finished, &box, &QDialog::accept);
  QTimer::singleShot(patience - unnoticed, &box, &QDialog::reject);
  box.exec();
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
  writer.setPageOrientation(QPageLayout::Portrait);
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.scale(writer.logicalDpiX() / pointsPerInch, writer.logicalDpiY() / pointsPerInch);

  qsizetype columns = 1;
  for (const QString& line : lines_) columns = std::max(columns, line.size());
  const double width = static_cast<double>(columns) * font_.points * characterWidth;
  const double height = static_cast<double>(lines_.size()) * linePitch;
  const QSizeF page = paper.size(QPageSize::Point);
  const double scale = std::min({1.0, (page.width() - 2 * smallestMargin) / width,
                                 (page.height() - 2 * smallestMargin) / height});
  painter.translate((page.width() - width * scale) / 2, (page.height() - height * scale) / 2);
  painter.scale(scale, scale);

  QFont font(toQString(font_.name));
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPixelSize(drawnSize);
  painter.setFont(font);
  // A stand-in of another width is stretched, so that columns stand where they should.
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
  const QPrinterInfo printer = printerToUse();
  const QPageSize paper = printer.defaultPageSize();
  const QByteArray pdf = sheet(paper.isValid() ? paper : usualPaper());
  lines_.clear();
  if (printer.isNull()) {
    saveAsPdf(pdf);
  } else {
    sendToPrinter(printer.printerName(), pdf);
  }
}

void QtPrinter::sendToPrinter(const QString& printer, const QByteArray& pdf) {
  QTemporaryFile file(QDir::tempPath() + "/XXXXXX.pdf");
  // The print system's own command is used because the toolkit's printing does not tell whether
  // the job has been accepted.
  QProcess job;
  if (file.open() && file.write(pdf) == pdf.size() && file.flush()) {
    job.start("lp", {"-d", printer, "-t", documentName_, file.fileName()});
    waitFor(job, window_);
    if (job.state() != QProcess::NotRunning) {
      job.kill();
      job.waitForFinished();
      report_(
          "It is not known whether the printer has got the page: look for it there before you "
          "print it again.");
      return;
    }
    if (job.error() != QProcess::FailedToStart && job.exitStatus() == QProcess::NormalExit &&
        job.exitCode() == 0) {
      return;
    }
  }
  report_("The page could not be sent to the printer; it can be printed again.");
}

void QtPrinter::saveAsPdf(const QByteArray& pdf) {
  QFileDialog dialog(window_, "No printer was found: save the page as PDF",
                     QDir::home().filePath(documentName_ + ".pdf"), "PDF (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.setWindowModality(Qt::WindowModal);
  if (dialog.exec() != QDialog::Accepted) return;
  QSaveFile file(dialog.selectedFiles().first());
  // Flushed first, because committing does not notice that a disk is full.
  if (file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.flush() &&
      file.commit()) {
    return;
  }
  report_("The page could not be saved there; it can be printed again.");
}

}  // namespace qt
