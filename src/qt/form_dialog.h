#pragma once

#include <QDialog>

#include "platform/form.h"
#include "qt/announcer.h"

namespace qt {

/// A modal box that shows a form while the form is `Visible`.
class FormDialog final : public QDialog {
 public:
  /// The form has to outlive the box.
  FormDialog(platform::Form& form, double zoom, QWidget* parent);
  ~FormDialog() override;

  /// Shows the form, and returns when it has been closed.
  void run();

  /// The user has told the box to close, by its close command or the Escape key.
  void reject() override;

 private:
  platform::Form& form_;
  Announcer announcer_{*this};
};

}  // namespace qt
