#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/colour.h"

namespace tessoro {

constexpr platform::Colour ColBlack = platform::palette[0];
constexpr platform::Colour ColRed = platform::palette[4];
constexpr platform::Colour ColGreen = platform::palette[2];
constexpr platform::Colour ColWhite = platform::palette[15];

/// State of the puzzle. The player's position is in the board's captions instead.
struct PuzzleState {
  /// Solution: its numbers, four a matrix row, each a digit 1..9 after a blank (" 7"), and its
  /// operators "+", "-" or "*", 1..8 those of the rows, 9..16 those of the columns. Their cells are
  /// `numberCells` and `operatorCells`; element 0 is unused.
  std::array<std::string, 17> SolNumbers;
  std::array<std::string, 17> SolOperators;

  /// Numbers that the player has set for the board's corners, 1..9; 0 or less leaves a corner
  /// free.
  std::int16_t TargetTL = -1;
  std::int16_t TargetTR = -1;
  std::int16_t TargetBL = -1;
  std::int16_t TargetBR = -1;

  /// Number of the current puzzle, 1..32767; 0 before the first.
  std::int16_t PuzzleNo = 0;
  /// Whether the player is setting a puzzle for the computer.
  bool SolveMode = false;
  /// Whether the current puzzle is over. In play, presses on the board then do nothing.
  bool BoardLocked = false;
};

/// Targets of the corners k = 1..4; element 0 is unused.
constexpr std::array<std::int16_t PuzzleState::*, 5> cornerTargets{
    nullptr, &PuzzleState::TargetTL, &PuzzleState::TargetTR, &PuzzleState::TargetBL,
    &PuzzleState::TargetBR};

}  // namespace tessoro
