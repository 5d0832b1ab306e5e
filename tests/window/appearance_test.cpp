#include <set>

#include "window_fixture.h"

namespace tessoro::test {

/// These run again at each scale factor, as set by the environment.
struct AppearanceTest : WindowTest {
  /// The client area in pixels of the screen.
  QImage picture() const {
    QImage image = view.grab().toImage();
    image.setDevicePixelRatio(1);
    return image;
  }
};

TEST_F(AppearanceTest, EveryCellHasItsPlaceItsColourAndAWholeBorder) {
  const double scale = view.devicePixelRatioF();
  const int line = static_cast<int>(scale);
  const QMargins border(line, line, line, line);
  const QImage image = picture();
  QImage expected = image;
  QPainter painter(&expected);
  const auto outline = [&](const QRect& rect, const QBrush& colour) {
    for (const QRect& edge : QRegion(rect) - (rect - border)) painter.fillRect(edge, colour);
  };
  const QRect frame(QPoint(4, 4) * scale, QPoint(297, 305) * scale - QPoint(1, 1));
  outline(frame.adjusted(line, line, 0, 0), view.palette().light());
  outline(frame.adjusted(0, 0, -line, -line), view.palette().dark());
  for (int index = 1; index <= gridCells; ++index) {
    const QPoint start = middleOf(cell(index)) - QPoint(15, 15);
    const QRect all(start * scale, (start + QPoint(30, 30)) * scale - QPoint(1, 1));
    const bool isCorner = rowOf(index) % 6 == 1 && columnOf(index) % 6 == 1;
    painter.fillRect(all, view.palette().dark());
    painter.fillRect(all.adjusted(0, 0, -line, -line), view.palette().light());
    painter.fillRect(all - border, isCorner ? QColor(0, 128, 0) : view.palette().button());
    painter.drawImage(all - 6 * border, image, all - 6 * border);
    if (roleOf(index) == CellRole::hole) painter.fillRect(all - border, Qt::black);
  }
  painter.end();
  EXPECT_TRUE(image == expected);
  choose("Set a Puzzle for computer to solve");
  EXPECT_EQ(view.grab().toImage().pixelColor(QPoint(49, 59) * scale), QColor(128, 0, 0));
}

TEST_F(AppearanceTest, TheKeysBringARingAndTheMouseTakesItAway) {
  const double scale = view.devicePixelRatioF();
  const int line = qRound(scale);
  const QImage plain = picture();
  QTest::keyClick(window.windowHandle(), Qt::Key_Down);
  QImage ringed = plain;
  QPainter painter(&ringed);
  QRect rect(QPoint(46, 86) * scale, QPoint(76, 116) * scale - QPoint(1, 1));
  for (const QColor colour : {Qt::black, Qt::yellow, Qt::yellow, Qt::black}) {
    const QRect inside = rect - QMargins(line, line, line, line);
    for (const QRect& edge : QRegion(rect) - inside) painter.fillRect(edge, colour);
    rect = inside;
  }
  painter.end();
  EXPECT_TRUE(picture() == ringed) << "over its neighbour below too, which lies in front";
  for (const int silent : {1, 9}) {
    settle();
    const long drawn = view.drawnControls();
    click(cell(silent));
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.drawnControls() > drawn; })) << silent;
    EXPECT_TRUE(picture() == plain) << silent;
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);  // any key brings it back
  }
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
  const double scale = view.devicePixelRatioF();
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
    const QImage image = picture();
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
