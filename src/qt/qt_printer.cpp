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
#include <QProgressDialog>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QTimer>
#include <algorithm>
#include <optional>

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

/// How long the print system may take to answer, and how long of that nobody notices, in
/// milliseconds.
constexpr int patience = 10000;
constexpr int unnoticed = 200;

constexpr std::string_view notSent =
    "The page could not be sent to the printer; it can be printed again.";

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

/// What a command of the print system says on standard output: no text where it fails, nothing
/// where it has not ended when the user cancels or the time is up. A modal box over the window
/// keeps another page from being printed meanwhile, but the window goes on to be drawn.
std::optional<QString> ask(const QString& command, const QStringList& arguments, QWidget* window) {
  QProcess process;
  process.start(command, arguments);
  if (!process.waitForFinished(unnoticed) && process.state() != QProcess::NotRunning) {
    QProgressDialog box("Sending the page to the printer ...", "Cancel", 0, 0, window);
    box.setWindowTitle(QCoreApplication::applicationName());
    box.setWindowModality(Qt::WindowModal);
    QObject::connect(&process, &QProcess::finished, &box, &QDialog::accept);
    QTimer::singleShot(patience - unnoticed, &box, &QDialog::reject);
    box.exec();
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
  const double scale = std::min({1.0, (page.width() - 2 * smallestMargin) / width,
                                 (page.height() - 2 * smallestMargin) / height});
  painter.translate((page.width() - width * scale) / 2, (page.height() - height * scale) / 2);
  painter.scale(scale, scale);

  QFont font(toQString(font_.name));
  font.setStyleHint(QFont::TypeWriter);
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
  const Failure failure = printOrSave();
  lines_.clear();
  if (!failure.empty()) messageBox_(failure, Buttons::ok);
}

QtPrinter::Failure QtPrinter::printOrSave() const {
  // The toolkit's look-up blocks the window until the print system answers, be that never. A
  // command that asks it first can be waited for, and given up.
  if (!ask("lpstat", {"-d"}, window_)) return notSent;
  const QPrinterInfo printer = printerToUse();
  const QPageSize paper = printer.defaultPageSize();
  const QByteArray pdf = sheet(paper.isValid() ? paper : usualPaper());
  return printer.isNull() ? saveAsPdf(pdf) : sendToPrinter(printer.printerName(), pdf);
}

QtPrinter::Failure QtPrinter::sendToPrinter(const QString& printer, const QByteArray& pdf) const {
  QTemporaryFile file(QDir::tempPath() + "/XXXXXX.pdf");
  if (!file.open() || file.write(pdf) != pdf.size() || !file.flush()) return notSent;
  // The print system's own command is used because the toolkit's printing does not tell whether
  // the job has been accepted: then the command says what it is called.
  const std::optional<QString> job =
      ask("lp", {"-d", printer, "-t", documentName_, file.fileName()}, window_);
  if (!job) {
    return "It is not known whether the printer has got the page: look for it there before you "
           "print it again.";
  }
  return job->isEmpty() ? notSent : "";
}

QtPrinter::Failure QtPrinter::saveAsPdf(const QByteArray& pdf) const {
  messageBox_("No printer was found; the page can be saved as PDF.", Buttons::ok);
  QFileDialog dialog(window_, "Save the page as PDF", {}, "PDF (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.setWindowModality(Qt::WindowModal);
  // Asked here instead: desktops bring dialogs of their own, and not each puts the suffix behind
  // the name before it asks.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  // A home that is not known counts as the root, which is no place for files.
  QFileInfo target(QDir::home().isRoot() ? QDir::temp() : QDir::home(), documentName_ + ".pdf");
  do {
    dialog.selectFile(target.filePath());
    if (dialog.exec() != QDialog::Accepted) return {};
    target.setFile(dialog.selectedFiles().first());
  } while (target.exists() &&
           messageBox_((target.fileName() + " is already there: replace it?").toStdString(),
                       Buttons::yesNo) != Answer::yes);
  QSaveFile file(target.filePath());
  // Flushed first, because committing does not notice that a disk is full.
  if (file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.flush() &&
      file.commit()) {
    return {};
  }
  return "The page could not be saved there; it can be printed again.";
}

}  // namespace qt
