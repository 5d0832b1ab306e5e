#include <set>
#include <sstream>

#include "app/about_form.h"
#include "app/pictures.h"
#include "fixture.h"

namespace tessoro::test {

/// A form, its menu and its controls in words, a line for each.
struct Description {
  explicit Description(const platform::Form& form) {
    add(form.caption(), form.clientWidth, form.clientHeight, form.icon);
    for (const auto* menu : form.menus) {
      add("\nmenu", menu->caption());
      for (const auto* item : menu->items) add(item->caption());
    }
    add(form.controls);
  }
  void describe(const platform::CellPane& it) {
    add("\ncell", it.place, it.caption(), platform::Font{it.font, it.fontsize, it.fontbold});
    add(it.forecolor(), it.backcolor(), it.bordertop, it.borderleft, it.borderbottom);
    add(it.borderright);
  }
  void describe(const platform::Label& it) {
    add("\nlabel", it.place, it.accessible.name(), it.font, it.forecolor, it.backcolor);
  }
  void describe(const platform::PictureBox& it) { add("\npicture", it.place, it.picture); }
  void describe(const platform::TextBox& it) { add("\ntext", it.place, it.text, it.font); }
  void describe(const platform::CommandButton& it) { add("\nOK", it.place, it.caption, it.font); }
  void describe(const platform::Frame& it) { add("\nframe", it.place, it.controls); }

  void add(const auto&... parts) { (addPart(parts), ...); }
  void addPart(const auto& it) { text << it << ' '; }
  void addPart(platform::Colour it) { text << std::hex << it.value << std::dec << ' '; }
  void addPart(const platform::Place& it) { add(it.left, it.top, it.width, it.height); }
  void addPart(const platform::Font& it) { add(it.name, it.points, it.bold ? "bold" : "light"); }
  void addPart(const platform::Picture* it) { add(it == &calculator ? "calculator" : "face"); }
  void addPart(const platform::Controls& controls) {
    for (const auto& control : controls) std::visit([this](auto* it) { describe(*it); }, control);
  }
  std::ostringstream text;
};

TEST(LayoutTest, TheMainWindowAndTheAboutBox) {
  const std::string look = " 80000000 80000001 80000002 80000002 80000003 80000003 ";
  const auto cellAt = [&](const std::string& leftTop) {
    return "\ncell " + leftTop + " 450 450 9 Arial 14.4 bold" + look;
  };
  std::string expected =
      "Tessoro 4536 4644 calculator \nmenu Puzzle Start a Solution Show Solution "
      "- Set a Puzzle for computer to solve - Print - Help About - Exit " +
      cellAt("8430 2970") + "\nframe 60 60 4395 4515 ";
  for (const auto* top : {" 780", " 1230", " 1650", " 2100", " 2550", " 3000", " 3420"}) {
    for (const std::string left : {"630", "1080", "1530", "1980", "2400", "2850", "3300"}) {
      expected += cellAt(left + top);
    }
  }
  for (const auto* at : {"180 300", "3720 360", "180 3870", "3720 3840"}) expected += cellAt(at);
  for (const std::string at : {"150 315", "3750 315", "150 3870", "3720 3840"}) {
    expected += "\npicture " + at + " 510 510 face ";
  }
  expected +=
      "\nlabel 720 480 3000 270 Get corner numbers right Arial 9.6 bold ffffff 8000 "
      "\nlabel 720 480 3000 270 Click corners to set Puzzle Arial 9.6 bold ffffff 80 "
      "\ncell 1110 4020 2085 315 New Puzzle MS Sans Serif 7.8 light" +
      look + "\ncell 1110 4020 2085 315 Solve Puzzle MS Sans Serif 7.8 light" + look;
  EXPECT_EQ(Description(Form1()).text.str(), expected);
  EXPECT_EQ(Description(AboutForm()).text.str(), R"(About Tessoro 4752 1452 calculator 
OK 4155 600 510 375 OK MS Sans Serif 7.8 bold 
text 0 0 4125 1050 
Tessoro, written by the Tessoro developers
tessoro@example.org MS Sans Serif 7.8 bold 
picture 4185 30 510 480 calculator 
label 30 1110 4725 315 Version 1.0 MS Sans Serif 7.8 bold ffffff 0 )");
}

TEST(LayoutTest, ThePicturesAndTheirColours) {
  std::ostringstream colours;
  for (const auto it : platform::palette) colours << std::hex << it.value << ' ';
  EXPECT_EQ(colours.str(),
            "0 800000 8000 808000 80 800080 8080 c0c0c0 808080 ff0000 ff00 ffff00 ff ff00ff ffff "
            "ffffff ");
  for (const std::string_view row : smilingFace.rows)
    EXPECT_EQ(row, std::string(row.rbegin(), row.rend())) << "its halves are alike";
  const std::set<std::string_view> rows(calculator.rows.begin(), calculator.rows.end());
  EXPECT_EQ(rows.size(), 11) << "its rim, its display, and three times each row of keys";
}

}  // namespace tessoro::test
