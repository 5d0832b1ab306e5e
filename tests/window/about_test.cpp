#include "app/about_form.h"
#include "client.h"

namespace tessoro::test {

struct AboutTest : ClientTest {
  /// Opens About and returns whether it is still open after `then`.
  bool staysOpen(const std::function<void(Box)>& then) {
    return WindowTest::staysOpen([&] { choose("About"); }, then);
  }
};

TEST_F(AboutTest, HasTheTitleSizeAndPictureOfTheFormAtEachZoom) {
  for (const QSize size : {QSize(317, 97), QSize(396, 121)}) {
    staysOpen([&](Box box) {
      EXPECT_EQ(box.widget.windowTitle(), "About Tessoro");
      EXPECT_EQ(box.widget.maximumSize(), size);
      const auto* text = box.widget.findChild<QTextEdit*>();
      EXPECT_EQ(difference(AboutForm(), *text->parentWidget()), "");
    });
    tap(Qt::Key_Plus, Qt::ControlModifier);
  }
}

TEST_F(AboutTest, BoardBehindItKeepsItsColoursButNotTheFocusRing) {
  QPalette theme = window.palette();
  theme.setColor(QPalette::Inactive, QPalette::WindowText, Qt::red);
  window.setPalette(theme);
  tap(Qt::Key_Tab);
  staysOpen([&](Box) { EXPECT_EQ(difference(), ""); });
}

TEST_F(AboutTest, TextIsReadOut) {
  staysOpen([&](Box box) {
    const QString read =
        qt::hasAnnouncements ? said().value(0) : box.widget.accessibleDescription();
    EXPECT_TRUE(read.endsWith("Tessoro developers. tessoro@example.org. Version 1.0"))
        << read.toStdString();
  });
}

TEST_F(AboutTest, ReturnPressesOk) {
  EXPECT_FALSE(staysOpen([&](Box box) {
    EXPECT_EQ(box.firstButton()->text(), "OK");
    time += 500;  // until it accepts keys
    tap(Qt::Key_Return);
  }));
}

TEST_F(AboutTest, AnyMouseButtonOverTheTextClosesIt) {
  EXPECT_FALSE(staysOpen([&](Box box) {
    QTest::mousePress(box.widget.windowHandle(), Qt::RightButton, {}, {100, 30});
  }));
  QTest::mouseRelease(window.windowHandle(), Qt::RightButton);
}

}  // namespace tessoro::test
