#include <set>

#include "app/about_form.h"
#include "picture.h"

namespace tessoro::test {

/// These run again at each scale factor, as set by the environment.
using AppearanceTest = PictureTest;

TEST_F(AppearanceTest, TheScreenShowsWhatTheControlsSay) {
  EXPECT_EQ(fault(false), "");
  onModal = [&](QWidget* box) {
    QImage image = box->grab().toImage();
    image.setDevicePixelRatio(1);
    QImage expected = image;
    draw(expected, AboutForm(), false);
    EXPECT_EQ(difference(image, expected), "");
    box->close();
  };
  choose("About");
}

/// What colours have a contrast by: the relative luminance, raised by 0.05.
static double brightness(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF()) + 0.05;
}

/// The greatest contrast of two pixels of the image.
static double contrastIn(const QImage& image) {
  std::set<double> levels;
  for (int i = 0; i < image.width() * image.height(); ++i) {
    levels.insert(brightness(image.pixel(i % image.width(), i / image.width())));
  }
  return *levels.rbegin() / *levels.begin();
}

TEST_F(AppearanceTest, TextAndBordersStandOutInEveryThemeAndWhileABoxIsOpen) {
  click(cell(17));
  game.form.Solveit.Visible = true;  // disabled, and in front of the other
  QWidget box;
  box.show();
  box.activateWindow();
  settle();
  EXPECT_FALSE(view.isActiveWindow());
  std::vector<platform::Control*> texts{&game.form.RightMess, &game.form.Solveit};
  for (Cell& it : game.form.board.GridDisp) {
    if (it.Visible() && !it.caption().empty()) texts.push_back(&it);
  }
  // Each with its button face, highlight and shadow.
  for (const auto& [face, highlight, shadow] :
       std::vector<std::array<QRgb, 3>>{{0xefefef, 0xffffff, 0x9f9f9f},
                                        {0xfaf9f8, 0xffffff, 0xdbdada},
                                        {0x323232, 0x3e3e3e, 0x2c2c2c},
                                        {0xfcfcfc, 0xffffff, 0x888e93}}) {
    QPalette theme{QColor(face)};
    theme.setColor(QPalette::Light, highlight);
    theme.setColor(QPalette::Dark, shadow);
    theme.setColor(QPalette::Inactive, QPalette::WindowText, face);
    window.setPalette(theme);
    const QImage image = screen();
    for (const platform::Control* text : texts) {
      const QPointF middle = QPointF(middleOf(*text)) * scale;
      const QRect inside(middle.toPoint() - QPoint(9, 6), QSize(18, 12));
      EXPECT_GE(contrastIn(image.copy(inside)), 4) << text->accessible.name();
    }
    // Of the button: above, at the left, at the right and below.
    const QList<QPoint> ends{QPoint(147, 272) * scale, QPoint(78, 282) * scale,
                             QPoint(217, 282) * scale - QPoint(1, 0),
                             QPoint(147, 293) * scale - QPoint(0, 1)};
    for (int i = 0; i < 4; ++i) {
      const double contrast = brightness(image.pixel(ends[i])) / brightness(face);
      EXPECT_GE(std::max(contrast, 1 / contrast), i < 2 ? 1.149 : 2.29) << face << " " << i;
    }
    EXPECT_GT(brightness(image.pixel(ends[0])), brightness(image.pixel(ends[3]))) << face;
    EXPECT_EQ(QColor(shadow) == image.pixel(ends[3]), face == 0xefefef || face == 0xfcfcfc);
  }
}

}  // namespace tessoro::test
