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

bool KeyCommands::GridDisp_KeyPress(int Index, char character, bool shift) {
  if (ask(character, Index)) return true;
  if (character == 'n') {
    goToEmpty(Index, shift);
    return true;
  }
  if (!isToSet(character)) return false;
  Cell& cell = form_.board.GridDisp[Index];
  const bool counts = roleOf(Index) == CellRole::number || cornerOf(Index) != 0;
  if (!cell.enabled() || (state_.SolveMode && cornerOf(Index) == 0)) {
    cell.press({});  // which tells why nothing is set here
  } else if (moves_.canShow(Index, character)) {
    narrator_.narrate([&] { moves_.GridDisp_KeyPress(Index, character); },
                      narrator_.outcomeOfPress(Index));
  } else if (counts && (character == '+' || character == '-')) {
    cell.press({.button = character == '+' ? MouseButton::left : MouseButton::right});
  } else {
    narrator_.explainTyping(Index);
  }
  return true;
}

bool KeyCommands::button_KeyPress(char character, bool shift) {
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
