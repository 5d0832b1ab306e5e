#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <vector>

#include "qt/form_view.h"

namespace qt {

/// A form's view for assistive technology: its children are the controls that the view draws and
/// that present themselves, then the toolkit's widgets in it.
class AccessibleView final : public QAccessibleWidget {
 public:
  explicit AccessibleView(FormView& view);
  ~AccessibleView() override;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;

 private:
  void announce(std::size_t item, const Look& before, bool wasEnabled) const;

  FormView& view_;
  std::vector<std::size_t> items_;            ///< which items of the view are presented
  mutable std::vector<QAccessible::Id> ids_;  ///< of their interfaces, 0 where not made yet
};

/// Has the toolkit present form views in this way.
void installAccessibleViews();

}  // namespace qt
