#include "picture.h"

namespace tessoro::test {

/// ctest runs these and the random player again at other scale factors.
using AppearanceTest = PictureTest;

TEST_F(AppearanceTest, ControlsLookAsTheyDescribeThemselves) {
  click(cell(17));
  cell(17).borderleft = platform::palette[9];
  cell(17).borderright = platform::palette[12];
  game.form.Solveit.Visible = true;  // disabled, in front of "New Puzzle"
  settle();
  EXPECT_EQ(difference(), "");
}

TEST_F(AppearanceTest, FacesLieOverTheTargets) {
  for (int k = 1; k <= 4; ++k) {
    const QPoint target = rectOf(cell(OuterCornerCells[k])).center();
    EXPECT_TRUE(rectOf(game.form.board.NPict[k]).contains(target)) << k;
  }
}

TEST_F(AppearanceTest, NothingBesideTheGridCoversACell) {
  for (int i = 1; i <= gridCells; ++i) {
    const QRect rect = rectOf(cell(i)) - QMargins(2, 2, 2, 2);  // borders overlap
    for (const int target : {50, 51, 52, 53}) EXPECT_FALSE(rect.intersects(rectOf(cell(target))));
    EXPECT_FALSE(rect.intersects(rectOf(game.form.RightMess)));
  }
}

TEST_F(AppearanceTest, BordersStandOutInAThemeWithFaintOnes) {
  QPalette theme{QColor(0x9390ec)};
  theme.setColor(QPalette::Light, 0x9592ee);
  theme.setColor(QPalette::Dark, 0x8582de);
  window.setPalette(theme);
  const QPoint top(147, rectOf(game.form.NewPuz).top());
  EXPECT_EQ(screen(view).pixelColor(top * view.devicePixelRatioF()).name(), "#a29fee");
}

}  // namespace tessoro::test
