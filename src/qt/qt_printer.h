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

/// Printer that prints on the desktop's default printer or, if there is none, into a PDF file that
/// the user names. It makes the page in memory first, so that the page is sent whole or not at all.
class QtPrinter final : public platform::Printer {
 public:
  using Buttons = platform::Desktop::Buttons;
  using Answer = platform::Desktop::Answer;
  using MessageBox = std::function<Answer(std::string_view, Buttons)>;

  /// `documentName` is the name of the print job, and the suggested name of the PDF file.
  /// `messageBox` shows the user a message or a question.
  QtPrinter(QString documentName, MessageBox messageBox)
      : documentName_(std::move(documentName)), messageBox_(std::move(messageBox)) {}

  /// Sets the parent of all dialogs, which accepts no input while a page is being sent.
  void setParentWindow(QWidget* window) { window_ = window; }

  void setFontName(std::string_view name) override { font_.name = name; }
  void setFontSize(double points) override { font_.points = points; }
  void printLine(std::string_view text) override;
  void endDocument() override;

  /// Returns the lines printed so far as a PDF of one portrait sheet, centred, and scaled down
  /// only if the paper is too small.
  QByteArray sheet(const QPageSize& paper) const;

 private:
  // Each returns a message for the user, or an empty text on success.
  std::string_view printOrSave() const;
  std::string_view sendToPrinter(const QString& printer, const QByteArray& pdf) const;
  std::string_view saveAsPdf(const QByteArray& pdf) const;

  QString documentName_;
  MessageBox messageBox_;
  QWidget* window_ = nullptr;
  platform::Font font_{.bold = false};
  QStringList lines_;
};

}  // namespace qt
