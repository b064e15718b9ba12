// The pictures the build makes for the button column: ids, sizes, depth, and that no two states of
// a button look the same.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/project_folder.h"
#include "window/buttons/button_table.h"

namespace {

struct Picture {
  std::int32_t width = 0;
  std::int32_t height = 0;
  unsigned depth = 0;
  std::string pixels;  // as stored: padded rows, bottom up
};

// Where the build makes them.
std::filesystem::path PictureFolder() {
  return tavix::test::ProjectFolder() / TAVIX_BUTTON_PICTURES;
}

// The ids and files that the resource script lists; an id listed twice keeps the first file and
// fails the calling test.
std::map<int, std::string> ListedFiles() {
  std::map<int, std::string> files;
  std::ifstream script(PictureFolder() / "buttons.rc");
  for (std::string line; std::getline(script, line);) {
    std::istringstream words(line);
    int id = 0;
    std::string kind;
    std::string name;
    words >> id >> kind >> name;
    EXPECT_EQ("BITMAP", kind) << line;
    EXPECT_GT(name.size(), 2U) << line;
    const bool first = files.emplace(id, name.substr(1, name.size() - 2)).second;
    EXPECT_TRUE(first) << "listed twice: " << line;
  }
  return files;
}

std::uint32_t Number(const std::string& bytes, std::size_t at, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = count; i-- > 0;)
    value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
  return value;
}

Picture Read(const std::string& name) {
  std::ifstream file(PictureFolder() / name, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (bytes.size() < 54 || bytes[0] != 'B' || bytes[1] != 'M') {
    ADD_FAILURE() << name << " is no bitmap file";
    return {};
  }
  EXPECT_EQ(bytes.size(), Number(bytes, 2, 4)) << name;
  Picture picture;
  picture.width = static_cast<std::int32_t>(Number(bytes, 18, 4));
  picture.height = static_cast<std::int32_t>(Number(bytes, 22, 4));
  picture.depth = Number(bytes, 28, 2);
  const std::size_t start = Number(bytes, 10, 4);
  if (start != 54 + 16 * 4) {
    ADD_FAILURE() << name << " has its pixels elsewhere than after sixteen colours";
    return {};
  }
  picture.pixels = bytes.substr(start);
  return picture;
}

constexpr int kFirstId = 401;
constexpr int kButtons = 11;
constexpr int kStates = 4;

constexpr int Id(int button, int state) { return kFirstId + kStates * button + state; }
constexpr bool Scrolls(int button) { return button == 0 || button == kButtons - 1; }

TEST(ButtonPictures, HaveTheIdsTheWindowAsksForAndNoOthers) {
  std::vector<int> wanted;
  for (int button = 0; button < kButtons; ++button) {
    for (int state = 0; state < kStates; ++state) wanted.push_back(Id(button, state));
  }
  EXPECT_EQ(444, wanted.back());
  // The faces of the two buttons that stay pressed in; 445 to 448 are left out.
  wanted.insert(wanted.end(), {449, 450, 451, 452});
  std::vector<int> listed;
  for (const auto& [id, name] : ListedFiles()) listed.push_back(id);
  EXPECT_EQ(wanted, listed);
}

TEST(ButtonPictures, AreSixteenColourBitmapsOfTheButtonsSize) {
  for (const auto& [id, name] : ListedFiles()) {
    const Picture picture = Read(name);
    const bool half = id <= Id(kButtons - 1, kStates - 1) && Scrolls((id - kFirstId) / kStates);
    EXPECT_EQ(20, picture.width) << name;
    EXPECT_EQ(half ? 10 : 20, picture.height) << name;
    EXPECT_EQ(4U, picture.depth) << name;
    const std::size_t row = 12;  // ten bytes of pixels, padded to a multiple of four
    EXPECT_EQ(row * static_cast<std::size_t>(picture.height), picture.pixels.size()) << name;
  }
}

TEST(ButtonPictures, NoTwoLookTheSame) {
  std::map<std::string, std::string> seen;
  for (const auto& [id, name] : ListedFiles()) {
    const auto [other, fresh] = seen.emplace(Read(name).pixels, name);
    EXPECT_TRUE(fresh) << name << " looks like " << other->second;
  }
  EXPECT_EQ(48U, seen.size());
}

TEST(ButtonPictures, StandUnderTheIdsOfTheirRoles) {
  const struct {
    int id;
    const char* file;
  } rows[] = {
      {401, "scroll_up_normal.bmp"},     {405, "band_zoom_normal.bmp"},
      {406, "band_zoom_pressed.bmp"},    {407, "band_zoom_focused.bmp"},
      {408, "band_zoom_disabled.bmp"},   {409, "zoom_in_normal.bmp"},
      {413, "zoom_out_normal.bmp"},      {417, "whole_view_normal.bmp"},
      {421, "pan_normal.bmp"},           {425, "refresh_normal.bmp"},
      {429, "settings_normal.bmp"},      {433, "rotate_normal.bmp"},
      {437, "rotate_back_normal.bmp"},   {441, "scroll_down_normal.bmp"},
      {449, "pan_in_focused.bmp"},       {450, "pan_in_disabled.bmp"},
      {451, "band_zoom_in_focused.bmp"}, {452, "band_zoom_in_disabled.bmp"},
  };
  const auto files = ListedFiles();
  for (const auto& row : rows) {
    const auto found = files.find(row.id);
    ASSERT_NE(files.end(), found) << row.id;
    EXPECT_EQ(row.file, found->second) << row.id;
  }
}

// The colour index at (x, y) from the top left.
int ColourAt(const Picture& picture, int x, int y) {
  const auto row = static_cast<std::size_t>(picture.height - 1 - y);
  const auto pair =
      static_cast<unsigned char>(picture.pixels.at(row * 12 + static_cast<std::size_t>(x) / 2));
  return x % 2 == 0 ? pair >> 4 : pair & 15;
}

TEST(ButtonPictures, PressedFacesAreSunkenAndTheOthersRaised) {
  const auto files = ListedFiles();
  constexpr int kBlack = 0;
  constexpr int kWhite = 15;
  for (const auto& [id, name] : files) {
    const Picture picture = Read(name);
    const bool sunken = id > Id(kButtons - 1, kStates - 1) || (id - kFirstId) % kStates == 1;
    EXPECT_EQ(sunken ? kBlack : kWhite, ColourAt(picture, 5, 0)) << name;
    EXPECT_EQ(sunken ? kWhite : kBlack, ColourAt(picture, 5, picture.height - 1)) << name;
  }
}

TEST(ButtonPictures, RotatingBackIsTheMirrorImageOfRotating) {
  const auto files = ListedFiles();
  const Picture clockwise = Read(files.at(tavix::kRotateButton));
  const Picture back = Read(files.at(tavix::kRotateBackButton));
  for (int y = 3; y < 17; ++y) {
    for (int x = 3; x < 17; ++x) {
      EXPECT_EQ(ColourAt(clockwise, x, y), ColourAt(back, 19 - x, y)) << x << ", " << y;
    }
  }
}

}  // namespace
