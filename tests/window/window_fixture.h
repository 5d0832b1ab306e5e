#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/game.h"
#include "board/captions.h"
#include "qt/form_view.h"
#include "qt/form_window.h"
#include "qt/qt_desktop.h"

namespace tessoro::test {

/// The one desktop of the test program: the toolkit allows one application object in a process.
inline qt::QtDesktop* theDesktop = nullptr;

/// The game in a real window of the toolkit.
class WindowTest : public testing::Test {
 protected:
  ReseededDigits digits{*theDesktop};
  Game game{*theDesktop, digits};
  qt::FormWindow* window = nullptr;

  void SetUp() override {
    game.startUp.Form_Load();
    window = &theDesktop->show(game.form);
    settle();
  }

  static void settle() { QApplication::processEvents(); }

  Cell& cell(int index) { return game.form.board.GridDisp[index]; }
  const std::string& caption(int index) { return cell(index).caption(); }

  /// The point of the client area, in device-independent pixels, at the middle of the control.
  QPoint middleOf(const platform::Control& control) const {
    const platform::Place& frame = game.form.Frame1.place;
    return {(frame.left + control.place.left + control.place.width / 2) / 15,
            (frame.top + control.place.top + control.place.height / 2) / 15};
  }
  void click(const platform::Control& control, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&window->view(), button, {}, middleOf(control));
  }
  void turnTo(int index, std::string_view text) {
    for (int presses = 0; caption(index) != text && presses < 10; ++presses) click(cell(index));
    ASSERT_EQ(caption(index), text);
  }
  /// Plays the stored solution, or less of it where that is enough for the four corners.
  void playSolution() {
    for (int k = 1; k <= 16 && !game.state.BoardLocked; ++k) {
      turnTo(operatorCells[k], game.state.SolOperators[k]);
      if (cell(numberCells[k]).enabled() && !game.state.BoardLocked) {
        turnTo(numberCells[k], trimmed(game.state.SolNumbers[k]));
      }
    }
  }
  /// What the window shows, at the scale factor of the screen.
  QImage picture() {
    settle();
    return window->view().grab().toImage();
  }

  /// Answers the message boxes that come up, and keeps their texts.
  std::vector<std::string> messages;
  void answerBoxes(QMessageBox::StandardButton answer) {
    answering_.disconnect();
    QObject::connect(&answering_, &QTimer::timeout, [this, answer] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        messages.push_back(box->windowTitle().toStdString() + ": " + box->text().toStdString());
        auto* button = box->button(answer);
        (button != nullptr ? button : box->buttons().first())->click();
      }
    });
    answering_.start(1);
  }

 private:
  QTimer answering_;
};

}  // namespace tessoro::test
