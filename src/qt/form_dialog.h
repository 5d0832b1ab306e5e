#pragma once

#include <QDialog>

#include "platform/form.h"
#include "qt/announcer.h"

namespace qt {

/// Modal box that shows a form while the form is `Visible`.
class FormDialog final : public QDialog {
 public:
  /// The form must outlive the box.
  FormDialog(platform::Form& form, double zoom, QWidget* parent);
  ~FormDialog() override;

  /// Shows the form and returns after it has been closed.
  void run();

  /// Passes the user's close command or Escape key on to the form.
  void reject() override;

 private:
  platform::Form& form_;
  Announcer announcer_{*this};
};

}  // namespace qt
