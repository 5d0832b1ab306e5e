#pragma once

#include "app/form1.h"

namespace tessoro {

/// Puts the main window into words, so that the puzzle can be played through a screen reader: what
/// each cell is and shows, and what can be done to it.
void describeForScreenReaders(Form1& form);

}  // namespace tessoro
