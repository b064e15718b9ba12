#include "host/formats/field_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace fieldhost {
namespace {

bool IsBlank(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value <= 0x20 || value == 0x7F;
}

bool IsQuoted(std::string_view field) {
  return field.size() >= 2 && field.front() == '"' && field.back() == '"';
}

std::string_view WithoutQuotes(std::string_view field) {
  field = Trim(field);
  return IsQuoted(field) ? Trim(field.substr(1, field.size() - 2)) : field;
}

bool Separates(char byte, char separator) {
  return byte == separator || (separator == ' ' && byte == '\t');
}

// The end of the field that begins at the start of `rest`.
std::size_t FieldEnd(std::string_view rest, char separator) {
  const std::size_t first = rest.find_first_not_of(' ');
  if (first != std::string_view::npos && rest[first] == '"') {
    for (std::size_t at = first + 1; at < rest.size(); ++at) {
      if (rest[at] != '"') continue;
      if (rest.substr(at + 1).starts_with('"')) {
        ++at;  // a doubled quote stands for itself
        continue;
      }
      std::size_t after = at + 1;
      while (after < rest.size() && rest[after] == ' ' && separator != ' ') ++after;
      if (after == rest.size() || Separates(rest[after], separator)) return after;
    }
  }
  const auto end =
      std::find_if(rest.begin(), rest.end(), [&](char byte) { return Separates(byte, separator); });
  return static_cast<std::size_t>(end - rest.begin());
}

template <class Number>
std::optional<Number> Parse(std::string_view field) {
  field = WithoutQuotes(field);
  if (field.starts_with('+') && !field.starts_with("+-")) field.remove_prefix(1);
  Number number{};
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  if (error != std::errc() || end != field.data() + field.size()) return std::nullopt;
  return number;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

void SplitFields(std::string_view line, char separator, std::size_t most,
                 std::vector<std::string_view>& fields) {
  fields.clear();
  if (separator == ' ') line = Trim(line);
  for (;;) {
    if (fields.size() + 1 == most) {
      fields.push_back(Trim(line));
      return;
    }
    const std::size_t end = FieldEnd(line, separator);
    fields.push_back(Trim(line.substr(0, end)));
    if (end == line.size()) return;
    line.remove_prefix(end + 1);
    if (separator == ' ') line = Trim(line);
  }
}

std::string FieldText(std::string_view field) {
  field = Trim(field);
  if (!IsQuoted(field)) return std::string(field);
  std::string text;
  const std::string_view inside = WithoutQuotes(field);
  for (std::size_t i = 0; i < inside.size(); ++i) {
    text += inside[i];
    if (inside.substr(i).starts_with("\"\"")) ++i;
  }
  return text;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& byte : lower) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
  }
  return lower;
}

std::optional<double> RealNumber(std::string_view field, DecimalMark mark) {
  if (mark == DecimalMark::kComma) {
    if (field.find('.') != std::string_view::npos) return std::nullopt;
    std::string with_point(field);
    std::replace(with_point.begin(), with_point.end(), ',', '.');
    return RealNumber(with_point);
  }
  const std::optional<double> number = Parse<double>(field);
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<int> WholeNumber(std::string_view field) { return Parse<int>(field); }

std::string Quoted(std::string_view field) {
  constexpr std::size_t kLongest = 24;
  field = Trim(field);
  std::size_t end = std::min(field.size(), kLongest);
  // Not through the middle of a character.
  while (end > 0 && end < field.size() && (static_cast<unsigned char>(field[end]) & 0xC0) == 0x80) {
    --end;
  }
  std::string quoted = "'";
  for (const char byte : field.substr(0, end)) quoted += IsBlank(byte) ? ' ' : byte;
  quoted += end < field.size() ? "...'" : "'";
  return quoted;
}

bool IsOnGround(double metres) {
  constexpr double kFarthest = 1e8;  // metres
  return std::abs(metres) <= kFarthest;
}

std::optional<double> GroundNumber(std::string_view field, DecimalMark mark) {
  const std::optional<double> number = RealNumber(field, mark);
  return number && IsOnGround(*number) ? number : std::nullopt;
}

std::string NoGroundNumber(std::string_view what, std::string_view field, DecimalMark mark) {
  std::string sentence = "the ";
  sentence += what;
  if (field.empty()) return sentence + " is missing";
  sentence += ' ' + Quoted(field);
  return sentence + (RealNumber(field, mark) ? " lies beyond any ground" : " is not a number");
}

}  // namespace fieldhost
