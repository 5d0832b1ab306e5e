#include "qt/message_box.h"

#include <QGridLayout>
#include <QLabel>

#include "qt/modal.h"

namespace qt {
namespace {

/// Device-independent pixels. Qt's own title bars centre the title and keep room for three buttons
/// on the right, which makes the title wider than the shortest texts.
constexpr int roomForTitle = 206;

constexpr int pauseBeforeRepeat = 500;  // milliseconds

}  // namespace

MessageBox::MessageBox(const QString& title, const QString& text, Buttons buttons,
                       const QString& pendingSentence, KeyGuard& keyGuard, QWidget* parent)
    : QMessageBox(parent), keyGuard_(keyGuard) {
  setWindowTitle(title);
  setText(text);
  if (auto* grid = dynamic_cast<QGridLayout*>(layout())) {
    grid->addItem(new QSpacerItem(roomForTitle, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
  // Qt turns a window-modal box into a sheet, which has no title bar where the program draws its
  // own.
  setWindowModality(Qt::WindowModal);
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowCloseButtonHint);
  setStandardButtons(buttons == Buttons::ok ? Ok : Yes | No);
  // By default it would be the first button, which is No on some desktops.
  setDefaultButton(buttons == Buttons::ok ? Ok : buttons == Buttons::yesNo ? Yes : No);

  const QString spoken = pendingSentence.isEmpty() ? text : pendingSentence + ". " + text;
  for (QLabel* label : findChildren<QLabel*>()) {
    if (label->text() == text) label->setAccessibleName(spoken);
  }
  // A key kept from the box cuts the reading short where screen readers speak announcements;
  // others read on.
  if (!hasAnnouncements) return;
  repeat_.setSingleShot(true);
  repeat_.setInterval(pauseBeforeRepeat);
  connect(&repeat_, &QTimer::timeout, this, [this, spoken] { announcer_.announce(spoken); });
  keyGuard_.keyKeptFromBox = [this] { repeat_.start(); };
}

MessageBox::~MessageBox() {
  keyGuard_.keyKeptFromBox = nullptr;
}

MessageBox::Answer MessageBox::ask() {
  waitForScreenReader();
  const int answer = runModal(*this);
  return standardButtons() == Ok ? Answer::ok : answer == Yes ? Answer::yes : Answer::no;
}

}  // namespace qt
