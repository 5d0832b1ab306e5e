#pragma once

#include <string>
#include <string_view>

#include "app/form1.h"

/// The main window in words, for players who do not see it.
namespace tessoro {

/// Spoken for a result whose line is not full.
constexpr std::string_view noValue = "no value";

/// Gives each control its role, its name in words and its actions.
void describeForScreenReaders(Form1& form);

/// Returns a caption in words: "empty", "no value", "plus". Digits stay as they are.
std::string spoken(const std::string& caption);

/// Returns what cell 1..49 shows, in words. "?" becomes "no digit" if a line that ends there is
/// full, "not set" if it is a corner that the player has yet to set, and otherwise "no value". A
/// player who sees the board can tell these apart.
std::string spokenCell(const Board& board, int cell);

/// Returns the name of corner k = 1..4: "top left" and so on.
std::string cornerName(int k);

/// Returns row 1..7 in words: "Row 3: 8 minus 2 times 3 is 2", with the target or "correct" if it
/// ends in a corner. A row that is not a line is read cell by cell.
std::string spokenRow(const Board& board, int row);
/// The same for column 1..7, from the top down.
std::string spokenColumn(const Board& board, int column);

/// Returns the status of corner k = 1..4, as the end of a clause: ", correct" or, for example,
/// ", target 3". Empty until play has begun.
std::string cornerStatus(const Board& board, int k);

/// Returns what each of the four corners shows, with its status.
std::string spokenCorners(const Board& board);

}  // namespace tessoro
