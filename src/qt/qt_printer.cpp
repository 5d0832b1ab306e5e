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
#include <QSaveFile>
#include <QTemporaryFile>
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

/// How long the print system may take to accept a job, in milliseconds.
constexpr int patience = 10000;

QPageSize usualPaper() {
  const bool metric = QLocale::system().measurementSystem() == QLocale::MetricSystem;
  return {metric ? QPageSize::A4 : QPageSize::Letter};
}

QPrinterInfo printerToUse() {
  QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  if (!printer.isNull()) return printer;
  const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
  return all.isEmpty() ? printer : all.first();
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
  if (printer.isNull()) {
    saveAsPdf();
  } else {
    const QPageSize paper = printer.defaultPageSize();
    sendToPrinter(printer.printerName(), paper.isValid() ? paper : usualPaper());
  }
  lines_.clear();
}

void QtPrinter::sendToPrinter(const QString& printer, const QPageSize& paper) {
  QTemporaryFile file(QDir::tempPath() + "/XXXXXX.pdf");
  const QByteArray pdf = sheet(paper);
  // The print system's own command is used because the toolkit's printing does not tell whether
  // the job has been accepted.
  QProcess job;
  if (file.open() && file.write(pdf) == pdf.size() && file.flush()) {
    job.start("lp", {"-d", printer, "-t", documentName_, file.fileName()});
    if (job.waitForFinished(patience) && job.exitStatus() == QProcess::NormalExit &&
        job.exitCode() == 0) {
      return;
    }
  }
  report_("The page could not be sent to the printer; it can be printed again.");
}

void QtPrinter::saveAsPdf() {
  QFileDialog dialog(window_, "No printer was found: save the page as PDF",
                     QDir::home().filePath(documentName_ + ".pdf"), "PDF (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.setWindowModality(Qt::WindowModal);
  if (dialog.exec() != QDialog::Accepted) return;
  QSaveFile file(dialog.selectedFiles().first());
  const QByteArray pdf = sheet(usualPaper());
  // Flushed first, because committing does not notice that a disk is full.
  if (file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.flush() &&
      file.commit()) {
    return;
  }
  report_("The page could not be saved there; it can be printed again.");
}

}  // namespace qt
