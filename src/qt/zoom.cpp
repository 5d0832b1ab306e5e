#include "qt/zoom.h"

#include <QApplication>
#include <QFontInfo>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>
#include <QWindow>
#include <array>

namespace qt {
namespace {

constexpr std::array factors{1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0};
constexpr int indexOfTwo = 3;
constexpr int largeScreen = 1800;  // device-independent pixels of height

}  // namespace

Zoom::Zoom(std::function<bool(double)> fits, std::function<void(const QString&)> announce)
    : fits_(std::move(fits)),
      announce_(std::move(announce)),
      defaultFont_(QApplication::font()),
      start_(QGuiApplication::primaryScreen()->availableSize().height() < largeScreen
                 ? 0
                 : indexOfTwo) {
  if (start_ != 0) stepTo(start_);
}

double Zoom::factor() const {
  return factors[step_];
}

void Zoom::stepTo(int step) {
  step_ = step;
  QFont font = defaultFont_;
  if (step != 0) font.setPointSizeF(QFontInfo(font).pointSizeF() * factor());
  QApplication::setFont(font);
  announce_(QString("%1 percent").arg(factor() * 100));
}

void Zoom::stepBy(int steps) {
  const int step = step_ + steps;
  if (step >= 0 && step < std::ssize(factors) && (steps < 0 || fits_(factors[step]))) {
    stepTo(step);
  } else {
    announce_(steps > 0 ? "Largest" : "Smallest");
  }
}

void Zoom::stepToStart() {
  int step = start_;
  while (step > 0 && !fits_(factors[step])) --step;
  stepTo(step);
}

bool Zoom::eventFilter(QObject* watched, QEvent* event) {
  const auto* window = qobject_cast<QWindow*>(watched);
  const auto* input = dynamic_cast<QInputEvent*>(event);
  if (window == nullptr || window->modality() != Qt::NonModal || input == nullptr ||
      (input->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier ||
      QApplication::activePopupWidget() != nullptr) {
    return false;
  }
  if (event->type() == QEvent::KeyPress) {
    const int key = dynamic_cast<QKeyEvent*>(event)->key();
    // "=" shares its key with "+" on many keyboards.
    const bool isPlus = key == Qt::Key_Plus || key == Qt::Key_Equal;
    if (key == Qt::Key_0) stepToStart();
    if (isPlus || key == Qt::Key_Minus) stepBy(isPlus ? 1 : -1);
    return isPlus || key == Qt::Key_Minus || key == Qt::Key_0;
  }
  if (event->type() != QEvent::Wheel) return false;
  // Touchpads report less than a step at a time.
  wheel_ += dynamic_cast<QWheelEvent*>(event)->angleDelta().y();
  constexpr int perStep = QWheelEvent::DefaultDeltasPerStep;
  for (; wheel_ >= perStep; wheel_ -= perStep) stepBy(1);
  for (; wheel_ <= -perStep; wheel_ += perStep) stepBy(-1);
  return true;
}

}  // namespace qt
