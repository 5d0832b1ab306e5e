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
    const auto number = [&](int group, int base = 10) {
      return static_cast<std::uint32_t>(std::stoul((*it)[group], nullptr, base));
    };
    const auto colour = platform::rgb(number(5, 16), number(6, 16), number(7, 16));
    const auto* const found = std::ranges::find(platform::palette, colour);
    const char pixel = "0123456789ABCDEF?"[found - platform::palette.begin()];
    for (auto y = number(2); y < number(2) + number(4); ++y) {
      drawn.at(y).replace(number(1), number(3), number(3), pixel);
    }
  }
  for (std::size_t y = 0; y < drawn.size(); ++y) EXPECT_EQ(drawn[y], tessoro::calculator.rows[y]);
}
