#pragma once

#include <QMainWindow>
#include <QStringList>
#include <QTextBrowser>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/help_viewer.h"

namespace qt {

/// Shows a help file: HTML, as far as the toolkit's text browser knows it.
class HelpWindow final : public QMainWindow {
 public:
  HelpWindow();

  /// Shows the file at its contents in front of the other windows, or, in its place, a sentence
  /// that says why it cannot be shown. Whether it is shown.
  bool showContents(const QString& path);

 private:
  QTextBrowser* text_;
  QString path_;  ///< of the file last asked for
};

/// Finds help files in the given folders and shows them in one window, made when first needed.
class QtHelpViewer final : public platform::HelpViewer {
 public:
  explicit QtHelpViewer(QStringList folders) : folders_(std::move(folders)) {}

  bool WinHelpA(const platform::Form& owner, std::string_view file, unsigned command,
                unsigned data) override;

 private:
  QStringList folders_;
  std::unique_ptr<HelpWindow> window_;
};

}  // namespace qt
