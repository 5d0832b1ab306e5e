#pragma once

#include <QMainWindow>
#include <QStringList>
#include <QTextBrowser>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/help_viewer.h"
#include "qt/announcer.h"
#include "qt/zoom.h"

namespace qt {

/// Text of a help file with keyboard navigation: the arrow and page keys scroll, Tab moves from
/// link to link.
class HelpText final : public QTextBrowser {
 public:
  /// `announcer` speaks the links and headings that the keys reach.
  HelpText(QWidget* parent, Announcer& announcer);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  /// Moves the caret to where a link has led and announces the line there.
  void moveCaretTo(const QString& anchor);
  void announceLink();

  Announcer& announcer_;
};

/// Window that shows a help file in the HTML subset of QTextBrowser.
class HelpWindow final : public QMainWindow {
 public:
  /// Opens as large as the zoom asks for and the screen allows.
  explicit HelpWindow(double zoom);

  /// Shows the file at its contents in front of the other windows, or instead a sentence that says
  /// why it cannot be shown. Returns whether the file is shown.
  bool showContents(const QString& path);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Announcer announcer_{*this};
  HelpText* text_;
  QString path_;  ///< of the last file
};

/// Viewer that finds help files in the folders and shows them in one window, created on first use.
class QtHelpViewer final : public platform::HelpViewer {
 public:
  QtHelpViewer(QStringList folders, const Zoom& zoom) : folders_(std::move(folders)), zoom_(zoom) {}

  bool WinHelpA(const platform::Form& owner, std::string_view file, unsigned command,
                unsigned data) override;

 private:
  QStringList folders_;
  const Zoom& zoom_;
  std::unique_ptr<HelpWindow> window_;
};

}  // namespace qt
