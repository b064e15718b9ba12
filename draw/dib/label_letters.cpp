#include "draw/dib/label_letters.h"

#include <algorithm>

namespace tavix {
namespace {

constexpr char32_t kFirstSupplementary = 0x10000;

struct Range {
  char32_t first;
  char32_t last;
};

// Characters that stand side by side, whatever their neighbours are.
constexpr Range kSideBySide[] = {
    {0x0020, 0x007E},    // printable ASCII
    {0x00A0, 0x00AC},    // Latin, without the soft hyphen,
    {0x00AE, 0x02FF},    // and phonetic signs
    {0x0370, 0x0482},    // Greek, Cyrillic without its combining marks,
    {0x048A, 0x052F},    // and its other letters
    {0x1E00, 0x1FFF},    // Latin and Greek with accents
    {0x2010, 0x2027},    // dashes, quotation marks and dots,
    {0x2030, 0x205E},    // without the marks of the writing direction
    {0x2070, 0x20CF},    // small digits, currencies
    {0x2100, 0x2BFF},    // units, arrows, operators, frames, symbols
    {0x2E80, 0x2FDF},    // radicals
    {0x3000, 0x3029},    // Japanese punctuation
    {0x3030, 0x3098},    // hiragana, without the combining voice marks
    {0x309B, 0x312F},    // katakana, bopomofo
    {0x3190, 0xA4CF},    // signs in circles and squares, kanji, Yi
    {0xAC00, 0xD7A3},    // Korean syllables
    {0xE000, 0xFAFF},    // private characters, kanji for compatibility
    {0xFE30, 0xFE6F},    // punctuation for compatibility
    {0xFF01, 0xFFEE},    // full-width Latin, half-width katakana
    {0x20000, 0x3FFFD},  // kanji beyond 16 bits
};

bool StandsAlone(char32_t character) {
  constexpr char32_t kAscii = 0x7E;
  if (character <= kAscii) return character >= kSideBySide[0].first;
  const auto* range = std::lower_bound(
      std::begin(kSideBySide), std::end(kSideBySide), character,
      [](const Range& candidate, char32_t wanted) { return candidate.last < wanted; });
  return range != std::end(kSideBySide) && character >= range->first;
}

// The character that begins at `at`, which moves behind it. Half of a pair stays what it is.
char32_t Next(NameView text, std::size_t& at) {
  const char32_t first = text[at++];
  if (first < 0xD800 || first > 0xDBFF || at == text.size()) return first;
  const char32_t second = text[at];
  if (second < 0xDC00 || second > 0xDFFF) return first;
  ++at;
  return kFirstSupplementary + ((first - 0xD800) << 10 | (second - 0xDC00));
}

}  // namespace

std::u16string Letter::Plain() const {
  if (character < kFirstSupplementary) return {static_cast<char16_t>(character)};
  const char32_t rest = character - kFirstSupplementary;
  return {static_cast<char16_t>(0xD800 + (rest >> 10)),
          static_cast<char16_t>(0xDC00 + (rest & 0x3FF))};
}

std::optional<LabelLetters> LabelLetters::Of(NameView label) {
  if (label.size() > kLongest) return std::nullopt;
  std::optional<LabelLetters> letters{LabelLetters()};
  bool has_underline = false;
  for (std::size_t at = 0; at < label.size();) {
    Letter letter{Next(label, at), false};
    if (letter.character == U'&' && at < label.size()) letter = {Next(label, at), true};
    if (!StandsAlone(letter.character)) return std::nullopt;
    if (letter.IsUnderlined()) {
      if (has_underline) return std::nullopt;
      has_underline = true;
    }
    letters->letters_[letters->count_++] = letter;
  }
  return letters;
}

}  // namespace tavix
