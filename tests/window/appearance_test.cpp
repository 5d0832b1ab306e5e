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

/// What colours have a contrast by: nearly the relative luminance, and 0.05.
static double brightness(const QColor& colour) {
  return 0.2126 * std::pow(colour.redF(), 2.2) + 0.7152 * std::pow(colour.greenF(), 2.2) +
         0.0722 * std::pow(colour.blueF(), 2.2) + 0.05;
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
  // Themes' button face, highlight and shadow, and whether the shadow stays as it is.
  for (const auto& [face, highlight, shadow, stays] :
       std::vector<std::tuple<QRgb, QRgb, QRgb, bool>>{{0xefefef, 0xffffff, 0x9f9f9f, true},
                                                       {0xfaf9f8, 0xffffff, 0xdbdada, false},
                                                       {0x323232, 0x3e3e3e, 0x2c2c2c, false},
                                                       {0xfcfcfc, 0xffffff, 0x888e93, true}}) {
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
    // The button's upper and lower border.
    const QColor top = image.pixel(QPoint(147, 272) * scale);
    const QColor bottom = image.pixel(QPoint(147, 293) * scale - QPoint(0, 1));
    for (const auto& [border, least] : {std::pair(top, 1.14), {bottom, 2.26}}) {
      const double contrast = brightness(border) / brightness(face);
      EXPECT_GE(std::max(contrast, 1 / contrast), least) << border.name().toStdString();
    }
    EXPECT_GT(brightness(top), brightness(bottom)) << face;
    EXPECT_EQ(bottom == QColor(shadow), stays) << face;
  }
}

}  // namespace tessoro::test
