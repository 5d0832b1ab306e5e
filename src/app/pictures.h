#pragma once

#include "platform/picture.h"

namespace tessoro {

/// A yellow smiling face with a black outline, black eyes and a red mouth. It marks a correct
/// corner.
extern const platform::Picture smilingFace;

/// A calculator: a light grey body, a cyan display, and a white keypad of 16 keys. It is the
/// program's icon.
extern const platform::Picture calculator;

}  // namespace tessoro
