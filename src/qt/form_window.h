#pragma once

#include <QDeadlineTimer>
#include <QMainWindow>

#include "platform/form.h"
#include "qt/announcer.h"
#include "qt/zoom.h"

namespace qt {

class FormView;

/// A window that shows a form: its title, icon, menu bar and client area.
class FormWindow final : public QMainWindow {
 public:
  /// The form must outlive the window.
  FormWindow(platform::Form& form, const Zoom& zoom);
  ~FormWindow() override;

  /// Returns whether the screen has room for the window at the zoom.
  bool fitsAt(double zoom) const;

  /// Returns the client area.
  FormView& view() const { return *view_; }
  /// Returns the announcer of this window.
  Announcer& announcer() { return announcer_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Opens the first menu with its first enabled item selected.
  void openMenu();
  void addMenu(QMenu& menu, const platform::MenuItem& submenu);

  void moveOntoScreen();

  platform::Form& form_;
  const Zoom& zoom_;
  FormView* view_;
  /// If the desktop maximises the window again before this expires, the window stays maximised.
  QDeadlineTimer nextRestore_;
  Announcer announcer_{*this};
};

}  // namespace qt
