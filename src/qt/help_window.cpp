#include "qt/help_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QStringDecoder>
#include <QStyleHintReturn>
#include <QTextBlock>
#include <QToolBar>
#include <algorithm>

#include "qt/convert.h"
#include "qt/modal.h"

namespace qt {
namespace {

constexpr const char* keyHint =
    ". Arrow keys move through the text, Tab moves to links, Escape closes the help";

/// Returns why the file cannot be shown, as the end of a sentence; empty if it can.
QString problemWith(const QString& path) {
  QFile file(path);
  if (!file.exists()) return "cannot be found";
  if (!file.open(QIODevice::ReadOnly)) return "cannot be read";
  const QByteArray content = file.readAll();
  if (content.trimmed().isEmpty()) return "is empty";
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(content);
  if (decoder.hasError() || text.contains(QChar::Null)) return "is not a text file";
  return {};
}

/// Style that marks the link with the focus like selected text, because Qt's own mark is a dotted
/// line one pixel wide.
class LinkStyle final : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    auto* mark = qstyleoption_cast<QStyleHintReturnVariant*>(result);
    if (hint != SH_TextControl_FocusIndicatorTextCharFormat || mark == nullptr) {
      return QProxyStyle::styleHint(hint, option, widget, result);
    }
    QTextCharFormat format;
    format.setBackground(QApplication::palette().highlight());
    format.setForeground(QApplication::palette().highlightedText());
    mark->variant = format;
    return 1;
  }
};

/// Returns the position of the anchor in the text; 0 if it has none.
int positionOf(const QString& anchor, const QTextDocument& text) {
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      if (it.fragment().charFormat().anchorNames().contains(anchor))
        return it.fragment().position();
    }
  }
  return 0;
}

}  // namespace

HelpText::HelpText(QWidget* parent, Announcer& announcer)
    : QTextBrowser(parent), announcer_(announcer) {
  setOpenExternalLinks(false);
  setAccessibleName("Help");
  auto* style = new LinkStyle;
  style->setParent(this);
  setStyle(style);
}

void HelpText::keyPressEvent(QKeyEvent* event) {
  // The first key turns on a caret, which screen readers follow; the mouse needs none.
  setTextInteractionFlags(textInteractionFlags() | Qt::TextSelectableByKeyboard);
  const QUrl before = source();
  const int depth = backwardHistoryCount();
  QTextBrowser::keyPressEvent(event);
  if (source() == before) return;
  if (backwardHistoryCount() < depth) {
    announceLink();  // Qt selects the link that was followed before
  } else {
    moveCaretTo(source().fragment());
  }
}

bool HelpText::focusNextPrevChild(bool next) {
  const bool moved = QTextBrowser::focusNextPrevChild(next);
  if (moved && hasFocus()) announceLink();
  return moved;
}

void HelpText::announceLink() {
  announcer_.announce(textCursor().selectedText() + ", link");
}

void HelpText::moveCaretTo(const QString& anchor) {
  QTextCursor caret(document());
  caret.setPosition(positionOf(anchor, *document()));
  setTextCursor(caret);
  announcer_.announce(caret.block().text().simplified());
}

HelpWindow::HelpWindow(double zoom) : text_(new HelpText(this, announcer_)) {
  setWindowTitle(QCoreApplication::applicationName() + " Help");
  setCentralWidget(text_);
  resize((QSize(560, 620) * zoom).boundedTo(screen()->availableSize()));
  QToolBar* bar = addToolBar("Navigation");
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  QAction* contents = bar->addAction("Contents");
  connect(contents, &QAction::triggered, this, [this] { showContents(path_); });
  QAction* back = bar->addAction("Back");
  connect(back, &QAction::triggered, text_, &QTextBrowser::backward);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  for (QAction* action : {contents, back}) {
    bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
  }
}

bool HelpWindow::showContents(const QString& path) {
  path_ = path;
  const QString problem = problemWith(path);
  if (problem.isEmpty()) {
    text_->setSource(QUrl::fromLocalFile(path), QTextDocument::HtmlResource);
    text_->reload();  // the file may have changed
    text_->verticalScrollBar()->setValue(0);
  } else {
    text_->setPlainText(
        QString("The help file \"%1\" %2.").arg(QFileInfo(path).fileName(), problem));
  }
  text_->clearHistory();
  text_->setFocus();  // a tool button may have it
  waitForScreenReader();
  // Spoken once the window is shown.
  announcer_.announce(text_->document()->firstBlock().text().trimmed() +
                      (problem.isEmpty() ? keyHint : ""));
  showNormal();
  raise();
  activateWindow();
  return problem.isEmpty();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return;
  waitForScreenReader();
  close();
}

bool QtHelpViewer::WinHelpA(const platform::Form& owner, std::string_view file,
                            unsigned /*command*/, unsigned /*data*/) {
  const QString name = toQString(file);
  const auto folder = std::ranges::find_if(
      folders_, [&](const QString& candidate) { return QDir(candidate).exists(name); });
  const QString path = QDir(folder == folders_.end() ? folders_.first() : *folder).filePath(name);
  if (!window_) {
    window_ = std::make_unique<HelpWindow>(zoom_.factor());
    if (owner.icon != nullptr) window_->setWindowIcon(toQIcon(*owner.icon));
  }
  return window_->showContents(path);
}

}  // namespace qt
