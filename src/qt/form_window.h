#pragma once

#include <QDeadlineTimer>
#include <QMainWindow>
#include <vector>

#include "platform/form.h"
#include "qt/announcer.h"

namespace qt {

class FormView;

/// A window that shows a form: its title, icon, menu bar and client area.
class FormWindow final : public QMainWindow {
 public:
  /// The form has to outlive the window.
  explicit FormWindow(platform::Form& form);
  ~FormWindow() override;

  /// The client area.
  FormView& view() const { return *view_; }
  /// Has sentences spoken in this window.
  Announcer& announcer() { return announcer_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Opens the first menu at its first enabled item, as by the keyboard.
  void openMenu();
  void addMenu(QMenu& menu, const platform::MenuItem& item);

  platform::Form& form_;
  std::vector<platform::MenuItem*> items_;  ///< those that this window shows
  FormView* view_;
  QDeadlineTimer restored_;  ///< until when the desktop is let have its way
  Announcer announcer_{*this};
};

}  // namespace qt
