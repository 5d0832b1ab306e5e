#include "qt/form_dialog.h"

#include <QEvent>
#include <QVBoxLayout>

#include "qt/convert.h"
#include "qt/form_view.h"

namespace qt {
namespace {

/// All that can be read in a form, line by line: a screen reader would go to its button at once.
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

FormDialog::FormDialog(platform::Form& form, QWidget* parent) : QDialog(parent), form_(form) {
  setWindowTitle(toQString(form.caption()));
  if (form.icon != nullptr) setWindowIcon(toQIcon(*form.icon));
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSizeConstraint(QLayout::SetFixedSize);
  auto* view = new FormView(form, this);
  box->addWidget(view);
  view->focusFirst();
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
  exec();
}

void FormDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange) announcer_.windowActivated();
  QDialog::changeEvent(event);
}

void FormDialog::reject() {
  if (form_.unload) form_.unload();
}

}  // namespace qt
