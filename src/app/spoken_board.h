#pragma once

#include <string>
#include <string_view>

#include "app/form1.h"

/// The main window in words, for players who do not see it.
namespace tessoro {

/// A result, while its line is not full.
constexpr std::string_view noValue = "no value";

/// Tells what each control is and shows, and what can be done to it.
void describeForScreenReaders(Form1& form);

/// A caption in words: "empty", "no value", "plus"; digits stay as they are.
std::string spoken(const std::string& caption);

/// What cell 1..49 shows in words: its caption, but for "?" also "no digit", where a line that ends
/// there is full, and "not set" in a corner that the user has yet to state. Whoever sees the board
/// knows which it is.
std::string spokenCell(const Board& board, int cell);

/// The names of the corners k = 1..4 of the board, "top left" and so on.
std::string cornerName(int k);

/// A row 1..7: "Row 3: 8 minus 2 times 3 is 2", with the target or "correct" where it ends in a
/// corner; of one that is no line, what stands there.
std::string spokenRow(const Board& board, int row);
/// The same of column 1..7, from the top down.
std::string spokenColumn(const Board& board, int column);

/// Returns how corner k = 1..4 stands to the puzzle, as the end of a clause: ", correct" or, for
/// instance, ", target 3". It is empty until play has begun.
std::string standing(const Board& board, int k);

/// The four corners: what each shows, and, once play has begun, that it is correct or its target.
std::string spokenCorners(const Board& board);

}  // namespace tessoro
