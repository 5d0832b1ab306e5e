#pragma once

#include "platform/control.h"
#include "platform/form.h"

namespace tessoro {

/// About box. Its button, any mouse button pressed over its text, and its close command close it.
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
