// The host without a user: one-bit pictures of the plan, and the side view.

#include <algorithm>
#include <iterator>

#include "tests/host/support/host_process.h"
#include "tests/host/support/host_test.h"
#include "tests/host/support/picture_image.h"

namespace fieldhost {
namespace {

using OneBitHeadless = HostTest;

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST_F(OneBitHeadless, BothFormatsHoldTheSamePixels) {
  // A width that is no multiple of 8: the rows are padded.
  for (const wchar_t* file : {L"絵.pbm", L"絵.PNG"}) {
    HostProcess host(folder_, {Sample(L"site.csv"), Sample(L"site.sim"), L"--one-bit", In(file),
                               L"--size", L"333x257"});
    ASSERT_EQ(0, host.Wait()) << host.Errors();
    EXPECT_EQ("94 points, 4 parcels\n", host.Output());
  }
  const std::string header = "P4\n333 257\n";
  const std::string bytes = BytesOf(In(L"絵.pbm"));
  ASSERT_EQ(bytes.size(), header.size() + 42 * 257);
  EXPECT_TRUE(bytes.starts_with(header));
  const PictureImage image = DecodePicture(In(L"絵.PNG"));
  ASSERT_EQ(333, image.width);
  ASSERT_EQ(257, image.height);
  int ink = 0;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const auto byte = header.size() + static_cast<std::size_t>(y * 42 + x / 8);
      const bool black = (static_cast<unsigned char>(bytes[byte]) << (x % 8) & 0x80) != 0;
      ASSERT_EQ(image.At(x, y), black ? 0xFF000000U : 0xFFFFFFFFU) << x << ' ' << y;
      ink += black;
    }
  }
  EXPECT_GT(ink, 1000);
  EXPECT_LT(ink, 333 * 257 / 4);
}

TEST_F(OneBitHeadless, WholeSurveyFitsAPictureOfAnyProportions) {
  // Four points at the corners of their extent, each with a mark.
  const std::wstring list = Write(L"list.csv", "1,0,0\n2,0,100\n3,300,0\n4,300,100\n");
  for (const wchar_t* size : {L"300x900", L"900x300", L"1654x2339"}) {
    HostProcess host(folder_, {list, L"--one-bit", In(L"p.png"), L"--size", size});
    ASSERT_EQ(0, host.Wait()) << host.Errors();
    const PictureImage image = DecodePicture(In(L"p.png"));
    ASSERT_GT(image.width, 0);
    // Ink lies in each quarter's outermost part; the north arrow alone cannot be everywhere.
    const auto has_ink = [&](int left, int right, int top, int bottom) {
      for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
          if (image.At(x, y) == 0xFF000000U) return true;
        }
      }
      return false;
    };
    const int fifth = image.height / 5;
    EXPECT_TRUE(has_ink(0, image.width, 0, fifth));
    EXPECT_TRUE(has_ink(0, image.width, image.height - fifth, image.height));
    const int middle = image.width / 2;
    EXPECT_TRUE(has_ink(0, middle, image.height - fifth, image.height));
    EXPECT_TRUE(has_ink(middle, image.width, image.height - fifth, image.height));
  }
}

TEST_F(OneBitHeadless, PictureMayBeLargerThanTheScreen) {
  HostProcess host(folder_,
                   {Sample(L"site.sim"), L"--one-bit", In(L"p.pbm"), L"--size", L"4000x5000"});
  EXPECT_EQ(0, host.Wait()) << host.Errors();
  EXPECT_EQ(13U + 500U * 5000U, std::filesystem::file_size(In(L"p.pbm")));
}

TEST_F(OneBitHeadless, FailsForAPictureThatCannotBeWritten) {
  std::filesystem::create_directories(In(L"folder.png"));
  std::filesystem::create_directories(In(L"folder.pbm"));
  for (const wchar_t* file : {L"none\\p.pbm", L"none\\p.png", L"folder.png", L"folder.pbm"}) {
    HostProcess host(folder_, {Sample(L"site.csv"), L"--one-bit", In(file)});
    EXPECT_EQ(1, host.Wait());
    EXPECT_EQ("", host.Output());
    EXPECT_NE(std::string::npos,
              host.Errors().find("cannot be written; check that its folder exists"))
        << host.Errors();
  }
}

TEST_F(OneBitHeadless, RefusesOtherFormats) {
  HostProcess host(folder_, {Sample(L"site.csv"), L"--one-bit", In(L"p.bmp")});
  EXPECT_EQ(2, host.Wait());
  EXPECT_NE(std::string::npos, host.Errors().find("must be named .pbm or .png."));
  EXPECT_FALSE(std::filesystem::exists(In(L"p.bmp")));
}

TEST_F(OneBitHeadless, SideViewIsAPictureOfItsOwn) {
  HostProcess host(folder_, {Sample(L"site.csv"), L"--side", L"--picture", In(L"p.png")});
  ASSERT_EQ(0, host.Wait()) << host.Errors();
  const PictureImage image = DecodePicture(In(L"p.png"));
  ASSERT_EQ(480, image.width);
  // The red box, and every one of the eight triangles of the control points in its darker red.
  EXPECT_GT(std::count(image.pixels.begin(), image.pixels.end(), 0xFFFF0000U), 500);
  EXPECT_GT(std::count(image.pixels.begin(), image.pixels.end(), 0xFFC80000U), 8 * 15);
}

TEST_F(OneBitHeadless, SideViewNeedsHeights) {
  HostProcess host(
      folder_, {Write(L"flat.csv", "1,10,20\n2,30,20\n"), L"--side", L"--picture", In(L"p.png")});
  EXPECT_EQ(1, host.Wait());
  EXPECT_EQ("No point has a height; leave out --side.\n", host.Errors());
  EXPECT_FALSE(std::filesystem::exists(In(L"p.png")));
}

}  // namespace
}  // namespace fieldhost
