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
  /// The form must outlive the window.
  explicit FormWindow(platform::Form& form);
  ~FormWindow() override;

  /// Returns the client area.
  FormView& view() const { return *view_; }
  /// Returns what speaks sentences in this window.
  Announcer& announcer() { return announcer_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Opens the first menu with its first enabled item selected.
  void openMenu();
  void addMenu(QMenu& menu, const platform::MenuItem& item);

  platform::Form& form_;
  std::vector<platform::MenuItem*> items_;  ///< those shown by this window
  FormView* view_;
  /// Until it expires, a maximised window is not restored: the desktop insists.
  QDeadlineTimer nextRestore_;
  Announcer announcer_{*this};
};

}  // namespace qt
