#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "app/game.h"
#include "app/spoken_board.h"

namespace tessoro::test {

/// Returns the 7 by 7 cells as the player sees them: '.' is an empty one, '#' a hole.
inline std::string drawnGrid(const Board& board) {
  std::string drawn;
  for (int i = 1; i <= gridCells; ++i) {
    const Cell& it = board.GridDisp[i];
    const char* none = it.backcolor() == ColBlack ? "#" : ".";
    drawn += it.caption().empty() ? none : it.caption();
    drawn += columnOf(i) == gridSide ? '\n' : ' ';
  }
  return drawn;
}

/// Returns what stands beside the four corners: ":)", the target, or "." for nothing.
inline std::string drawnCorners(const Board& board) {
  std::string drawn;
  for (int k = 1; k <= 4; ++k) {
    const Cell& target = board.GridDisp[OuterCornerCells[k]];
    if (k > 1) drawn += ' ';
    drawn += board.NPict[k].Visible() ? ":)" : target.Visible() ? target.caption() : ".";
  }
  return drawn;
}

/// Rules that hold after every event, whatever the player does. Watches one game.
class Invariants {
 public:
  explicit Invariants(const Game& game) : game_(game) {}

  /// Returns the rule that the event since the last call has broken; empty if none. `pressed` is
  /// the cell that the event pressed, 0 for other events, and `said` the sentence spoken after it.
  std::string broken(int pressed, const std::string& said) {
    const Position before = std::exchange(now_, Position(game_));
    const bool moved = pressed != 0 && before.look != now_.look && !before.setting;
    if (!modeIsShown()) return "Buttons, messages and menu fit the mode";
    for (int i = 1; i <= gridCells; ++i) {
      if (!looksLikeItsRole(i))
        return "Each cell looks like its role and is enabled if it can be set";
    }
    if (before.puzzle != now_.puzzle && now_.over != now_.setting)
      return "A new puzzle can be played; one that the player has set is over";
    if (before.puzzle != now_.puzzle && !now_.setting && !isEmptyBetweenCorners())
      return "A new puzzle shows nothing but its corners";
    if (before.puzzle != now_.puzzle && !solutionIsCorrect())
      return "Every line of a solution is true, and it has the corners that were set";
    if (moved && (before.over || !cell(pressed).enabled()))
      return "Nothing moves after the end of a puzzle or on a disabled cell";
    if (moved && !resultsFit(pressed))
      return "After a move each result shows and says the value of its line";
    if (moved && !cornersFit())
      return "A correct corner is green and has a face, a wrong one is black and has its target; "
             "four correct ones end the puzzle";
    const bool onGrid = pressed != 0 && pressed <= gridCells && roleOf(pressed) != CellRole::hole;
    if (onGrid && said.empty()) return "Every press on the grid is followed by a sentence";
    if (onGrid && now_.texts[pressed] != before.texts[pressed] &&
        !said.starts_with(spoken(now_.texts[pressed])))
      return "The sentence after a press begins with what the cell shows";
    return {};
  }

  /// Returns the position as text. Equal texts mean that the player sees and can do the same.
  static std::string look(const Game& game) { return Position(game).look; }

 private:
  using Texts = std::array<std::string, gridCells + 1>;  ///< what the cells show
  struct Position {
    explicit Position(const Game& game)
        : setting(game.state.SolveMode),
          over(game.state.BoardLocked),
          puzzle(game.state.PuzzleNo),
          look(game.form.caption() + (over ? " over" : "") + (setting ? " setting" : "")) {
      const Form1& form = game.form;
      look += form.RightMess.Visible() ? " get corners right" : "";
      look += form.Solveit.enabled() ? " can solve" : "";
      look += "\n" + drawnGrid(form.board) + drawnCorners(form.board);
      for (int k = 1; k <= 4; ++k) {
        const auto colour = form.board.GridDisp[CornerCells[k]].backcolor();
        look += colour == ColGreen ? " green" : colour == ColRed ? " red" : " black";
      }
      for (int i = 1; i <= gridCells; ++i) texts[i] = form.board.GridDisp[i].caption();
    }
    bool setting;
    bool over;
    int puzzle;
    std::string look;
    Texts texts;
  };

  const Game& game_;
  Position now_{game_};

  const Cell& cell(int index) const { return game_.form.board.GridDisp[index]; }
  static int apply(int left, const std::string& op, int right) {
    return op == "+" ? left + right : op == "-" ? left - right : left * right;
  }
  /// Returns a line's result in words, calculated independently of the game.
  static std::string resultOf(const Texts& texts, int first, int step) {
    const auto text = [&](int place) { return texts[first + place * step]; };
    for (const int place : {0, 1, 2, 3, 4}) {
      if (text(place).empty() || text(place) == "?") return "no value";
    }
    const int a = std::stoi(text(0)), b = std::stoi(text(2)), c = std::stoi(text(4));
    const int value = text(3) == "*" && text(1) != "*" ? apply(a, text(1), b * c)
                                                       : apply(apply(a, text(1), b), text(3), c);
    return value >= 1 && value <= 9 ? std::to_string(value) : "no digit";
  }
  bool shows(int index, const std::string& result) const {
    return now_.texts[index] == (result.starts_with("no") ? "?" : result);
  }
  bool showsAndSays(int index, const std::string& result) const {
    return shows(index, result) && spokenCell(game_.form.board, index) == result;
  }
  bool modeIsShown() const {
    const Form1& form = game_.form;
    for (const bool inPlay : {form.NewPuz.Visible(), form.StartSolx.enabled(),
                              form.ShowSolx.enabled(), !form.Solveit.Visible(),
                              !form.CompMess.Visible(), form.SolveMx.caption().starts_with("Set")})
      if (inPlay == now_.setting) return false;
    return !now_.setting || !form.RightMess.Visible();
  }
  bool isEmptyBetweenCorners() const {
    for (int i = 1; i <= gridCells; ++i) {
      if (cornerOf(i) == 0 && !now_.texts[i].empty() && now_.texts[i] != "=") return false;
    }
    return true;
  }
  bool looksLikeItsRole(int index) const {
    const Cell& it = cell(index);
    const bool corner = cornerOf(index) != 0;
    const CellRole role = roleOf(index);
    const bool isNumber = role == CellRole::number, isOperator = role == CellRole::operatorSign;
    const bool isEquals = role == CellRole::equals;
    const std::string_view texts = isOperator ? "+-*" : isEquals ? "=" : "123456789?";
    const bool shows = it.caption().empty() ? !isEquals : texts.find(it.caption()) != texts.npos;
    const unsigned actions = corner || isNumber ? 2 : isOperator ? 1 : 0;
    if (!shows || !it.Visible() || it.accessible.actions.size() != actions) return false;
    if (!corner)
      return it.enabled() == (isNumber || isOperator) &&
             it.backcolor() == (role == CellRole::hole ? ColBlack : platform::buttonFace);
    return it.enabled() == now_.setting && it.forecolor() == ColWhite &&
           now_.setting == (it.backcolor() == ColRed);
  }
  bool resultsFit(int pressed) const {
    bool known = true;
    for (const int i : {1, 3, 5}) {
      const std::string row = resultOf(now_.texts, 7 * i - 6, 1);
      const std::string column = resultOf(now_.texts, i, 7);
      if (!showsAndSays(7 * i, row) || !showsAndSays(42 + i, column)) return false;
      known = known && !row.starts_with("no") && !column.starts_with("no");
    }
    // After an operator of column 7 the last cell shows that column's value, otherwise row 7's.
    if (pressed == 14 || pressed == 28) return shows(49, resultOf(now_.texts, 7, 7));
    const bool ofRow7 = pressed == 44 || pressed == 46;
    return shows(49, known || ofRow7 ? resultOf(now_.texts, 43, 1) : "no value");
  }
  bool cornersFit() const {
    if (!game_.search.SolveFound()) return true;
    bool solved = true;
    for (int k = 1; k <= 4; ++k) {
      const Cell& target = cell(OuterCornerCells[k]);
      const bool correct = now_.texts[CornerCells[k]] == target.caption();
      if (" " + target.caption() != game_.state.SolNumbers[cornerNumbers[k]] ||
          target.Visible() == correct || target.backcolor() != ColGreen ||
          target.forecolor() != ColWhite || game_.form.board.NPict[k].Visible() != correct ||
          cell(CornerCells[k]).backcolor() != (correct ? ColGreen : ColBlack))
        return false;
      solved = solved && correct;
    }
    return now_.over == solved && game_.form.RightMess.Visible() == !solved;
  }
  bool solutionIsCorrect() const {
    Texts solved;
    for (int k = 1; k <= 16; ++k) {
      solved[numberCells[k]] = game_.state.SolNumbers[k].substr(1);
      solved[operatorCells[k]] = game_.state.SolOperators[k];
    }
    for (const int i : {1, 3, 5, 7}) {
      if (solved[7 * i] != resultOf(solved, 7 * i - 6, 1)) return false;
      if (solved[42 + i] != resultOf(solved, i, 7)) return false;
    }
    for (int k = 1; k <= 4; ++k) {
      const int target = game_.state.*cornerTargets[k];
      if (target > 0 && solved[CornerCells[k]] != std::to_string(target)) return false;
    }
    return true;
  }
};

}  // namespace tessoro::test
