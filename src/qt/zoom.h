#pragma once

#include <QFont>
#include <QObject>
#include <QString>
#include <functional>
#include <utility>

namespace qt {

/// Zoom factor of all windows, on top of the screen's scale factor. Forms read it. What Qt draws
/// grows with the application's font, and the font change also tells every window that the factor
/// is new.
///
/// As an application-wide event filter it changes the factor on Ctrl with +, -, 0 or the wheel, in
/// every window that is not modal.
class Zoom final : public QObject {
 public:
  /// Starts at 2 on a screen with 1,800 or more device-independent pixels of available height, else
  /// at 1. `fits` returns whether the screen has room for a factor; `announce` speaks a sentence.
  Zoom(std::function<bool(double factor)> fits, std::function<void(const QString&)> announce);

  /// Returns the factor, 1 to 4.
  double factor() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void stepTo(int step);
  void stepBy(int steps);
  void stepToStart();

  std::function<bool(double factor)> fits_;
  std::function<void(const QString&)> announce_;
  QFont defaultFont_;
  int start_;
  int step_ = 0;   ///< index of the factor
  int wheel_ = 0;  ///< turned since the last step, in eighths of a degree
};

}  // namespace qt
