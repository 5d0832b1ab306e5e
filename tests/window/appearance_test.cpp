#include <set>

#include "app/about_form.h"
#include "picture.h"

namespace tessoro::test {

/// These run again at each scale factor, as set by the environment.
struct AppearanceTest : PictureTest {
  /// The client area in pixels of the screen.
  QImage picture() const {
    QImage image = view.grab().toImage();
    image.setDevicePixelRatio(1);
    return image;
  }
};

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

/// The greatest difference in blue, 0 to 255, between two pixels of the image.
static int contrastIn(const QImage& image) {
  std::set<int> levels;
  for (int i = 0; i < image.width() * image.height(); ++i) {
    levels.insert(qBlue(image.pixel(i % image.width(), i / image.width())));
  }
  return *levels.rbegin() - *levels.begin();
}

TEST_F(AppearanceTest, TextIsReadableInLightAndDark) {
  click(cell(17));
  game.form.Solveit.Visible = true;  // disabled, and in front of the other
  settle();
  std::vector<platform::Control*> texts{&game.form.RightMess, &game.form.Solveit};
  for (Cell& it : game.form.board.GridDisp) {
    if (it.Visible() && !it.caption().empty()) texts.push_back(&it);
  }
  for (const QPalette& theme : {QApplication::palette(), QPalette(QColor(53, 53, 53))}) {
    window.setPalette(theme);
    const QImage image = picture();
    for (const platform::Control* text : texts) {
      const QPointF middle = QPointF(middleOf(*text)) * view.devicePixelRatioF();
      const QRect inside(middle.toPoint() - QPoint(9, 6), QSize(18, 12));
      EXPECT_GE(contrastIn(image.copy(inside)), 100) << text->accessible.name();
    }
  }
}

}  // namespace tessoro::test
