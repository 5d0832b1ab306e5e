#include "qt/form_dialog.h"

#include <variant>

#include "qt/convert.h"
#include "qt/form_view.h"
#include "qt/modal.h"

namespace qt {
namespace {

/// Returns all texts of a form. A screen reader alone would read only the button with the focus.
QString textOf(const platform::Form& form) {
  QStringList lines;
  for (const platform::ControlRef& control : form.controls) {
    if (auto* const* box = std::get_if<platform::TextBox*>(&control)) {
      lines += toQString((*box)->text).split('\n', Qt::SkipEmptyParts);
    } else if (auto* const* label = std::get_if<platform::Label*>(&control)) {
      lines += toQString((*label)->caption());
    }
  }
  return lines.join(". ");
}

}  // namespace

FormDialog::FormDialog(platform::Form& form, double zoom, QWidget* parent)
    : QDialog(parent), form_(form) {
  setWindowTitle(toQString(form.caption()));
  if (form.icon != nullptr) setWindowIcon(toQIcon(*form.icon));
  setFixedSize((new FormView(form, zoom, this))->size());
  focusNextChild();
  announcer_.introduce(textOf(form));
  setWindowModality(Qt::WindowModal);
  form.changed = [this] {
    if (!form_.Visible()) accept();
  };
}

FormDialog::~FormDialog() {
  form_.changed = nullptr;
}

void FormDialog::run() {
  form_.Visible = true;
  runModal(*this);
}

void FormDialog::reject() {
  if (form_.unload) form_.unload();
}

}  // namespace qt
