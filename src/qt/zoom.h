#pragma once

#include <QFont>
#include <QObject>
#include <QString>
#include <functional>
#include <utility>

namespace qt {

/// How large the windows show everything: a factor on top of the screen's scale factor. Forms ask
/// for it; what Qt draws grows with the application's font, and every window hears of a new factor
/// as a change of that font.
///
/// As the event filter of the application, it lets Ctrl with +, -, 0 or the wheel change the factor
/// in every window but boxes.
class Zoom final : public QObject {
 public:
  /// Starts at 2 on a screen with 1,800 or more device-independent pixels of available height, else
  /// at 1. `fits` returns whether the screen has room for a factor; `announce` speaks a sentence.
  Zoom(std::function<bool(double factor)> fits, std::function<void(const QString&)> announce);

  /// Returns the factor, 1 to 4.
  double factor() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void stepTo(std::size_t step);
  void stepBy(int steps);

  std::function<bool(double factor)> fits_;
  std::function<void(const QString&)> announce_;
  QFont usualFont_;
  std::size_t start_;
  std::size_t step_ = 0;  ///< index of the factor
  int wheel_ = 0;         ///< turned since the last step, in eighths of a degree
};

}  // namespace qt
