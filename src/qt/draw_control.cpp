#include "qt/draw_control.h"

#include <algorithm>
#include <cmath>

#include "qt/convert.h"

namespace qt {
namespace {

using platform::CellPane;
using platform::Frame;
using platform::Label;
using platform::PictureBox;

void fill(const Canvas& canvas, const QRect& rect, platform::Colour colour) {
  canvas.painter.fillRect(rect, toQColor(colour, canvas.palette));
}

/// Returns the width of a border line: whole pixels, at least one.
int lineWidth(const Canvas& canvas) {
  return std::max(1, static_cast<int>(canvas.scale));
}

void drawEdges(const Canvas& canvas, const QRect& rect, int line, platform::Colour top,
               platform::Colour left, platform::Colour right, platform::Colour bottom) {
  fill(canvas, {rect.left(), rect.top(), rect.width(), line}, top);
  fill(canvas, {rect.left(), rect.top(), line, rect.height()}, left);
  fill(canvas, {rect.right() - line + 1, rect.top(), line, rect.height()}, right);
  fill(canvas, {rect.left(), rect.bottom() - line + 1, rect.width(), line}, bottom);
}

void drawText(const Canvas& canvas, const std::string& text, const platform::Font& font,
              const QColor& colour) {
  canvas.painter.setFont(toQFont(font, canvas.scale, canvas.logicalDpi));
  canvas.painter.setPen(colour);
  canvas.painter.drawText(canvas.rect, Qt::AlignCenter, toQString(text));
}

/// Returns the text colour, faded two fifths towards the background: usual colours keep a contrast
/// of 4.5 to 1. Themes fade the text of disabled buttons until it is hard to read.
QColor greyed(const Look& look, const QPalette& palette) {
  const QColor text = toQColor(look.forecolor, palette);
  const QColor back = toQColor(look.backcolor, palette);
  const auto faded = [](int from, int to) { return (from * 3 + to * 2) / 5; };
  return {faded(text.red(), back.red()), faded(text.green(), back.green()),
          faded(text.blue(), back.blue())};
}

void draw(const CellPane& cell, const Look& look, const Canvas& canvas) {
  fill(canvas, canvas.rect, look.backcolor);
  drawEdges(canvas, canvas.rect, lineWidth(canvas), cell.bordertop, cell.borderleft,
            cell.borderright, cell.borderbottom);
  drawText(canvas, look.text, {cell.font, cell.fontsize, cell.fontbold},
           look.greyed ? greyed(look, canvas.palette) : toQColor(look.forecolor, canvas.palette));
}

void draw(const Label& label, const Look& look, const Canvas& canvas) {
  fill(canvas, canvas.rect, look.backcolor);
  drawText(canvas, look.text, label.font, toQColor(look.forecolor, canvas.palette));
}

void draw(const PictureBox& box, const Look& /*look*/, const Canvas& canvas) {
  fill(canvas, canvas.rect, platform::buttonFace);
  if (box.picture == nullptr) return;
  const int size = static_cast<int>(std::lround(platform::Picture::size * canvas.scale));
  QRect place(0, 0, size, size);
  place.moveCenter(canvas.rect.center());
  canvas.painter.drawImage(place, toQImage(*box.picture, size));
}

void draw(const Frame& /*frame*/, const Look& /*look*/, const Canvas& canvas) {
  using platform::highlight3D;
  using platform::shadow3D;
  const int line = lineWidth(canvas);
  fill(canvas, canvas.rect, platform::buttonFace);
  drawEdges(canvas, canvas.rect.adjusted(line, line, 0, 0), line, highlight3D, highlight3D,
            highlight3D, highlight3D);
  drawEdges(canvas, canvas.rect.adjusted(0, 0, -line, -line), line, shadow3D, shadow3D, shadow3D,
            shadow3D);
}

Look look(const CellPane& cell) {
  return {.visible = cell.Visible(),
          .greyed = cell.isButton() && !cell.enabled(),
          .text = cell.caption(),
          .backcolor = cell.backcolor(),
          .forecolor = cell.forecolor()};
}

Look look(const Label& label) {
  return {.visible = label.Visible(),
          .text = label.caption(),
          .backcolor = label.backcolor,
          .forecolor = label.forecolor};
}

Look look(const platform::Control& control) {
  return {.visible = control.Visible()};
}

}  // namespace

void drawControl(const DrawnControl& control, const Look& look, const Canvas& canvas) {
  std::visit([&](const auto* it) { draw(*it, look, canvas); }, control);
}

/// The ring has bright lines between dark ones, because one of the two stands out on any colour.
void drawRing(const Canvas& canvas) {
  constexpr platform::Colour dark = platform::palette[0];
  constexpr platform::Colour bright = platform::palette[14];
  const int line = std::max(1, qRound(canvas.scale));
  QRect rect = canvas.rect;
  for (const platform::Colour colour : {dark, bright, bright, dark}) {
    drawEdges(canvas, rect, line, colour, colour, colour, colour);
    rect.adjust(line, line, -line, -line);
  }
}

Look lookOf(const DrawnControl& control) {
  return std::visit([](const auto* it) { return look(*it); }, control);
}

}  // namespace qt
