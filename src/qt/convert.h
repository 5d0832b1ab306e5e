#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QString>
#include <string_view>

#include "platform/control.h"

/// The toolkit's equivalents of the texts, colours, fonts and pictures of controls.
namespace qt {

/// Twips to a device-independent pixel.
constexpr double twipsPerPixel = 15;

/// The text, which is UTF-8.
inline QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The colour; those of the theme are taken from the palette.
QColor toQColor(platform::Colour colour, const QPalette& palette);

/// The palette as the board is drawn with it: its active colours, whether or not a box is open over
/// the window, and a highlight and a shadow that stand out from the button face. Themes that draw
/// no such borders themselves have colours for them that can hardly be told from it.
QPalette boardPalette(QPalette palette);

/// The font at the given number of device pixels to a device-independent one. `logicalDpi` is what
/// the toolkit takes a point to be a 72nd of; text keeps its proportion to the twips whatever that
/// is.
QFont toQFont(const platform::Font& font, double scale, double logicalDpi);

/// The picture at `size` by `size` pixels: sharp at whole multiples of its own size, smooth at
/// others.
QImage toQImage(const platform::Picture& picture, int size);

/// The picture as the icon of a window, in whole multiples of its own size, which are sharp.
QIcon toQIcon(const platform::Picture& picture);

/// Names the stand-ins of the typefaces that a machine may not have.
void substituteFonts();

}  // namespace qt
