#include "qt/message_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include "qt/announcer.h"
#include "qt/modal.h"

namespace qt {
namespace {

/// Width of a box's title, in device-independent pixels. Qt's own title bars also reserve room for
/// three buttons, so the title is wider than the shortest texts.
constexpr int titleWidth = 206;

constexpr int pauseBeforeRepeat = 500;  // milliseconds

}  // namespace

platform::Desktop::Answer showMessageBox(const QString& title, const QString& text,
                                         platform::Desktop::Buttons buttons,
                                         const QString& pendingSentence, KeyGuard& keyGuard,
                                         QWidget* parent) {
  using platform::Desktop;
  QMessageBox box(parent);
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  if (auto* grid = dynamic_cast<QGridLayout*>(box.layout())) {
    grid->addItem(new QSpacerItem(titleWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
  box.setWindowModality(Qt::WindowModal);
  // Qt makes window-modal boxes sheets, which have no title bar on desktops where Qt draws it.
  box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowCloseButtonHint);
  const bool isQuestion = buttons != Desktop::Buttons::ok;
  box.setStandardButtons(isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  // Qt would choose the first button, which is No on some desktops.
  box.setDefaultButton(!isQuestion                          ? QMessageBox::Ok
                       : buttons == Desktop::Buttons::yesNo ? QMessageBox::Yes
                                                            : QMessageBox::No);

  const QString spoken = pendingSentence.isEmpty() ? text : pendingSentence + ". " + text;
  for (QLabel* label : box.findChildren<QLabel*>()) {
    if (label->text() == text) label->setAccessibleName(spoken);
  }
  // With announcements, a key that the box ignores still interrupts the reading, so the text is
  // read again. Without them, it would be read twice.
  Announcer announcer(box);
  QTimer repeat;
  repeat.setSingleShot(true);
  QObject::connect(&repeat, &QTimer::timeout, [&] { announcer.announce(spoken); });
  if (hasAnnouncements) keyGuard.boxIgnoredKey = [&] { repeat.start(pauseBeforeRepeat); };

  waitForScreenReader();
  const int answer = runModal(box);
  keyGuard.boxIgnoredKey = nullptr;
  if (!isQuestion) return Desktop::Answer::ok;
  return answer == QMessageBox::Yes ? Desktop::Answer::yes : Desktop::Answer::no;
}

}  // namespace qt
