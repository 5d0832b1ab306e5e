#include "qt/text_view.h"

#include <QWheelEvent>

#include "qt/convert.h"

namespace qt {

TextView::TextView(const platform::TextBox& box, double zoom, QWidget* parent)
    : QTextEdit(parent), box_(box) {
  setReadOnly(true);
  setFocusPolicy(Qt::NoFocus);  // a screen reader would say "read only text" and nothing more
  setFrameShape(QFrame::NoFrame);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(false);
  setFont(toQFont(box.font, zoom, logicalDpiY()));
  document()->setDefaultTextOption(QTextOption(Qt::AlignCenter));
  setPlainText(toQString(box.text));
}

void TextView::mousePressEvent(QMouseEvent* /*event*/) {
  if (box_.mouseDown) box_.mouseDown();
}

/// QTextEdit would zoom its text with Ctrl and the wheel.
void TextView::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace qt
