#include "qt/convert.h"

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace qt {
namespace {

QColor plainColour(platform::Colour colour) {
  const auto part = [&](unsigned shift) { return static_cast<int>(colour.value >> shift & 0xffU); };
  return {part(0), part(8), part(16)};
}

QRgb pixelColour(char pixel) {
  if (pixel == '.') return QColor(Qt::transparent).rgba();
  return plainColour(platform::palette[std::string_view("0123456789ABCDEF").find(pixel)]).rgb();
}

/// Returns the relative luminance of the colour, 0 to 1, plus 0.05 for light reflected by the
/// screen.
double brightness(const QColor& colour) {
  const auto linear = [](int part) {
    return part <= 10 ? part / 255.0 / 12.92 : std::pow((part / 255.0 + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) +
         0.0722 * linear(colour.blue()) + 0.05;
}

/// Returns the contrast ratio of two colours, from 1 for the same to 21 for black and white.
double contrast(const QColor& one, const QColor& other) {
  const auto [darker, brighter] = std::minmax({brightness(one), brightness(other)});
  return brighter / darker;
}

/// Returns the theme's colour if its contrast to the face is at least `minimum`. Otherwise goes
/// from the face to each of `ends` in turn and returns the first shade with that contrast.
QColor contrastingShade(const QColor& themeColour, const QColor& face, double minimum,
                        std::initializer_list<QColor> ends) {
  if (contrast(themeColour, face) >= minimum) return themeColour;
  for (const QColor& end : ends) {
    for (int step = 1; step <= 64; ++step) {
      const auto part = [&](int from, int to) { return from + (to - from) * step / 64; };
      const QColor shade(part(face.red(), end.red()), part(face.green(), end.green()),
                         part(face.blue(), end.blue()));
      if (contrast(shade, face) >= minimum) return shade;
    }
  }
  return themeColour;
}

}  // namespace

QPalette boardPalette(QPalette palette) {
  // The contrasts in Qt's own style: 1.15 for the highlight, 2.29 for the shadow.
  static const QColor defaultFace(239, 239, 239);
  static const double minimumHighlight = contrast(Qt::white, defaultFace);
  static const double minimumShadow = contrast(QColor(159, 159, 159), defaultFace);
  palette.setCurrentColorGroup(QPalette::Active);
  const QColor face = palette.color(QPalette::Button);
  const QColor shadow =
      contrastingShade(palette.color(QPalette::Dark), face, minimumShadow, {Qt::black, Qt::white});
  // Nothing is much darker than a dark face. So its shadow is lighter than the face, and its
  // highlight lighter still: the light seems to come from the top left, as in light themes.
  const bool isLighter = brightness(shadow) > brightness(face);
  const QColor highlight =
      contrastingShade(palette.color(QPalette::Light), face,
                       minimumHighlight * (isLighter ? minimumShadow : 1), {Qt::white, Qt::black});
  palette.setColor(QPalette::Light, highlight);
  palette.setColor(QPalette::Dark, shadow);
  return palette;
}

QColor toQColor(platform::Colour colour, const QPalette& palette) {
  if (colour == platform::windowText) return palette.color(QPalette::WindowText);
  if (colour == platform::buttonFace) return palette.color(QPalette::Button);
  if (colour == platform::highlight3D) return palette.color(QPalette::Light);
  if (colour == platform::shadow3D) return palette.color(QPalette::Dark);
  return plainColour(colour);
}

QFont toQFont(const platform::Font& font, double scale, double logicalDpi) {
  QFont result(toQString(font.name));
  result.setPointSizeF(font.points * scale * 1440 / unzoomedTwipsPerPixel / logicalDpi);
  result.setBold(font.bold);
  return result;
}

QImage toQImage(const platform::Picture& picture, int size) {
  constexpr int ownSize = platform::Picture::size;
  QImage image(ownSize, ownSize, QImage::Format_ARGB32);
  for (int y = 0; y < ownSize; ++y) {
    for (int x = 0; x < ownSize; ++x) image.setPixel(x, y, pixelColour(picture.rows[y][x]));
  }
  const int larger = (size + ownSize - 1) / ownSize * ownSize;
  return image.scaled(larger, larger)
      .scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QIcon toQIcon(const platform::Picture& picture) {
  const QImage image = toQImage(picture, platform::Picture::size);
  QIcon icon;
  for (const int times : {1, 2, 4}) {
    icon.addPixmap(QPixmap::fromImage(image.scaled(image.size() * times)));
  }
  return icon;
}

void substituteFonts() {
  QFont::insertSubstitution("Courier", "Liberation Mono");
  QFont::insertSubstitution("MS Sans Serif", QApplication::font().family());
}

}  // namespace qt
