#include "qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "qt/convert.h"
#include "qt/form_view.h"
#include "qt/modal.h"

namespace qt {

FormWindow::FormWindow(platform::Form& form, const Zoom& zoom)
    : QMainWindow(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                               Qt::WindowCloseButtonHint),
      form_(form),
      zoom_(zoom),
      view_(new FormView(form, zoom.factor(), this)) {
  if (form.icon != nullptr) setWindowIcon(toQIcon(*form.icon));
  setWindowTitle(toQString(form.caption()));
  form.changed = [this] { setTitle(*this, toQString(form_.caption())); };
  for (const platform::MenuItem* menu : form.menus) {
    addMenu(*menuBar()->addMenu(toQString(menu->caption())), *menu);
  }
  setCentralWidget(view_);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  // Without this, the window would keep the cursor of a box that closes under the mouse. Queued,
  // because loading the cursor theme would delay the window.
  QMetaObject::invokeMethod(this, [this] { setCursor(Qt::ArrowCursor); }, Qt::QueuedConnection);
  // Qt's own title bars can maximise even a window of fixed size. Release the size when that
  // happens, because some desktops terminate a program that does not accept the size they set.
  create();
  connect(windowHandle(), &QWindow::windowStateChanged, this, [this](Qt::WindowState state) {
    if (state != Qt::WindowMaximized) return;
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  });
}

FormWindow::~FormWindow() {
  form_.changed = nullptr;
  for (const platform::MenuItem* menu : form_.menus) {
    for (platform::MenuItem* item : menu->items) item->changed = nullptr;
  }
}

void FormWindow::addMenu(QMenu& menu, const platform::MenuItem& submenu) {
  // Return the focus to the form when a menu closes; Qt returns it to the menu bar.
  connect(
      &menu, &QMenu::aboutToHide, this,
      [this] {
        if (!menuBar()->hasFocus()) return;
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(menuBar(), &escape);
      },
      Qt::QueuedConnection);
  for (platform::MenuItem* item : submenu.items) {
    if (item->caption() == "-") {
      menu.addSeparator();
      continue;
    }
    QAction* action = menu.addAction(QString());
    const auto updateAction = [action, item] {
      action->setText(toQString(item->caption()));
      action->setEnabled(item->enabled());
    };
    updateAction();
    item->changed = updateAction;
    // Queued, so that an accessibility client that chooses the item does not wait for the box that
    // the item opens.
    connect(
        action, &QAction::triggered, this,
        [this, item] {
          if (isBlocked(*this)) return;
          announcer_.menuClosed();
          item->choose();
        },
        Qt::QueuedConnection);
  }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
    openMenu();
  } else if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier && form_.help) {
    form_.help();
  } else if (event->key() == Qt::Key_Alt && (event->modifiers() & ~Qt::AltModifier) == 0) {
    qApp->installEventFilter(this);
  } else {
    event->ignore();
  }
}

/// Waits for Alt to be released with no other key or button in between. Qt does so too, but only
/// moves to the menu bar, and misses the key while a screen reader listens to the keyboard.
bool FormWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
  const auto isAlt = [&] { return dynamic_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt; };
  const QEvent::Type type = event->type();
  const bool released = type == QEvent::KeyRelease && isAlt();
  if (released || (type == QEvent::KeyPress && !isAlt()) || type == QEvent::MouseButtonPress ||
      type == QEvent::WindowDeactivate) {
    qApp->removeEventFilter(this);
  }
  if (released) QMetaObject::invokeMethod(this, [this] { openMenu(); }, Qt::QueuedConnection);
  return false;
}

void FormWindow::openMenu() {
  view_->setKeysUsed(true);
  if (menuBar()->actions().isEmpty()) return;
  QAction* first = menuBar()->actions().first();
  menuBar()->setActiveAction(first);
  const QList<QAction*> items = first->menu()->actions();
  const auto item = std::ranges::find_if(
      items, [](const QAction* it) { return it->isEnabled() && !it->isSeparator(); });
  if (item != items.end()) first->menu()->setActiveAction(*item);
}

bool FormWindow::fitsAt(double zoom) const {
  const QSize frame = frameGeometry().size() - size();
  const QSize needed = sizeHint() * (zoom / zoom_.factor()) + frame;
  return screen()->availableSize().expandedTo(needed) == screen()->availableSize();
}

void FormWindow::moveOntoScreen() {
  layout()->activate();  // gives the window its new size
  const QRect available = screen()->availableGeometry();
  QRect frame = frameGeometry();
  frame.moveRight(std::min(frame.right(), available.right()));
  frame.moveBottom(std::min(frame.bottom(), available.bottom()));
  frame.moveTopLeft(
      {std::max(frame.left(), available.left()), std::max(frame.top(), available.top())});
  if (frame.topLeft() != pos()) move(frame.topLeft());
}

void FormWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    view_->setZoom(zoom_.factor());
    // Queued, so that the menu bar already has its new font.
    QMetaObject::invokeMethod(this, [this] { moveOntoScreen(); }, Qt::QueuedConnection);
  }
  if (event->type() != QEvent::WindowStateChange) return;
  if (!isMaximized() && !isFullScreen()) layout()->setSizeConstraint(QLayout::SetFixedSize);
  if (!isMaximized() || !nextRestore_.hasExpired()) return;
  nextRestore_.setRemainingTime(1000);  // milliseconds
  // Queued, so that the maximised size is accepted first, in case the desktop insists on it.
  QMetaObject::invokeMethod(
      this, [this] { windowHandle()->setWindowStates(Qt::WindowNoState); }, Qt::QueuedConnection);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_.unload) form_.unload();
}

}  // namespace qt
