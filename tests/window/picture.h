#pragma once

#include <algorithm>
#include <cmath>

#include "window_fixture.h"

namespace tessoro::test {

/// The picture that the controls of a form describe, drawn independently of the code under test.
class Picture {
 public:
  /// `shown` is the screen's picture, `scale` its pixels per 15 twips.
  Picture(const QImage& shown, double scale, const QPalette& palette)
      : shown_(shown), expected_(shown), painter_(&expected_), scale_(scale), palette_(palette) {
    painter_.fillRect(shown.rect(), colour(platform::buttonFace));
  }

  void draw(const platform::Controls& controls, QPoint holder = {}) {
    const auto drawVisible = [&](const auto* control) {
      const platform::Place& it = control->place;
      const QRect place(holder + QPoint(it.left, it.top), QSize(it.width, it.height));
      if (control->Visible()) draw(*control, place, pixels(place));
    };
    for (const auto& control : controls) std::visit(drawVisible, control);
  }
  /// Draws a bright line between two dark ones, just inside the edges of a place in twips.
  void drawRing(const QRect& place) {
    QRect rect = pixels(place);
    const int line = qRound(scale_);
    for (const QColor it : {Qt::black, Qt::yellow, Qt::yellow, Qt::black}) {
      outline(rect, line, it);
      rect -= QMargins(line, line, line, line);
    }
  }
  /// Returns the first pixel that differs; empty if there is none.
  QString difference() const {
    // Repainting a part of a large letter blends its edges a little differently.
    const int tolerance = scale_ == 1 ? 0 : 40;
    for (int i = 0; i < shown_.width() * shown_.height(); ++i) {
      const QPoint at(i % shown_.width(), i / shown_.width());
      const QRgb is = shown_.pixel(at), described = expected_.pixel(at);
      if (std::max({std::abs(qRed(is) - qRed(described)), std::abs(qGreen(is) - qGreen(described)),
                    std::abs(qBlue(is) - qBlue(described))}) > tolerance)
        return QDebug::toString(at) + " is " + QColor(is).name() + ", not " +
               QColor(described).name();
    }
    return "";
  }

 private:
  QImage shown_;
  QImage expected_;
  QPainter painter_;
  double scale_;
  QPalette palette_;
  int border_ = static_cast<int>(scale_);

  QRect pixels(const QRect& twips) const {
    const auto edge = [this](int at) { return qRound(at / 15.0 * scale_); };
    const QPoint end(edge(twips.x() + twips.width()), edge(twips.y() + twips.height()));
    return {QPoint(edge(twips.x()), edge(twips.y())), end - QPoint(1, 1)};
  }
  QColor colour(platform::Colour it) const {
    constexpr std::array roles{QPalette::WindowText, QPalette::Button, QPalette::Light,
                               QPalette::Dark};
    if (it.value >> 31 != 0) return palette_.color(QPalette::Active, roles[it.value & 3]);
    return {qBlue(it.value), qGreen(it.value),
            qRed(it.value)};  // in a form's colour, red is the lowest byte
  }
  void outline(const QRect& rect, int width, const QColor& ink) {
    for (const QRect& edge : QRegion(rect) - (rect - QMargins(width, width, width, width)))
      painter_.fillRect(edge, ink);
  }
  void write(const QRect& rect, const std::string& text, const platform::Font& font, QColor ink) {
    QFont shownIn(font.name == "Arial" ? "Liberation Sans" : QApplication::font().family());
    const QScreen* screen = QGuiApplication::primaryScreen();
    shownIn.setPointSizeF(font.points * scale_ * 96 / screen->logicalDotsPerInchY());
    shownIn.setBold(font.bold);
    painter_.setFont(shownIn);
    painter_.setPen(ink);
    painter_.drawText(rect, Qt::AlignCenter, QString::fromStdString(text));
  }

  void draw(const Cell& cell, const QRect& /*place*/, const QRect& rect) {
    const int line = border_;
    painter_.fillRect(rect, colour(cell.borderbottom));
    painter_.fillRect(rect.adjusted(0, 0, 0, -line), colour(cell.borderright));
    painter_.fillRect(rect.adjusted(0, 0, -line, -line), colour(cell.borderleft));
    painter_.fillRect(rect.adjusted(line, 0, -line, -line), colour(cell.bordertop));
    const QColor back = colour(cell.backcolor());
    painter_.fillRect(rect.adjusted(line, line, -line, -line), back);
    QColor ink = colour(cell.forecolor());
    if (cell.isButton() && !cell.enabled())  // two fifths of the way to the background
      ink = {(ink.red() * 3 + back.red() * 2) / 5, (ink.green() * 3 + back.green() * 2) / 5,
             (ink.blue() * 3 + back.blue() * 2) / 5};
    write(rect, cell.caption(), {cell.font, cell.fontsize, cell.fontbold}, ink);
  }
  void draw(const platform::Label& label, const QRect& /*place*/, const QRect& rect) {
    painter_.fillRect(rect, colour(label.backcolor));
    write(rect, label.caption(), label.font, colour(label.forecolor));
  }
  void draw(const platform::PictureBox& box, const QRect& /*place*/, const QRect& rect) {
    painter_.fillRect(rect, colour(platform::buttonFace));
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int i = 0; i < 32 * 32; ++i) {
      bool opaque = false;
      const uint index = QString(box.picture->rows[i / 32][i % 32]).toUInt(&opaque, 16);
      if (opaque) image.setPixelColor(i % 32, i / 32, colour(platform::palette[index]));
    }
    const int larger = 32 * qCeil(scale_);
    QRect middle(QPoint(), QSize(32, 32) * scale_);
    middle.moveCenter(rect.center());
    image = image.scaled(larger, larger)
                .scaled(middle.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter_.drawImage(middle, image);
  }
  void draw(const platform::Frame& frame, const QRect& place, const QRect& rect) {
    const int line = border_;
    outline(rect.adjusted(line, line, 0, 0), line, colour(platform::highlight3D));
    outline(rect.adjusted(0, 0, -line, -line), line, colour(platform::shadow3D));
    draw(frame.controls, place.topLeft());
  }
  /// Text boxes and buttons are drawn by Qt, which stays within their places.
  void draw(const auto& /*control*/, const QRect& /*place*/, const QRect& rect) {
    painter_.drawImage(rect, shown_, rect);
  }
};

struct PictureTest : WindowTest {
  static void repaint(QWidget* window) {
    QEvent now(QEvent::UpdateRequest);
    QApplication::sendEvent(window, &now);
  }
  /// Repaints the client area and returns it in pixels of the screen.
  static QImage screen(const QWidget& client) {
    repaint(client.window());
    const auto& all = dynamic_cast<QImage&>(*client.backingStore()->paintDevice());
    const double scale = client.devicePixelRatioF();
    const QPoint origin = client.mapTo(client.window(), QPoint()) * scale;
    QImage image = all.copy(QRect(origin, client.size() * scale) & all.rect());
    image.setDevicePixelRatio(1);
    return image;
  }
  /// Returns the first pixel at which the screen differs from what the controls describe, with or
  /// without the focus ring around one of them; empty if there is none.
  QString difference(const platform::Form& form, const QWidget& client,
                     const platform::Control* ringed = nullptr) const {
    Picture picture(screen(client), client.devicePixelRatioF() * zoom(), client.palette());
    picture.draw(form.controls);
    if (ringed != nullptr) {
      const platform::Place& it = ringed->place;
      picture.drawRing({60 + it.left, 60 + it.top, it.width, it.height});
    }
    return picture.difference();
  }
  QString difference(const platform::Control* ringed = nullptr) const {
    return difference(game.form, view, ringed);
  }
};

}  // namespace tessoro::test
