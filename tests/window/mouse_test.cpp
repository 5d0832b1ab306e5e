#include "picture.h"

namespace tessoro::test {

using MouseTest = PictureTest;

TEST_F(MouseTest, ClickOnNewPuzzleMakesOne) {
  click(game.form.NewPuz);
  EXPECT_EQ(window.windowTitle(), "Puzzle Number  2");
}

TEST_F(MouseTest, ChangedCellRedrawsLittleElse) {
  repaint(&window);
  const long before = view.drawnControls();
  cell(17).caption = "5";
  settle();
  repaint(&window);
  EXPECT_EQ(view.drawnControls() - before, 3) << "the frame, the cell and the one that it overlaps";
}

}  // namespace tessoro::test
