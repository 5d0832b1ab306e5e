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
#include "platform/desktop.h"
#include "platform/printer.h"

namespace qt {

/// Prints on the desktop's default printer, or, where there is none, into a PDF file that the user
/// names.
///
/// The sheet is made as a PDF in memory first, so that it is handed over whole or not at all.
class QtPrinter final : public platform::Printer {
 public:
  using Buttons = platform::Desktop::Buttons;
  using Answer = platform::Desktop::Answer;
  using MessageBox = std::function<Answer(std::string_view, Buttons)>;

  /// `documentName` is what the printer's queue shows, and the name that a file is offered;
  /// `messageBox` tells or asks the user something, in one sentence.
  QtPrinter(QString documentName, MessageBox messageBox)
      : documentName_(std::move(documentName)), messageBox_(std::move(messageBox)) {}

  /// The window over which the user is asked for a file name, and which takes no input while a page
  /// is on its way to the printer.
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
  /// What went wrong, in one sentence; empty where nothing did.
  using Failure = std::string_view;

  Failure printOrSave() const;
  Failure sendToPrinter(const QString& printer, const QByteArray& pdf) const;
  Failure saveAsPdf(const QByteArray& pdf) const;

  QString documentName_;
  MessageBox messageBox_;
  QWidget* window_ = nullptr;
  platform::Font font_{.bold = false};
  QStringList lines_;
};

}  // namespace qt
