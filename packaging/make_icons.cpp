#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <iostream>
#include <map>

#include "app/pictures.h"
#include "qt/convert.h"

namespace {

bool isOfOneColour(const QImage& image, const QRect& rect) {
  if (!image.rect().contains(rect)) return false;
  QImage plain(rect.size(), image.format());
  plain.fill(image.pixelColor(rect.topLeft()));
  return image.copy(rect) == plain;
}

/// The rectangle of one colour that begins at the point, as wide as it can be, then as high.
QRect rectangleAt(const QImage& image, QPoint point) {
  QRect rect(point, QSize(1, 1));
  while (isOfOneColour(image, rect.adjusted(0, 0, 1, 0))) rect.setWidth(rect.width() + 1);
  while (isOfOneColour(image, rect.adjusted(0, 0, 0, 1))) rect.setHeight(rect.height() + 1);
  return rect;
}

void erase(QImage& image, const QRect& rect) {
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  painter.fillRect(rect, Qt::black);
}

/// The picture as one shape for each colour, made of rectangles.
QByteArray toSvg(QImage image) {
  std::map<QRgb, QString> shapes;
  for (int i = 0; i < image.width() * image.height(); ++i) {
    const QPoint point(i % image.width(), i / image.width());
    const QRgb colour = image.pixel(point);
    if (qAlpha(colour) == 0) continue;
    const QRect rect = rectangleAt(image, point);
    shapes[colour] += QString("M%1 %2h%3v%4h-%3z")
                          .arg(rect.x())
                          .arg(rect.y())
                          .arg(rect.width())
                          .arg(rect.height());
    erase(image, rect);
  }
  QString svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"32\" height=\"32\" viewBox=\"0 0 32 32\""
      " shape-rendering=\"crispEdges\">\n";
  for (const auto& [colour, shape] : shapes) {
    svg += QString("<path fill=\"%1\" d=\"%2\"/>\n").arg(QColor(colour).name(), shape);
  }
  return (svg + "</svg>\n").toLatin1();
}

/// Opens the file to write an icon into, in the place within the theme that its size has.
bool openIcon(QFile& file, const QDir& theme, const QString& size, const QString& suffix) {
  const QString folder = size + "/apps";
  file.setFileName(theme.filePath(folder + "/tessoro." + suffix));
  return theme.mkpath(folder) && file.open(QIODevice::WriteOnly);
}

bool makeIcons(const QDir& theme) {
  const platform::Picture& picture = tessoro::calculator;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QFile file;
    if (!openIcon(file, theme, QString("%1x%1").arg(size), "png") ||
        !qt::toQImage(picture, size).save(&file, "PNG")) {
      return false;
    }
  }
  QFile file;
  const QByteArray svg = toSvg(qt::toQImage(picture, platform::Picture::size));
  return openIcon(file, theme, "scalable", "svg") && file.write(svg) == svg.size();
}

}  // namespace

/// Makes the program's icons, from the picture that its windows have, in the theme's folder given
/// as the one argument.
int main(int argc, char* argv[]) {
  if (argc == 2 && makeIcons(QDir(argv[1]))) return 0;
  std::cerr << "The icons could not be made.\n";
  return 1;
}
