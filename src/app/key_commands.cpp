#include "app/key_commands.h"

#include <string_view>

#include "board/captions.h"

namespace tessoro {
namespace {

using platform::MouseButton;

/// Whether a player may expect the character to set something.
bool isToSet(char character) {
  constexpr std::string_view all = "0123456789+-*";
  return all.find(character) != std::string_view::npos;
}

}  // namespace

bool KeyCommands::typedOnCell(int index, char character, bool shift) {
  if (ask(character, index)) return true;
  if (character == 'n') {
    goToEmpty(index, shift);
    return true;
  }
  if (!isToSet(character)) return false;
  Cell& cell = form_.board.GridDisp[index];
  // A board that takes nothing at all says so, whatever is typed; so does what is no corner while
  // the user states a puzzle.
  const bool isRefused = state_.SolveMode ? cornerOf(index) == 0 : state_.BoardLocked;
  const bool isNumber = roleOf(index) == CellRole::number || cornerOf(index) != 0;
  if (!cell.enabled()) {
    narrator_.explainRefusal(index);
  } else if (isRefused || moves_.canShow(index, character)) {
    narrator_.narrate([&] { moves_.showCharacter(index, character); },
                      narrator_.outcomeOfPress(index));
  } else if (isNumber && (character == '+' || character == '-')) {
    cell.press({.button = character == '+' ? MouseButton::left : MouseButton::right});
  } else {
    narrator_.explainTyping(index);
  }
  return true;
}

bool KeyCommands::typedOnButton(char character, bool shift) {
  if (character == 'n') {
    // Before the first cell is the last, and the other way round.
    goToEmpty(shift ? gridCells + 1 : 0, shift);
    return true;
  }
  if (isToSet(character)) {
    narrator_.explainTyping(0);
    return true;
  }
  return ask(character, 0);
}

bool KeyCommands::ask(char question, int index) {
  if (question == 't') {
    narrator_.tellCorners();
  } else if (question == 'l') {
    narrator_.repeat();
  } else if (question == 'r' && index != 0) {
    narrator_.tellRow(rowOf(index));
  } else if (question == 'c' && index != 0) {
    narrator_.tellColumn(columnOf(index));
  } else {
    return false;
  }
  return true;
}

void KeyCommands::goToEmpty(int from, bool backwards) {
  int index = from;
  for (int step = 0; step < gridCells; ++step) {
    index += backwards ? -1 : 1;
    if (index < 1) index = gridCells;
    if (index > gridCells) index = 1;
    if (index == from) break;
    if (isToBeSet(index)) return form_.board.GridDisp[index].SetFocus();
  }
  narrator_.explainNoneEmpty();
}

bool KeyCommands::isToBeSet(int index) const {
  const Cell& cell = form_.board.GridDisp[index];
  if (state_.SolveMode) return cornerOf(index) != 0 && cell.caption() == noNumber;
  return cell.enabled() && cell.caption().empty() && !state_.BoardLocked;
}

}  // namespace tessoro
