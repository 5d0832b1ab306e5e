#include "picture.h"

namespace tessoro::test {

/// These run again at each scale factor, as set by the environment.
using AppearanceTest = PictureTest;

/// Borders are the theme's, or the nearest shades that stand out as much as the usual theme's.
TEST_F(AppearanceTest, BordersStandOutInEveryThemeAndTextWhileABoxIsOpen) {
  click(cell(17));
  game.form.Solveit.Visible = true;  // disabled, and in front of the other
  QWidget box;
  box.show();
  box.activateWindow();
  settle();
  EXPECT_FALSE(view.isActiveWindow());
  // Themes' button face, highlight and shadow, and a button's upper and lower border with them.
  for (const auto& [face, highlight, shadow, top, bottom] :
       std::vector<std::array<QRgb, 5>>{{0xfaf9f8, 0xffffff, 0xdbdada, 0xe7e6e5, 0xa5a4a3},
                                        {0x323232, 0x3e3e3e, 0x2c2c2c, 0x727272, 0x6b6b6b},
                                        {0xefefef, 0xffffff, 0x9f9f9f, 0xffffff, 0x9f9f9f}}) {
    QPalette theme{QColor(face)};
    theme.setColor(QPalette::Light, highlight);
    theme.setColor(QPalette::Dark, shadow);
    theme.setColor(QPalette::Inactive, QPalette::WindowText, face);
    window.setPalette(theme);
    const QImage image = screen();
    EXPECT_EQ(image.pixel(QPoint(147, 272) * scale), QColor(top).rgb());
    EXPECT_EQ(image.pixel(QPoint(147, 293) * scale - QPoint(0, 1)), QColor(bottom).rgb());
  }
  EXPECT_EQ(fault(false), "");
}

}  // namespace tessoro::test
