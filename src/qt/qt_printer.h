#pragma once

#include <QByteArray>
#include <QPageSize>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <string_view>
#include <utility>

#include "platform/control.h"
#include "platform/printer.h"

namespace qt {

/// Prints on the desktop's default printer, or, where there is none, into a PDF file that the user
/// names.
///
/// The sheet is made as a PDF in memory first. What can go wrong then is only the handing over,
/// which either succeeds or leaves nothing behind.
class QtPrinter final : public platform::Printer {
 public:
  using Report = std::function<void(std::string_view)>;

  /// `documentName` is what the printer's queue shows; `report` tells the user of a failure in one
  /// sentence.
  QtPrinter(QString documentName, Report report)
      : documentName_(std::move(documentName)), report_(std::move(report)) {}

  /// The window over which the user is asked for a file name.
  void setParentWindow(QWidget* window) { window_ = window; }

  void setFontName(std::string_view name) override { font_.name = name; }
  void setFontSize(double points) override { font_.points = points; }
  void printLine(std::string_view text) override;
  void endDocument() override;

  /// The lines printed so far as a PDF of one sheet of the given paper, upright. The lines stand
  /// whole on it, in the middle: at their own size where the paper is large enough, else scaled
  /// down.
  QByteArray sheet(const QPageSize& paper) const;

 private:
  void sendToPrinter(const QString& printer, const QPageSize& paper);
  void saveAsPdf();

  QString documentName_;
  Report report_;
  QWidget* window_ = nullptr;
  platform::Font font_{.bold = false};
  QStringList lines_;
};

}  // namespace qt
