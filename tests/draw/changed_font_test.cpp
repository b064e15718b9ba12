// Another default font while a window lives: the next redraw shows it.
#include <tavix/tavix.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr int kHeight = 23;

// The font that labels of a height have, selected.
class LabelFontDc {
 public:
  explicit LabelFontDc(int height) : dc_(::CreateCompatibleDC(nullptr)), font_(dc_, Make(height)) {}
  ~LabelFontDc() { ::DeleteDC(dc_); }
  LabelFontDc(const LabelFontDc&) = delete;
  LabelFontDc& operator=(const LabelFontDc&) = delete;

  [[nodiscard]] std::wstring Face() const {
    wchar_t face[LF_FULLFACESIZE] = {};
    ::GetTextFaceW(dc_, LF_FULLFACESIZE, face);
    return face;
  }

  [[nodiscard]] std::vector<BYTE> File() const {
    const DWORD size = ::GetFontData(dc_, 0, 0, nullptr, 0);
    std::vector<BYTE> file(size == GDI_ERROR ? 0 : size);
    ::GetFontData(dc_, 0, 0, file.data(), static_cast<DWORD>(file.size()));
    return file;
  }

 private:
  static HFONT Make(int height) {
    LOGFONTW wanted_font{};
    wanted_font.lfHeight = height;
    wanted_font.lfWeight = FW_NORMAL;
    wanted_font.lfCharSet = SHIFTJIS_CHARSET;
    return ::CreateFontIndirectW(&wanted_font);
  }

  HDC dc_;
  RawSelection font_;
};

// A font file, to be read and changed.
class FontFile {
 public:
  explicit FontFile(std::vector<BYTE> bytes) : bytes_(std::move(bytes)) {}

  [[nodiscard]] bool IsReadable() const {
    return Table("name") != 0 && Table("head") != 0 && Table("OS/2") != 0;
  }

  // Gives the font a name that comes before all others: where several fonts will do, the system
  // takes the first one.
  void ComeFirst() {
    const std::size_t names = Table("name");
    const std::size_t texts = names + Word(names + 4);
    for (std::size_t i = 0; i < Word(names + 2); ++i) {
      const std::size_t entry = names + 6 + 12 * i;
      const bool wide = Word(entry) != 1;  // the texts of platform 1 have bytes
      bytes_[texts + Word(entry + 10) + (wide ? 1 : 0)] = 'A';
      if (wide) bytes_[texts + Word(entry + 10)] = 0;
    }
  }

  // Gives the characters more room above, so that they are smaller in the same height of a line.
  void Shrink() {
    constexpr std::size_t kAscent = 74;
    constexpr std::size_t kCheckSum = 8;
    const std::size_t measures = Table("OS/2");
    const unsigned ascent = Word(measures + kAscent) * 3U / 2U;
    bytes_[measures + kAscent] = static_cast<BYTE>(ascent >> 8);
    bytes_[measures + kAscent + 1] = static_cast<BYTE>(ascent);
    bytes_[Table("head") + kCheckSum] ^= 1;
  }

  [[nodiscard]] std::vector<BYTE>& Bytes() { return bytes_; }

 private:
  [[nodiscard]] unsigned Word(std::size_t at) const { return bytes_[at] * 256U + bytes_[at + 1]; }

  // Where a table begins; 0 when there is none.
  [[nodiscard]] std::size_t Table(const char* tag) const {
    constexpr std::size_t kDirectory = 12;
    constexpr std::size_t kEntry = 16;
    if (bytes_.size() < kDirectory) return 0;
    for (std::size_t i = 0; i < Word(4); ++i) {
      const std::size_t entry = kDirectory + kEntry * i;
      if (std::memcmp(&bytes_[entry], tag, 4) == 0) {
        return (std::size_t{Word(entry + 8)} << 16) + Word(entry + 10);
      }
    }
    return 0;
  }

  std::vector<BYTE> bytes_;
};

class AddedFont {
 public:
  explicit AddedFont(std::vector<BYTE>& file) {
    DWORD fonts = 0;
    font_ = ::AddFontMemResourceEx(file.data(), static_cast<DWORD>(file.size()), nullptr, &fonts);
  }
  ~AddedFont() {
    if (font_) ::RemoveFontMemResourceEx(font_);
  }
  AddedFont(const AddedFont&) = delete;
  AddedFont& operator=(const AddedFont&) = delete;

 private:
  HANDLE font_ = nullptr;
};

// The system keeps the last fonts that were drawn with, whatever has come since.
void HaveTheSystemForgetItsLastFonts() {
  for (int height = 60; height < 90; ++height) static_cast<void>(LabelFontDc(height).Face());
}

class ChangedFont : public PlotTest {
 protected:
  void SetUp() override {
    MakePlot(120, 90);
    legend_ = AddLegend(kLook);
    ASSERT_EQ(0, Enter(1, GroundAt({30, 30}), legend_, L"P1"));
  }

  static Picture Wanted() {
    RawCanvas canvas(Window());
    DrawRawPoint(canvas.Dc(), kLook, {30, 30}, L"P1");
    return canvas.Take();
  }

  static constexpr PointLegend kLook{6, 10, kHeight, 0, 1, RGB(0, 0, 200)};
  short legend_ = 0;
};

TEST_F(ChangedFont, ShowsFromTheNextRedrawOn) {
  const std::wstring face = LabelFontDc(kHeight).Face();
  const Picture before = Redrawn();
  EXPECT_TRUE(SamePicture(Wanted(), before));

  FontFile file(LabelFontDc(kHeight).File());
  if (!file.IsReadable()) GTEST_SKIP() << "the default font is not one of a file";
  file.ComeFirst();
  file.Shrink();
  const AddedFont added(file.Bytes());
  HaveTheSystemForgetItsLastFonts();
  if (LabelFontDc(kHeight).Face() == face) GTEST_SKIP() << "the system keeps to its default font";

  const Picture wanted = Wanted();
  EXPECT_FALSE(wanted == before) << "the other font draws the same";
  EXPECT_TRUE(SamePicture(wanted, Redrawn()));
}

}  // namespace
}  // namespace tavix::test
