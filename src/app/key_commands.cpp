#include "app/key_commands.h"

#include <string_view>

#include "app/spoken_board.h"
#include "board/captions.h"

namespace tessoro {
namespace {

using platform::MouseButton;

/// Returns the operator for P and X, which need no Shift key; any other character as it is.
char withoutShift(char character) {
  return character == 'p' ? '+' : character == 'x' ? '*' : character;
}

/// Returns whether a player may expect the character to set a cell.
bool isCellInput(char character) {
  return std::string_view("0123456789+-*").find(character) != std::string_view::npos;
}

}  // namespace

bool KeyCommands::typed(int index, char character, bool shift) {
  if (character == 't') {
    narrator_.say(spokenCorners(form_.board));
  } else if (character == 'l') {
    narrator_.repeat();
  } else if (character == 'r' && index != 0) {
    narrator_.say(spokenRow(form_.board, rowOf(index)));
  } else if (character == 'c' && index != 0) {
    narrator_.say(spokenColumn(form_.board, columnOf(index)));
  } else if (character == 'n') {
    goToEmpty(index, shift);
  } else if (const char text = withoutShift(character); isCellInput(text)) {
    set(index, text);
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
    const Cell& cell = form_.board.GridDisp[index];
    const bool isEmpty = cell.caption().empty() || cell.caption() == noNumber;
    if (isEmpty && moves_.canSet(index)) return cell.SetFocus();
  }
  narrator_.explainNoEmptyCell();
}

void KeyCommands::set(int index, char character) {
  if (index == 0) return narrator_.explainTyping(index);
  Cell& cell = form_.board.GridDisp[index];
  const bool isOperator = roleOf(index) == CellRole::operatorSign;
  const bool isSettable = moves_.canSet(index);
  if (!cell.enabled()) {
    narrator_.explainRefusal(index);
  } else if (isSettable && !isOperator && (character == '+' || character == '-')) {
    cell.press({.button = character == '+' ? MouseButton::left : MouseButton::right});
  } else if (isSettable && !moves_.fits(index, character)) {
    moves_.typeCharacter(index, character);
    narrator_.explainTyping(index);
  } else {
    narrator_.narrate([&] { moves_.typeCharacter(index, character); },
                      narrator_.outcomeOfPress(index));
  }
}

}  // namespace tessoro
