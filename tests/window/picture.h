#pragma once

#include <cmath>

#include "window_fixture.h"

namespace tessoro::test {

/// The window by what is on its screen, and by what its controls say should be there.
struct PictureTest : WindowTest {
  double scale = view.devicePixelRatioF();

  /// A rectangle of the client area in pixels of the screen.
  QRect pixels(const QRect& it) const {
    return {it.topLeft() * scale, (it.bottomRight() + QPoint(1, 1)) * scale - QPoint(1, 1)};
  }
  /// The client area as it has been painted, bit by bit, on the screen.
  QImage screen(const QWidget& client) const {
    QEvent now(QEvent::UpdateRequest);  // which the toolkit would send some milliseconds later
    QApplication::sendEvent(client.window(), &now);
    const auto& all = dynamic_cast<QImage&>(*client.backingStore()->paintDevice());
    const QPoint origin = client.mapTo(client.window(), QPoint()) * scale;
    QImage image = all.copy({origin, QPoint(all.width(), all.height()) - QPoint(1, 1)});
    image.setDevicePixelRatio(1);
    return image;
  }
  /// Where the screen first differs from what the controls say, with or without a ring around the
  /// focus, in device-independent pixels; empty if it does not.
  QString fault(bool ring) { return fault(game.form, view, ring); }
  QString fault(const platform::Form& form, const QWidget& client, bool ring) {
    shown_ = screen(client);
    QImage expected = shown_;
    QPainter painter(&expected);
    painter.fillRect(shown_.rect(), colour(platform::buttonFace));
    for (const auto& it : form.controls) drawAt({}, it, painter);
    const int line = qRound(scale);
    QRect rect = ring ? pixels(QApplication::focusWidget()->geometry()) : QRect();
    for (const QColor it : {Qt::black, Qt::yellow, Qt::yellow, Qt::black}) {
      if (ring) outline(painter, rect, line, it);
      rect -= QMargins(line, line, line, line);
    }
    if (shown_ == expected) return "";
    QPoint at;
    for (int i = 0; shown_.pixel(at) == expected.pixel(at); ++i)
      at = {i % shown_.width(), i / shown_.width()};
    return QDebug::toString(at / scale);
  }

 private:
  QImage shown_;

  static QRect rectOf(const platform::Place& it) {
    return {QPoint(it.left, it.top) / 15, QSize(it.width, it.height) / 15};
  }
  QColor colour(platform::Colour it) const {
    constexpr std::array roles{QPalette::WindowText, QPalette::Button, QPalette::Light,
                               QPalette::Dark};
    if (it.value >> 31 != 0) return view.palette().color(QPalette::Active, roles[it.value & 3]);
    const auto part = [&](unsigned shift) { return static_cast<int>(it.value >> shift & 255); };
    return {part(0), part(8), part(16)};
  }
  static void outline(QPainter& painter, const QRect& rect, int width, const QColor& colour) {
    const QRect inside = rect - QMargins(width, width, width, width);
    for (const QRect& edge : QRegion(rect) - inside) painter.fillRect(edge, colour);
  }
  void write(QPainter& painter, const QRect& rect, const std::string& text, platform::Font font,
             const QColor& ink) const {
    QFont own(font.name == "Arial" ? "Liberation Sans" : QApplication::font().family());
    own.setPointSizeF(font.points * scale * 96 / view.logicalDpiY());
    own.setBold(font.bold);
    painter.setFont(own);
    painter.setPen(ink);
    painter.drawText(rect, Qt::AlignCenter, QString::fromStdString(text));
  }
  void drawAt(QPoint start, const platform::ControlRef& control, QPainter& painter) const {
    const int line = static_cast<int>(scale);
    const auto drawOne = [&](const auto& it) {
      if (!it.Visible()) return;
      using Kind = std::remove_cvref_t<decltype(it)>;
      const QRect place = rectOf(it.place).translated(start);
      const QRect rect = pixels(place);
      if constexpr (std::is_same_v<Kind, Cell>) {
        painter.fillRect(rect, colour(it.borderbottom));
        painter.fillRect(rect.adjusted(0, 0, 0, -line), colour(it.borderright));
        painter.fillRect(rect.adjusted(0, 0, -line, -line), colour(it.borderleft));
        painter.fillRect(rect.adjusted(line, 0, -line, -line), colour(it.bordertop));
        painter.fillRect(rect - QMargins(line, line, line, line), colour(it.backcolor()));
        QColor ink = colour(it.forecolor());
        if (it.isButton() && !it.enabled()) {  // two fifths of the way to the background
          const QColor back = colour(it.backcolor());
          ink = {(ink.red() * 3 + back.red() * 2) / 5, (ink.green() * 3 + back.green() * 2) / 5,
                 (ink.blue() * 3 + back.blue() * 2) / 5};
        }
        write(painter, rect, it.caption(), {it.font, it.fontsize, it.fontbold}, ink);
      } else if constexpr (std::is_same_v<Kind, platform::Label>) {
        painter.fillRect(rect, colour(it.backcolor));
        write(painter, rect, it.caption(), it.font, colour(it.forecolor));
      } else if constexpr (std::is_same_v<Kind, platform::PictureBox>) {
        painter.fillRect(rect, colour(platform::buttonFace));
        QImage face(32, 32, QImage::Format_ARGB32);
        bool opaque = false;
        face.fill(Qt::transparent);
        for (int i = 0; i < 32 * 32; ++i) {
          const uint index = QString(it.picture->rows[i / 32][i % 32]).toUInt(&opaque, 16);
          if (opaque) face.setPixelColor(i % 32, i / 32, colour(platform::palette[index]));
        }
        const int larger = 32 * static_cast<int>(std::ceil(scale));
        QRect middle(QPoint(), QSize(32, 32) * scale);
        middle.moveCenter(rect.center());
        painter.drawImage(
            middle, face.scaled(larger, larger)
                        .scaled(middle.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
      } else if constexpr (std::is_same_v<Kind, platform::Frame>) {
        outline(painter, rect.adjusted(line, line, 0, 0), line, colour(platform::highlight3D));
        outline(painter, rect.adjusted(0, 0, -line, -line), line, colour(platform::shadow3D));
        for (const auto& inner : it.controls) drawAt(place.topLeft(), inner, painter);
      } else {  // what the toolkit draws; text stands in the middle of an empty rim
        constexpr int rim = std::is_same_v<Kind, platform::TextBox> ? 12 : 0;
        const QRect own = rect - QMargins(rim, rim, rim, rim) * scale;
        painter.drawImage(own, shown_, own);
      }
    };
    std::visit([&](const auto* it) { drawOne(*it); }, control);
  }
};

}  // namespace tessoro::test
