// Fields of a line: where they begin and end, and the text, numbers and coordinates in them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fieldhost {

// Without blanks, tabs and control characters such as Ctrl-Z at both ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

// Cuts a line into trimmed fields, quotes included. A blank as separator stands for any run of
// blanks and tabs. A separator inside quotes separates nothing when the quote opens the field and
// its partner closes it. The last of `most` fields takes the rest of the line.
void SplitFields(std::string_view line, char separator, std::size_t most,
                 std::vector<std::string_view>& fields);

// The field without its quotes; a doubled quote inside them is one.
[[nodiscard]] std::string FieldText(std::string_view field);

// With the letters A to Z in lower case; other characters stay.
[[nodiscard]] std::string LowerCase(std::string_view text);

// What separates the decimals of a number.
enum class DecimalMark { kPoint, kComma };

// The field as a number, independent of the locale; nothing when it is not a finite number or
// anything follows it. A leading plus sign is allowed; separators of thousands are not, so a number
// with the other mark is refused.
[[nodiscard]] std::optional<double> RealNumber(std::string_view field,
                                               DecimalMark mark = DecimalMark::kPoint);
[[nodiscard]] std::optional<int> WholeNumber(std::string_view field);

// The field in quotes for a message: cut when long, without control characters.
[[nodiscard]] std::string Quoted(std::string_view field);

// False past 100,000 km.
[[nodiscard]] bool IsOnGround(double metres);

// A coordinate or height in metres. Nothing for text that is not a number, and for numbers past
// 100,000 km: no grid on earth reaches so far, and one misplaced decimal point would shrink the
// rest of the survey to a dot.
[[nodiscard]] std::optional<double> GroundNumber(std::string_view field,
                                                 DecimalMark mark = DecimalMark::kPoint);

// What is wrong with a field that GroundNumber refused.
[[nodiscard]] std::string NoGroundNumber(std::string_view what, std::string_view field,
                                         DecimalMark mark = DecimalMark::kPoint);

}  // namespace fieldhost
