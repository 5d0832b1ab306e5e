#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QString>
#include <string_view>

#include "platform/control.h"

/// Conversion of the controls' texts, colours, fonts and pictures to Qt's types.
namespace qt {

/// Twips per device-independent pixel, without zoom.
constexpr double unzoomedTwipsPerPixel = 15;

/// Converts a text in UTF-8.
inline QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Converts a colour. Colours of the theme come from the palette.
QColor toQColor(platform::Colour colour, const QPalette& palette);

/// Returns the palette for drawing the board. It has the active colours even while a box is open
/// over the window. Its highlight and shadow stand out from the button face. In themes that draw no
/// such borders, these two colours are often almost that of the face.
QPalette boardPalette(QPalette palette);

/// Converts a font, `scale` times as large. `logicalDpi` is the resolution that Qt uses for points;
/// text keeps its proportion to twips at any resolution.
QFont toQFont(const platform::Font& font, double scale, double logicalDpi);

/// Returns the picture at `size` by `size` pixels, sharp at whole multiples of its own size and
/// smooth at others.
QImage toQImage(const platform::Picture& picture, int size);

/// Returns the picture as an icon in whole multiples of its own size, which are sharp.
QIcon toQIcon(const platform::Picture& picture);

/// Registers substitutes for typefaces that a machine may lack.
void substituteFonts();

}  // namespace qt
