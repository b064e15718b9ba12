// Measures the one-bit picture through the exported calls.
//
//   group_bench [POINTS]      10000 without an argument
//
// The scene: POINTS points on a jittered grid, each a hollow circle of 10 pixels with the label
// "P<number>", lines between neighbours, in a picture of 2,000 x 2,800 pixels. Prints
//
//   building   against the same picture by the plainest sequence of drawing calls from flat arrays
//              into a one-bit bitmap of the same kind, in milliseconds and as a ratio
//   reading    every pixel once by a call each, in nanoseconds a pixel
//   pixels     how many of the two pictures differ
#include <tavix/tavix.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "bench/median_time.h"

namespace {

using tavix::MedianMilliseconds;

constexpr int kWidth = 2000;
constexpr int kHeight = 2800;
constexpr int kWindow = 240;       // pixels, both ways
constexpr double kSide = 10000.0;  // metres
constexpr int kMostLines = 32000;  // a line keeps 16 bits of a key

struct Place {
  double x;
  double y;
};

std::vector<Place> MakePlaces(int count) {
  std::vector<Place> places;
  std::mt19937 random(1);
  std::uniform_real_distribution<double> along(0.0, kSide);
  for (int i = 0; i < count; ++i) places.push_back({along(random), along(random)});
  std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
    return std::floor(a.x / 100) != std::floor(b.x / 100) ? a.x < b.x : a.y < b.y;
  });
  return places;
}

int LineCount(const std::vector<Place>& places) {
  return std::min(static_cast<int>(places.size()) - 1, kMostLines);
}

// A one-bit bitmap section, all white, selected into a device context of its own.
class Canvas {
 public:
  Canvas() : dc_(::CreateCompatibleDC(nullptr)) {
    struct {
      BITMAPINFOHEADER header;
      RGBQUAD colors[2];
    } info{{sizeof(BITMAPINFOHEADER), kWidth, kHeight, 1, 1, BI_RGB, 0, 0, 0, 0, 0},
           {{255, 255, 255, 0}, {0, 0, 0, 0}}};
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(dc_, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits,
                                 nullptr, 0);
    bits_ = static_cast<std::uint8_t*>(bits);
    std::fill_n(bits_, kStride * kHeight, std::uint8_t{0});
    old_ = ::SelectObject(dc_, bitmap_);
  }
  ~Canvas() {
    ::SelectObject(dc_, old_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(dc_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  [[nodiscard]] HDC Dc() const { return dc_; }
  [[nodiscard]] bool IsInk(int row, int column) const {
    return (bits_[static_cast<std::size_t>(kHeight - row - 1) * kStride +
                  static_cast<std::size_t>(column) / 8] >>
                (7 - column % 8) &
            1) != 0;
  }

 private:
  static constexpr std::size_t kStride = (kWidth + 31) / 32 * 4;

  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_ = nullptr;
  std::uint8_t* bits_ = nullptr;
};

// The window shows the ground's height in its own; the picture has the same middle and is wider.
POINT ToPixel(Place at) {
  constexpr double kScale = kWindow / kSide * (static_cast<double>(kWidth) / kWindow);
  return {static_cast<LONG>((at.y - kSide / 2) * kScale + kWidth / 2),
          static_cast<LONG>((kSide / 2 - at.x) * kScale + kHeight / 2)};
}

void DrawFloor(HDC dc, const std::vector<Place>& places) {
  ::SetBkMode(dc, TRANSPARENT);
  LOGFONTW font{};
  font.lfHeight = 10;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = SHIFTJIS_CHARSET;
  const HFONT label = ::CreateFontIndirectW(&font);
  const HGDIOBJ old_font = ::SelectObject(dc, label);
  ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
  for (int i = 0; i < LineCount(places); ++i) {
    const POINT a = ToPixel(places[static_cast<std::size_t>(i)]);
    const POINT b = ToPixel(places[static_cast<std::size_t>(i) + 1]);
    ::MoveToEx(dc, a.x, a.y, nullptr);
    ::LineTo(dc, b.x, b.y);
  }
  int number = 0;
  for (const Place& place : places) {
    const POINT p = ToPixel(place);
    ::Ellipse(dc, p.x - 5, p.y - 5, p.x + 5, p.y + 5);
    const std::wstring text = L"P" + std::to_wstring(++number);
    RECT box{p.x, p.y + 2, p.x + 200, p.y - 8};
    ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &box, DT_NOCLIP);
  }
  ::GdiFlush();
  ::SelectObject(dc, old_font);
  ::DeleteObject(label);
}

void EnterScene(const std::vector<Place>& places) {
  short mark = 0;
  Tavix_AddPntHan(2, 1, 0, 10, 10, 0, &mark);
  Tavix_SelPntHan(mark);
  Tavix_SelLinHan(101);
  int key = 0;
  for (const Place& place : places) {
    CString name;
    name.Format(L"P%d", ++key);
    Tavix_EntPnt(key, key, name, place.x, place.y);
  }
  for (int i = 1; i <= LineCount(places); ++i) Tavix_EntLin(i, i + 1);
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::max(2, std::atoi(argv[1])) : 10000;
  const HWND host = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 400, 400,
                                      nullptr, nullptr, nullptr, nullptr);
  Tavix_Crt();
  // Three pixels of frame on each side: border and edge.
  Tavix_LnkRct(CWnd::FromHandle(host), 0, 0, kWindow + 6, kWindow + 6, 1);
  Tavix_SetBtn(0);
  const std::vector<Place> places = MakePlaces(count);
  EnterScene(places);
  Tavix_Zom(0, 0, kSide, kSide);

  const double floor_ms = MedianMilliseconds([&] {
    const Canvas canvas;
    DrawFloor(canvas.Dc(), places);
  });
  const double build_ms = MedianMilliseconds([] { Tavix_GrpStt(kHeight, kWidth); });
  std::printf("building  floor %8.1f ms   picture %8.1f ms   ratio %.2f\n", floor_ms, build_ms,
              build_ms / floor_ms);

  long ink_count = 0;
  const double read_ms = MedianMilliseconds([&] {
    ink_count = 0;
    for (int row = 0; row < kHeight; ++row) {
      for (int column = 0; column < kWidth; ++column) {
        int ink = 0;
        Tavix_GrpGet(row, column, &ink);
        ink_count += ink;
      }
    }
  });
  std::printf("reading   %.2f ns a pixel, %ld of ink\n", read_ms * 1e6 / (1.0 * kWidth * kHeight),
              ink_count);

  const Canvas canvas;
  DrawFloor(canvas.Dc(), places);
  int differences = 0;
  for (int row = 0; row < kHeight; ++row) {
    for (int column = 0; column < kWidth; ++column) {
      int ink = 0;
      Tavix_GrpGet(row, column, &ink);
      if ((ink != 0) != canvas.IsInk(row, column)) ++differences;
    }
  }
  std::printf("pixels    %d different, of which the north arrow has 300 at most\n", differences);
  Tavix_GrpEnd();
  Tavix_Del();
  return 0;
}
