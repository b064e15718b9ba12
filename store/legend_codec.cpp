#include "store/legend_codec.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <optional>

namespace tavix {
namespace {

constexpr std::size_t kRecordSize = 30;  // bytes; do not change, files in the field have it
constexpr const char* kHeaderFormat = "%3d                       CHK";
constexpr const char* kEntryFormat = "%2d %2d %2d %2d %2d %10d chk";
constexpr std::string_view kHeaderMark = "CHK";
constexpr std::string_view kEntryMark = "chk";

// Formats one record: the text and a NUL, cut to exactly 30 bytes. A value wider than its field
// lengthens the text; a three-digit kind fills the record and leaves no NUL.
template <class... Values>
void AppendRecord(std::string& bytes, const char* format, Values... values) {
  std::array<char, 96> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  bytes.append(text.data(), kRecordSize);
}

// Reads one record's numbers and words as the formatted-input routines of C do: white space is
// skipped, a number may be signed and ends at the first other character.
class RecordScanner {
 public:
  explicit RecordScanner(std::string_view record) : rest_(record.substr(0, record.find('\0'))) {}

  [[nodiscard]] std::optional<std::int32_t> Number() {
    SkipSpace();
    const bool plus = rest_.starts_with('+');
    const char* first = rest_.data() + (plus ? 1 : 0);
    const char* last = rest_.data() + rest_.size();
    if (plus && first != last && *first == '-') return std::nullopt;
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(first, last, number);
    if (error != std::errc()) return std::nullopt;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return number;
  }

  [[nodiscard]] bool WordStartsWith(std::string_view mark) {
    SkipSpace();
    return rest_.starts_with(mark);
  }

 private:
  void SkipSpace() {
    while (!rest_.empty() && std::string_view(" \t\n\v\f\r").find(rest_.front()) != rest_.npos) {
      rest_.remove_prefix(1);
    }
  }

  std::string_view rest_;
};

std::optional<std::int32_t> DecodeHeader(std::string_view record) {
  RecordScanner scanner(record);
  const auto number = scanner.Number();
  if (!number || !scanner.WordStartsWith(kHeaderMark)) return std::nullopt;
  return number;
}

std::optional<LegendValues> DecodeEntry(std::string_view record) {
  RecordScanner scanner(record);
  LegendValues values;
  for (std::int32_t* value :
       {&values.kind, &values.prm1, &values.prm2, &values.prm3, &values.width, &values.color}) {
    const auto number = scanner.Number();
    if (!number) return std::nullopt;
    *value = *number;
  }
  if (!scanner.WordStartsWith(kEntryMark)) return std::nullopt;
  return values;
}

}  // namespace

std::string EncodeLegend(const LegendTable& table) {
  std::string bytes;
  bytes.reserve(kRecordSize * (1 + LegendTable::kStoredLegends));
  AppendRecord(bytes, kHeaderFormat, table.RotationStep());
  for (std::size_t i = 0; i < LegendTable::kStoredLegends; ++i) {
    const LegendValues& values = table.Entries()[i].values;
    AppendRecord(bytes, kEntryFormat, values.kind, values.prm1, values.prm2, values.prm3,
                 values.width, values.color);
  }
  return bytes;
}

bool DecodeLegend(std::string_view bytes, LegendTable& table) {
  if (bytes.size() < kRecordSize) return false;
  const auto header = DecodeHeader(bytes.substr(0, kRecordSize));
  if (!header) return false;
  table.SetRotationStep(*header);

  std::array<LegendValues, LegendTable::kStoredLegends> entries;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::size_t start = kRecordSize * (1 + i);
    if (bytes.size() < start + kRecordSize) return false;
    const auto values = DecodeEntry(bytes.substr(start, kRecordSize));
    if (!values) return false;
    entries[i] = *values;
  }
  table.TakeStored(entries);
  return true;
}

}  // namespace tavix
