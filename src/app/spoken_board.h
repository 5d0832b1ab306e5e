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

/// Returns what cell 1..49 shows, in words. "?" reads "no digit" if a line that ends there is full,
/// "not set" in a corner that the user has not set yet, and otherwise "no value": on the board the
/// three look the same, but a player who sees it knows which one applies.
std::string spokenCell(const Board& board, int cell);

/// Returns the name of corner k = 1..4: "top left" and so on.
std::string cornerName(int k);

/// Returns row 1..7 in words: "Row 3: 8 minus 2 times 3 is 2", with the target or "correct" if it
/// ends in a corner. A row that is not a line lists what its cells show.
std::string spokenRow(const Board& board, int row);
/// The same for column 1..7, from the top down.
std::string spokenColumn(const Board& board, int column);

/// Returns how corner k = 1..4 compares with the puzzle, as the end of a clause: ", correct" or,
/// for example, ", target 3". Empty until play has begun.
std::string standing(const Board& board, int k);

/// Returns what each of the four corners shows, and how it compares with the puzzle.
std::string spokenCorners(const Board& board);

}  // namespace tessoro
