#include <algorithm>
#include <cmath>

#include "window_fixture.h"

namespace tessoro::test {
namespace {

/// These run again at each scale factor, as set by the environment.
class AppearanceTest : public WindowTest {
 protected:
  /// The edge, in pixels of the screen, that lies at a place in twips of the frame.
  int edge(int twips) const {
    return static_cast<int>(std::lround((twips + 60) / 15.0 * window->devicePixelRatioF()));
  }
};

TEST_F(AppearanceTest, EveryBorderIsWholeAndCellsMeetAsTheirPlacesSay) {
  const QImage image = picture();
  const QRgb light = window->palette().color(QPalette::Light).rgb();
  const QRgb dark = window->palette().color(QPalette::Dark).rgb();
  const int line = static_cast<int>(window->devicePixelRatioF());
  for (int index = 1; index <= 49; ++index) {
    const platform::Place place = placeOf(index);
    const QPoint start(edge(place.left), edge(place.top));
    const QPoint end(edge(place.left + place.width), edge(place.top + place.height));
    const QPoint middle = (start + end) / 2;
    // A cell lies over those before it: its left and top borders always show, in full width.
    for (int at = 0; at < line; ++at) {
      ASSERT_EQ(image.pixel(start.x() + at, middle.y()), light) << index;
      ASSERT_EQ(image.pixel(middle.x(), start.y() + at), light) << index;
    }
    ASSERT_NE(image.pixel(start.x() + line, middle.y()), light) << index;
    if (columnOf(index) == 7) {
      ASSERT_EQ(image.pixel(end.x() - 1, middle.y()), dark) << index;
      ASSERT_NE(image.pixel(end.x() - 1 - line, middle.y()), dark) << index;
    }
    if (rowOf(index) == 7) {
      ASSERT_EQ(image.pixel(middle.x(), end.y() - 1), dark) << index;
    }
  }
}

double luminance(const QColor& colour) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
  return (light + 0.05) / (dark + 0.05);
}

/// The greatest contrast that a pixel of the control has to its background.
double contrastIn(const QImage& image, const QRect& control) {
  const QColor back(image.pixel(control.topLeft() + QPoint(1, 1) * (control.width() / 5)));
  double greatest = 1;
  for (int y = control.top() + 4; y < control.bottom() - 4; ++y) {
    for (int x = control.left() + 4; x < control.right() - 4; ++x) {
      greatest = std::max(greatest, contrast(image.pixel(x, y), back));
    }
  }
  return greatest;
}

TEST_F(AppearanceTest, TextIsReadableInLightAndDark) {
  QPalette dark;
  dark.setColor(QPalette::WindowText, QColor(238, 238, 236));
  dark.setColor(QPalette::Button, QColor(53, 53, 53));
  for (const QPalette& theme : {QApplication::palette(), dark}) {
    window->setPalette(theme);
    click(cell(17));
    game.form.Solveit.Visible = true;  // disabled, and in front of the other
    const QImage image = picture();
    const double scale = window->devicePixelRatioF();
    const auto rectOf = [&](const platform::Control& control) {
      const QPointF middle = QPointF(middleOf(control)) * scale;
      const int half = std::min(control.place.width, control.place.height) / 2 / 15;
      QRect rect(0, 0, static_cast<int>(2 * half * scale), static_cast<int>(2 * half * scale));
      rect.moveCenter(middle.toPoint());
      return rect;
    };
    for (const int index : {1, 7, 17, 6, 21, 51}) {
      EXPECT_GE(contrastIn(image, rectOf(cell(index))), 4.5) << index;
    }
    EXPECT_GE(contrastIn(image, rectOf(game.form.RightMess)), 4.5);
    EXPECT_GE(contrastIn(image, rectOf(game.form.Solveit)), 4.5);
  }
}

}  // namespace
}  // namespace tessoro::test
