#pragma once

#include "qt/qt_desktop.h"

namespace tessoro {

/// What the desktop is told of this program.
inline qt::Program program() {
  return {.name = "Tessoro",
          .messageTitle = "TESSORO",
          .documentName = "Tessoro puzzles",
          .packageName = "tessoro"};
}

}  // namespace tessoro
