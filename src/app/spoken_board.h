#pragma once

#include <string>

#include "app/form1.h"

namespace tessoro {

/// Puts the main window into words, for players who do not see it: what each control is and shows,
/// and what can be done to it.
void describeForScreenReaders(Form1& form);

/// A caption in words: "empty", "no value", "plus"; digits stay as they are.
std::string spoken(const std::string& caption);

/// The names of the corners k = 1..4 of the board, "top left" and so on.
std::string cornerName(int k);

}  // namespace tessoro
