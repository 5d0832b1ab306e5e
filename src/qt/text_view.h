#pragma once

#include <QTextEdit>

#include "platform/control.h"

namespace qt {

/// Widget that shows a text box.
class TextView final : public QTextEdit {
 public:
  TextView(const platform::TextBox& box, double zoom, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  const platform::TextBox& box_;
};

}  // namespace qt
