#include "qt/zoom.h"

#include <QApplication>
#include <QFontInfo>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>

namespace qt {
namespace {

constexpr std::array factors{1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0};
constexpr std::size_t twice = 3;
constexpr int largeScreen = 1800;  // device-independent pixels of height

/// The keys that mean a step with Ctrl. "=" shares its key with "+" on many keyboards.
constexpr auto keySteps = std::to_array<std::pair<int, int>>(
    {{Qt::Key_Plus, 1}, {Qt::Key_Equal, 1}, {Qt::Key_Minus, -1}});

bool isCtrl(Qt::KeyboardModifiers modifiers) {
  return (modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::ControlModifier;
}

}  // namespace

Zoom::Zoom(std::function<bool(double)> fits, std::function<void(const QString&)> announce)
    : fits_(std::move(fits)),
      announce_(std::move(announce)),
      usualFont_(QApplication::font()),
      start_(QGuiApplication::primaryScreen()->availableSize().height() < largeScreen ? 0 : twice) {
  if (start_ != 0) stepTo(start_);
}

double Zoom::factor() const {
  return factors[step_];
}

void Zoom::stepTo(std::size_t step) {
  step_ = step;
  QFont font = usualFont_;
  if (step != 0) font.setPointSizeF(QFontInfo(font).pointSizeF() * factor());
  QApplication::setFont(font);
  announce_(QString("%1 percent").arg(factor() * 100));
}

void Zoom::stepBy(int steps) {
  // A step below the first is a number beyond the last.
  const std::size_t step = step_ + static_cast<std::size_t>(steps);
  if (step < factors.size() && (steps < 0 || fits_(factors[step]))) {
    stepTo(step);
  } else {
    announce_(steps > 0 ? "Largest" : "Smallest");
  }
}

bool Zoom::eventFilter(QObject* watched, QEvent* event) {
  const auto* window = qobject_cast<QWindow*>(watched);
  if (window == nullptr || window->modality() != Qt::NonModal ||
      QApplication::activePopupWidget() != nullptr) {
    return false;
  }
  if (event->type() == QEvent::KeyPress) {
    const auto& key = dynamic_cast<QKeyEvent&>(*event);
    if (!isCtrl(key.modifiers())) return false;
    const auto* step = std::ranges::find(keySteps, key.key(), &std::pair<int, int>::first);
    if (key.key() == Qt::Key_0) {
      stepTo(start_);
    } else if (step != keySteps.end()) {
      stepBy(step->second);
    } else {
      return false;
    }
    return true;
  }
  if (event->type() == QEvent::Wheel) {
    const auto& wheel = dynamic_cast<QWheelEvent&>(*event);
    if (!isCtrl(wheel.modifiers())) return false;
    // Touchpads report less than a step at a time.
    wheel_ += wheel.angleDelta().y();
    constexpr int perStep = QWheelEvent::DefaultDeltasPerStep;
    for (; wheel_ >= perStep; wheel_ -= perStep) stepBy(1);
    for (; wheel_ <= -perStep; wheel_ += perStep) stepBy(-1);
    return true;
  }
  return false;
}

}  // namespace qt
