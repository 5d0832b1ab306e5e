#include "qt/form_dialog.h"

#include <QVBoxLayout>

#include "qt/convert.h"
#include "qt/form_view.h"

namespace qt {

FormDialog::FormDialog(platform::Form& form, QWidget* parent) : QDialog(parent), form_(form) {
  setWindowTitle(toQString(form.caption()));
  if (form.icon != nullptr) setWindowIcon(toQIcon(*form.icon));
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSizeConstraint(QLayout::SetFixedSize);
  auto* view = new FormView(form, this);
  box->addWidget(view);
  for (QWidget* child : view->findChildren<QWidget*>()) {
    if ((child->focusPolicy() & Qt::TabFocus) != 0) {
      child->setFocus();
      break;
    }
  }
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

void FormDialog::reject() {
  if (form_.unload) form_.unload();
}

}  // namespace qt
