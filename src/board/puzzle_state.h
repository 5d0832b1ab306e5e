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

/// The puzzle, besides the captions on the board, which are the player's position.
struct PuzzleState {
  /// The solution's numbers by matrix row, four to a row, each a digit 1..9 with a leading blank
  /// (" 7"), and its operators "+", "-" or "*": 1..8 of the rows, 9..16 of the columns.
  /// `numberCells` and `operatorCells` say where each belongs; element 0 is not used.
  std::array<std::string, 17> SolNumbers;
  std::array<std::string, 17> SolOperators;

  /// Numbers the user has fixed for the board's corners, 1..9; 0 or less leaves a corner free.
  std::int16_t TargetTL = -1;
  std::int16_t TargetTR = -1;
  std::int16_t TargetBL = -1;
  std::int16_t TargetBR = -1;

  /// Number of the current puzzle, 1..32767; 0 before the first.
  std::int16_t PuzzleNo = 0;
  /// The user is stating a puzzle for the computer.
  bool SolveMode = false;
  /// The current puzzle is over: presses on the board do nothing in play.
  bool BoardLocked = false;
};

/// The targets of the corners k = 1..4; element 0 is not used.
constexpr std::array<std::int16_t PuzzleState::*, 5> cornerTargets{
    nullptr, &PuzzleState::TargetTL, &PuzzleState::TargetTR, &PuzzleState::TargetBL,
    &PuzzleState::TargetBR};

}  // namespace tessoro
