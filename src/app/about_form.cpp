#include "app/about_form.h"

#include <string>

#include "app/pictures.h"

namespace tessoro {

AboutForm::AboutForm() {
  caption = "About Tessoro";
  clientWidth = 4752;
  clientHeight = 1452;
  icon = &calculator;

  AboutText.place = {0, 0, 4125, 1050};
  AboutText.text = "\nTessoro, written by the Tessoro developers\ntessoro@example.org";
  Picture1.place = {4185, 30, 510, 480};
  Picture1.picture = &calculator;
  Picture1.accessible = {
      platform::Accessible::Role::image, [] { return std::string("Calculator"); }, {}};
  AboutOk.place = {4155, 600, 510, 375};
  AboutOk.caption = "OK";
  Label1.place = {30, 1110, 4725, 315};
  Label1.caption = "Version " TESSORO_VERSION;
  Label1.backcolor = platform::palette[0];
  Label1.forecolor = platform::palette[15];
  // The button comes first, so it has the focus when the box opens.
  controls = {&AboutOk, &AboutText, &Picture1, &Label1};

  AboutOk.click = [this] { AboutOk_Click(); };
  AboutText.mouseDown = [this] { AboutText_MouseDown(); };
  unload = [this] { Form_Unload(); };
}

}  // namespace tessoro
