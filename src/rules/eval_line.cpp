#include "rules/eval_line.h"

#include <optional>

#include "board/operators.h"

namespace tessoro {
namespace {

using Value = std::optional<std::int16_t>;

Value apply(Value left, std::string_view op, Value right) {
  if (!left || !right) return {};
  int result = 0;
  if (op == OpPlus) {
    result = *left + *right;
  } else if (op == OpMinus) {
    result = *left - *right;
  } else if (op == OpTimes) {
    result = *left * *right;
  } else {
    return {};
  }
  const auto narrow = static_cast<std::int16_t>(result);
  return narrow == result ? Value(narrow) : Value();
}

}  // namespace

std::int16_t EvalLine(std::int16_t a, std::int16_t b, std::int16_t c, std::string_view op1,
                      std::string_view op2) {
  if (a == 0 || b == 0 || c == 0) return -1;
  const bool secondBindsFirst = op2 == OpTimes && op1 != OpTimes;
  const Value value =
      secondBindsFirst ? apply(a, op1, apply(b, op2, c)) : apply(apply(a, op1, b), op2, c);
  return value.value_or(-1);
}

}  // namespace tessoro
