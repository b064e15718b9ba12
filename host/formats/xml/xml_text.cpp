#include "host/formats/xml/xml_text.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "host/formats/field_text.h"
#include "host/formats/text_encoding.h"

namespace fieldhost {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

struct NamedCodePage {
  std::string_view name;  // lower case
  CodePage code_page;
};

constexpr NamedCodePage kCodePages[] = {
    {"iso-8859-1", CodePage::kLatin1},
    {"iso8859-1", CodePage::kLatin1},
    {"iso_8859-1", CodePage::kLatin1},
    {"latin1", CodePage::kLatin1},
    {"windows-1252", CodePage::kWindows1252},
    {"cp1252", CodePage::kWindows1252},
    {"shift_jis", CodePage::kShiftJis},
    {"shift-jis", CodePage::kShiftJis},
    {"sjis", CodePage::kShiftJis},
    {"x-sjis", CodePage::kShiftJis},
    {"windows-31j", CodePage::kShiftJis},
    {"cp932", CodePage::kShiftJis},
    {"ms932", CodePage::kShiftJis},
    {"ms_kanji", CodePage::kShiftJis},
};

bool IsUtf8Name(std::string_view name) {
  return name.empty() || name == "utf-8" || name == "utf8" || name == "us-ascii";
}

// The XML declaration with all before it, or nothing where the text begins with something else.
std::string_view DeclarationOf(std::string_view bytes) {
  constexpr std::string_view kEnd = "?>";
  const std::size_t begin = bytes.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos || !bytes.substr(begin).starts_with("<?xml")) return {};
  const std::size_t end = bytes.find(kEnd, begin);
  return end == std::string_view::npos ? std::string_view() : bytes.substr(0, end + kEnd.size());
}

// The encoding's name in lower case, empty when the declaration names none.
std::string EncodingName(std::string_view declaration) {
  constexpr std::string_view kWord = "encoding";
  const std::size_t word = declaration.find(kWord);
  if (word == std::string_view::npos) return "";
  const std::size_t open = declaration.find_first_of("\"'", word + kWord.size());
  if (open == std::string_view::npos) return "";
  const std::size_t close = declaration.find(declaration[open], open + 1);
  if (close == std::string_view::npos) return "";
  return LowerCase(Trim(declaration.substr(open + 1, close - open - 1)));
}

std::optional<std::string> Unlabelled(std::string_view bytes) {
  if (IsUtf8(bytes)) return std::string(bytes);
  std::optional<std::string> text = Utf8From(CodePage::kShiftJis, bytes);
  return text ? text : Utf8From(CodePage::kLatin1, bytes);
}

std::optional<std::string> Labelled(std::string_view name, std::string_view bytes) {
  if (IsUtf8Name(name)) return Unlabelled(bytes);
  const auto* known = std::find_if(std::begin(kCodePages), std::end(kCodePages),
                                   [&](const NamedCodePage& row) { return row.name == name; });
  if (known != std::end(kCodePages)) return Utf8From(known->code_page, bytes);
  return IsUtf8(bytes) ? std::optional(std::string(bytes)) : std::nullopt;
}

}  // namespace

XmlText Utf8XmlText(std::string_view bytes) {
  bytes = WithoutByteOrderMark(bytes);
  const std::string_view declaration = DeclarationOf(bytes);
  const std::string name = EncodingName(declaration);
  std::optional<std::string> text = Labelled(name, bytes.substr(declaration.size()));
  if (!text) {
    // The name itself may be no text either.
    return {"", "is not text in an encoding that is known here (" +
                    Quoted(Unlabelled(name).value_or("")) + "); save it as UTF-8"};
  }
  std::string blanks(declaration);
  std::replace_if(
      blanks.begin(), blanks.end(),
      [](char byte) { return kBlanks.find(byte) == std::string_view::npos; }, ' ');
  return {blanks + *text, ""};
}

}  // namespace fieldhost
