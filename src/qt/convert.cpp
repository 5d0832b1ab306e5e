#include "qt/convert.h"

#include <QApplication>
#include <charconv>

namespace qt {
namespace {

QColor plainColour(platform::Colour colour) {
  const auto part = [&](unsigned shift) { return static_cast<int>(colour.value >> shift & 0xffU); };
  return {part(0), part(8), part(16)};
}

QRgb pixelColour(char pixel) {
  if (pixel == '.') return qRgba(0, 0, 0, 0);
  unsigned index = 0;
  std::from_chars(&pixel, &pixel + 1, index, 16);
  return plainColour(platform::palette[index]).rgb();
}

}  // namespace

QColor toQColor(platform::Colour colour, const QPalette& palette) {
  if (colour == platform::windowText) return palette.color(QPalette::WindowText);
  if (colour == platform::buttonFace) return palette.color(QPalette::Button);
  if (colour == platform::highlight3D) return palette.color(QPalette::Light);
  if (colour == platform::shadow3D) return palette.color(QPalette::Dark);
  return plainColour(colour);
}

QFont toQFont(const platform::Font& font, double scale, double logicalDpi) {
  QFont result(toQString(font.name));
  result.setPointSizeF(font.points * scale * 1440 / twipsPerPixel / logicalDpi);
  result.setBold(font.bold);
  return result;
}

QImage toQImage(const platform::Picture& picture, int size) {
  constexpr int own = platform::Picture::size;
  QImage image(own, own, QImage::Format_ARGB32);
  for (int y = 0; y < own; ++y) {
    for (int x = 0; x < own; ++x) image.setPixel(x, y, pixelColour(picture.rows[y][x]));
  }
  if (size % own == 0) return image.scaled(size, size);
  const int larger = (size / own + 1) * own;
  return image.scaled(larger, larger)
      .scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QIcon toQIcon(const platform::Picture& picture) {
  QIcon icon;
  for (const int size : {32, 64, 128}) {
    icon.addPixmap(QPixmap::fromImage(toQImage(picture, size)));
  }
  return icon;
}

void substituteFonts() {
  QFont::insertSubstitution("Arial", "Liberation Sans");
  QFont::insertSubstitution("Courier", "Liberation Mono");
  QFont::insertSubstitution("MS Sans Serif", QApplication::font().family());
}

}  // namespace qt
