// The host without a user: fieldhost FILES --picture FILE.png

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "tests/host/support/host_process.h"
#include "tests/host/support/host_test.h"
#include "tests/host/support/picture_image.h"

namespace fieldhost {
namespace {

using Headless = HostTest;

bool BeginsLikePng(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  char start[8] = {};
  file.read(start, sizeof(start));
  return std::memcmp(start, "\x89PNG\r\n\x1A\n", sizeof(start)) == 0;
}

std::ptrdiff_t Count(const PictureImage& image, std::uint32_t color) {
  return std::count(image.pixels.begin(), image.pixels.end(), 0xFF000000U | color);
}

TEST_F(Headless, DrawsTheSampleSurvey) {
  HostProcess host(folder_, {Sample(L"site.csv"), Sample(L"site.sim"), L"--picture", In(L"絵.png"),
                             L"--size", L"300x400"});
  ASSERT_EQ(0, host.Wait()) << host.Errors();
  EXPECT_EQ("94 points, 4 parcels\n", host.Output());
  EXPECT_EQ("", host.Errors());
  EXPECT_TRUE(BeginsLikePng(In(L"絵.png")));

  const PictureImage image = DecodePicture(In(L"絵.png"));
  ASSERT_EQ(300, image.width);
  ASSERT_EQ(400, image.height);
  // The triangles of the control points, the vertices of the parcels, the rings of the trees, and
  // the parcels' sides.
  EXPECT_GT(Count(image, 0xC80000), 50);
  EXPECT_GT(Count(image, 0x0000C8), 50);
  EXPECT_GT(Count(image, 0x008000), 50);
  EXPECT_GT(Count(image, 0x006000), 500);
}

TEST_F(Headless, PictureHoldsThePlotTheButtonsAndTheInformationLine) {
  HostProcess empty(folder_, {L"--picture", In(L"empty.png"), L"--size", L"240x320"});
  ASSERT_EQ(0, empty.Wait()) << empty.Errors();
  EXPECT_EQ("0 points\n", empty.Output());
  HostProcess full(folder_,
                   {Sample(L"site.csv"), L"--picture", In(L"full.png"), L"--size", L"240x320"});
  ASSERT_EQ(0, full.Wait()) << full.Errors();

  const PictureImage before = DecodePicture(In(L"empty.png"));
  const PictureImage after = DecodePicture(In(L"full.png"));
  ASSERT_EQ(before.pixels.size(), after.pixels.size());
  constexpr int kPlotRight = 215;  // left of the buttons
  constexpr int kPlotBottom = 298;
  int plot_changes = 0;
  int button_changes = 0;
  int info_changes = 0;
  int button_colours = 0;
  for (int y = 4; y < before.height; ++y) {
    for (int x = 4; x < before.width - 4; ++x) {
      const bool changed = before.At(x, y) != after.At(x, y);
      if (y > kPlotBottom + 4) {
        info_changes += changed;
      } else if (x < kPlotRight && y < kPlotBottom) {
        EXPECT_EQ(0xFFFFFFFFU, before.At(x, y)) << x << ' ' << y;
        plot_changes += changed;
      } else if (x > kPlotRight + 4 && y < 160) {
        button_changes += changed;
        button_colours += after.At(x, y) != 0xFFFFFFFFU;
      }
    }
  }
  EXPECT_GT(plot_changes, 300);
  EXPECT_GT(info_changes, 20);
  EXPECT_EQ(0, button_changes);
  EXPECT_GT(button_colours, 1000);
}

// The box around all pixels of a colour.
struct Extent {
  int left = 1 << 20;
  int top = 1 << 20;
  int right = -1;
  int bottom = -1;
};

Extent ExtentOf(const PictureImage& image, std::uint32_t color) {
  Extent extent;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      if (image.At(x, y) != (0xFF000000U | color)) continue;
      extent.left = std::min(extent.left, x);
      extent.top = std::min(extent.top, y);
      extent.right = std::max(extent.right, x);
      extent.bottom = std::max(extent.bottom, y);
    }
  }
  return extent;
}

constexpr std::uint32_t kAlignmentRed = 0xDC0000;

TEST_F(Headless, DrawsTheSampleDesign) {
  HostProcess host(folder_, {Sample(L"site.xml"), L"--picture", In(L"p.png")});
  ASSERT_EQ(0, host.Wait()) << host.Errors();
  EXPECT_EQ("1 polyline, 5 alignment elements\n", host.Output());
  EXPECT_EQ("", host.Errors());
  const PictureImage image = DecodePicture(In(L"p.png"));
  EXPECT_GT(Count(image, kAlignmentRed), 500);
  EXPECT_GT(Count(image, 0x965A28), 200);
}

// Crosses of five pixels, the smallest mark there is: the one called a dot shows nothing.
TEST_F(Headless, DrawsTerrainPointsSmallAndWithoutLabels) {
  HostProcess host(folder_, {Write(L"ground.xml",
                                   "<LandXML><DataPoints><PntList3D>0 0 1 10 10 1 30 5 2"
                                   "</PntList3D></DataPoints></LandXML>"),
                             L"--picture", In(L"p.png"), L"--size", L"300x320"});
  ASSERT_EQ(0, host.Wait()) << host.Errors();
  EXPECT_EQ("3 points\n", host.Output());
  EXPECT_EQ(3 * 5, Count(DecodePicture(In(L"p.png")), 0xBE8C5A));
}

// A file without a single point is shown, its lines fill the view, and an arc of three quarters of
// a circle is drawn the way it turns: the quarter that is not on it stays empty.
TEST_F(Headless, FitsTheViewToAnAlignmentAndDrawsALongArcRight) {
  const struct {
    const char* rot;
    bool north_east;  // whether the quarter between Start, north, and End, east, is drawn
    bool south_west;
  } rows[] = {{"cw", true, false}, {"ccw", false, true}};
  for (const auto& row : rows) {
    const std::string xml = "<LandXML><Alignment><CoordGeom><Curve rot=\"" + std::string(row.rot) +
                            "\"><Start>6783010 21530000</Start><Center>6783000 21530000</Center>"
                            "<End>6783000 21530010</End></Curve></CoordGeom></Alignment></LandXML>";
    HostProcess host(folder_,
                     {Write(L"arc.xml", xml), L"--picture", In(L"arc.png"), L"--size", L"320x340"});
    ASSERT_EQ(0, host.Wait()) << host.Errors();
    EXPECT_EQ("1 alignment element\n", host.Output());
    const PictureImage image = DecodePicture(In(L"arc.png"));
    const Extent extent = ExtentOf(image, kAlignmentRed);
    EXPECT_GT(extent.right - extent.left, 240) << row.rot;
    const int width = extent.right - extent.left;
    const int height = extent.bottom - extent.top;
    EXPECT_NEAR(width, height, 4) << row.rot;
    // A quarter fills its box as a whole circle does: what differs is which corner it leaves out.
    const auto drawn = [&](bool right, bool lower) {
      const int x_begin = right ? extent.left + width * 6 / 10 : extent.left;
      const int y_begin = lower ? extent.top + height * 6 / 10 : extent.top;
      int count = 0;
      for (int y = y_begin; y < y_begin + height * 4 / 10; ++y) {
        for (int x = x_begin; x < x_begin + width * 4 / 10; ++x) {
          count += image.At(x, y) == (0xFF000000U | kAlignmentRed);
        }
      }
      return count > 50;
    };
    EXPECT_EQ(row.north_east, drawn(true, false)) << row.rot;
    EXPECT_EQ(row.south_west, drawn(false, true)) << row.rot;
  }
}

TEST_F(Headless, SaysWhichElementsItSkipped) {
  HostProcess host(folder_, {Write(L"site.xml",
                                   "<LandXML>\n<CgPoints>\n<CgPoint name=\"1\">1 2</CgPoint>\n"
                                   "<CgPoint name=\"2\">1</CgPoint>\n</CgPoints>\n</LandXML>\n"),
                             L"--picture", In(L"p.png")});
  EXPECT_EQ(0, host.Wait());
  EXPECT_EQ("1 point, 1 element skipped\n", host.Output());
  EXPECT_EQ(
      "site.xml, line 4: the CgPoint holds 1 numbers in place of northing, easting and "
      "height.\n",
      host.Errors());
}

TEST_F(Headless, FailsForDamagedXml) {
  HostProcess host(folder_, {Write(L"cut.xml", "<LandXML>\n<CgPoints>\n<CgPoint na"), L"--picture",
                             In(L"p.png")});
  EXPECT_EQ(1, host.Wait());
  EXPECT_EQ("cut.xml is damaged XML at line 3; export or copy it again.\n", host.Errors());
}

TEST_F(Headless, SaysWhichLinesItSkipped) {
  HostProcess host(folder_, {Write(L"list.csv", "1,10,20,3,a\n2,x,20,3,b\n3,30,20,3,c\n"),
                             L"--picture", In(L"p.png")});
  EXPECT_EQ(0, host.Wait());
  EXPECT_EQ("2 points, 1 line skipped\n", host.Output());
  EXPECT_EQ("list.csv, line 2: the northing 'x' is not a number.\n", host.Errors());
}

TEST_F(Headless, FailsForAFileThatCannotBeRead) {
  HostProcess host(folder_, {In(L"none.csv"), L"--picture", In(L"p.png")});
  EXPECT_EQ(1, host.Wait());
  EXPECT_EQ("", host.Output());
  EXPECT_EQ("none.csv does not exist; check its name and folder.\n", host.Errors());
  EXPECT_FALSE(std::filesystem::exists(In(L"p.png")));
}

TEST_F(Headless, DrawsTheOthersOfAFileThatCannotBeRead) {
  HostProcess host(folder_, {folder_.wstring(), Sample(L"site.sim"), L"--picture", In(L"p.png")});
  EXPECT_EQ(1, host.Wait());
  EXPECT_EQ("20 points, 4 parcels\n", host.Output());
  EXPECT_NE(std::string::npos, host.Errors().find("is a folder")) << host.Errors();
  EXPECT_TRUE(BeginsLikePng(In(L"p.png")));
}

TEST_F(Headless, FailsForAPictureThatCannotBeWritten) {
  HostProcess host(folder_, {Sample(L"site.csv"), L"--picture", In(L"none\\p.png")});
  EXPECT_EQ(1, host.Wait());
  EXPECT_EQ("", host.Output());
  EXPECT_NE(std::string::npos, host.Errors().find("cannot be written")) << host.Errors();
}

TEST_F(Headless, FailsForAPictureLargerThanTheScreen) {
  HostProcess host(folder_,
                   {Sample(L"site.csv"), L"--picture", In(L"p.png"), L"--size", L"8000x8000"});
  EXPECT_EQ(1, host.Wait());
  EXPECT_NE(std::string::npos, host.Errors().find("does not fit the screen")) << host.Errors();
  EXPECT_FALSE(std::filesystem::exists(In(L"p.png")));
}

TEST_F(Headless, PictureNotesTheResolutionThatWasChosenElseTheScreens) {
  const HDC screen = ::GetDC(nullptr);
  const double own = ::GetDeviceCaps(screen, LOGPIXELSX);
  ::ReleaseDC(nullptr, screen);
  for (const wchar_t* kind : {L"--picture", L"--one-bit"}) {
    HostProcess plain(folder_, {Sample(L"site.csv"), kind, In(L"p.png")});
    ASSERT_EQ(0, plain.Wait()) << plain.Errors();
    EXPECT_NEAR(PixelsPerMetre(In(L"p.png")), own / 0.0254, 0.5);
    HostProcess fine(folder_, {Sample(L"site.csv"), kind, In(L"p.png"), L"--dpi", L"200"});
    ASSERT_EQ(0, fine.Wait()) << fine.Errors();
    EXPECT_EQ(7874U, PixelsPerMetre(In(L"p.png")));
  }
}

TEST_F(Headless, RefusesAPictureThatIsNotNamedPng) {
  HostProcess host(folder_, {Sample(L"site.csv"), L"--picture", In(L"p.jpg")});
  EXPECT_EQ(2, host.Wait());
  EXPECT_NE(std::string::npos, host.Errors().find("p.jpg must be named .png.")) << host.Errors();
  EXPECT_FALSE(std::filesystem::exists(In(L"p.jpg")));
}

TEST_F(Headless, RefusesWrongUse) {
  for (const wchar_t* option : {L"--sizes", L"--picture", L"--size"}) {
    HostProcess host(folder_, {option});
    EXPECT_EQ(2, host.Wait());
    EXPECT_NE(std::string::npos, host.Errors().find("usage: fieldhost")) << host.Errors();
  }
}

}  // namespace
}  // namespace fieldhost
