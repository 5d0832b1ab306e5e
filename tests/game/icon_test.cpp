#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>

#include "app/pictures.h"
#include "platform/colour.h"

TEST(IconTest, InstalledIconIsThePictureOfTheWindows) {
  std::ifstream file(TESSORO_ICON);
  const std::string svg(std::istreambuf_iterator<char>(file), {});
  std::array<std::string, platform::Picture::size> drawn;
  drawn.fill(std::string(drawn.size(), '.'));
  const std::regex rect(R"re(x="(\d+)" y="(\d+)" width="(\d+)" height="(\d+)")re"
                        R"re( fill="#(\w\w)(\w\w)(\w\w)")re");
  for (std::sregex_iterator it(svg.begin(), svg.end(), rect); it != std::sregex_iterator(); ++it) {
    const auto number = [&](int group) { return std::stoul((*it)[group]); };
    const auto byte = [&](int group) -> std::uint32_t {
      return std::stoi((*it)[group], nullptr, 16);
    };
    const auto colour = platform::rgb(byte(5), byte(6), byte(7));
    const auto* const found = std::ranges::find(platform::palette, colour);
    const char pixel = "0123456789ABCDEF?"[found - platform::palette.begin()];
    for (auto y = number(2); y < number(2) + number(4); ++y) {
      drawn.at(y).replace(number(1), number(3), number(3), pixel);
    }
  }
  for (std::size_t y = 0; y < drawn.size(); ++y) EXPECT_EQ(drawn[y], tessoro::calculator.rows[y]);
}
