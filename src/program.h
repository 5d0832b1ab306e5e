#pragma once

#include "qt/qt_desktop.h"

namespace tessoro {

/// Returns what the desktop needs to know of this program.
inline qt::Program program() {
  return {.name = "Tessoro",
          .messageTitle = "TESSORO",
          .documentName = "Tessoro puzzles",
          .packageName = "tessoro"};
}

}  // namespace tessoro
