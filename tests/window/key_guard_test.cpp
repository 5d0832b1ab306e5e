#include "window_fixture.h"

namespace tessoro::test {

struct KeyGuardTest : WindowTest {
  /// As an X server sends it: release and press carry the same time stamp.
  void repeat(int key) {
    release(key);
    send(QEvent::KeyPress, key, {}, {});
  }
  void waitUntilBoxAcceptsKeys() { time += 500; }
  bool boxStaysOpen(const std::function<void()>& then) {
    const auto open = [&] { desktop.messageBox("Well ?", platform::Desktop::Buttons::yesNo); };
    return staysOpen(open, [&](Box) { then(); });
  }
};

TEST_F(KeyGuardTest, HeldKeyPressesOnce) {
  cell(17).SetFocus();
  press(Qt::Key_Space);
  repeat(Qt::Key_Space);
  EXPECT_EQ(caption(17), "1");
}

TEST_F(KeyGuardTest, HeldArrowKeepsMoving) {
  cell(15).SetFocus();
  press(Qt::Key_Right);
  repeat(Qt::Key_Right);
  EXPECT_EQ(focusedCell(), 17);
}

TEST_F(KeyGuardTest, BoxIgnoresKeysForHalfASecond) {
  EXPECT_TRUE(boxStaysOpen([&] { tap(Qt::Key_Return); }));
}

TEST_F(KeyGuardTest, BoxIgnoresAKeyWhileAnotherIsHeldSinceBefore) {
  press(Qt::Key_J);
  EXPECT_TRUE(boxStaysOpen([&] {
    waitUntilBoxAcceptsKeys();
    tap(Qt::Key_Return);
  }));
}

}  // namespace tessoro::test
