#include "qt/form_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>

#include "qt/convert.h"
#include "qt/form_view.h"
#include "qt/modal.h"

namespace qt {

FormWindow::FormWindow(platform::Form& form)
    : QMainWindow(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                               Qt::WindowCloseButtonHint),
      form_(form),
      view_(new FormView(form, this)) {
  if (form.icon != nullptr) setWindowIcon(toQIcon(*form.icon));
  setWindowTitle(toQString(form.caption()));
  form.changed = [this] { setWindowTitle(toQString(form_.caption())); };
  for (const platform::MenuItem* menu : form.menus) {
    addMenu(*menuBar()->addMenu(toQString(menu->caption())), *menu);
  }
  setCentralWidget(view_);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

FormWindow::~FormWindow() {
  form_.changed = nullptr;
  for (platform::MenuItem* item : items_) item->changed = nullptr;
}

void FormWindow::addMenu(QMenu& menu, const platform::MenuItem& item) {
  for (platform::MenuItem* entry : item.items) {
    if (entry->caption() == "-") {
      menu.addSeparator();
      continue;
    }
    QAction* action = menu.addAction(QString());
    const auto show = [action, entry] {
      action->setText(toQString(entry->caption()));
      action->setEnabled(entry->enabled());
    };
    show();
    entry->changed = show;
    items_.push_back(entry);
    // Queued, so that a client of assistive technology that chooses the item is not kept waiting
    // by a box that it brings up.
    connect(
        action, &QAction::triggered, this,
        [this, entry] {
          if (!isBlocked(*this)) entry->choose();
        },
        Qt::QueuedConnection);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_.unload) form_.unload();
}

}  // namespace qt
