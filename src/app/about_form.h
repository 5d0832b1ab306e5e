#pragma once

#include "platform/control.h"
#include "platform/form.h"

namespace tessoro {

/// The About box. It closes by its button, by a mouse button pressed over its text, or by its close
/// command.
class AboutForm final : public platform::Form {
 public:
  AboutForm();

  platform::TextBox AboutText;
  platform::PictureBox Picture1;
  platform::CommandButton AboutOk;
  platform::Label Label1;

 private:
  void AboutOk_Click() { Visible = false; }
  void AboutText_MouseDown() { Visible = false; }
  void Form_Unload() { Visible = false; }
};

}  // namespace tessoro
