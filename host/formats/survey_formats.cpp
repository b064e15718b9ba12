#include "host/formats/survey_formats.h"

#include <algorithm>
#include <array>

#include "host/formats/coordinates/coordinate_reader.h"
#include "host/formats/field_text.h"
#include "host/formats/landxml/landxml_reader.h"
#include "host/formats/sima/sima_reader.h"
#include "host/formats/sima/sima_record.h"
#include "host/formats/text_encoding.h"
#include "host/formats/text_lines.h"

namespace fieldhost {
namespace {

// The first line that is not blank, without a byte order mark.
std::string_view FirstLine(std::string_view bytes) {
  const std::string_view text = WithoutByteOrderMark(bytes);
  const std::string_view rest = text.substr(std::min(text.find_first_not_of("\r\n"), text.size()));
  return rest.substr(0, rest.find_first_of("\r\n"));
}

bool BeginsAsXml(std::string_view bytes) {
  constexpr std::size_t kFarEnough = 256;  // bytes; blanks may stand before the first element
  return Trim(WithoutByteOrderMark(bytes).substr(0, kFarEnough)).starts_with('<');
}

constexpr std::array<std::string_view, 1> kXmlEndings{".xml"};
constexpr std::array<std::string_view, 1> kSimaEndings{".sim"};
constexpr std::array<std::string_view, 3> kListEndings{".csv", ".txt", ".asc"};

constexpr std::array<SurveyFormat, 3> kFormats{{
    {"LandXML", kXmlEndings, "LandXML (.xml)", &BeginsAsXml, &ReadLandXml},
    {"SIMA", kSimaEndings, "SIMA (.sim)",
     [](std::string_view bytes) { return BeginsSima(FirstLine(bytes)); },
     [](std::string_view bytes, ReadLog& log) { return ReadSima(TextLines(bytes, log), log); }},
    {"Coordinate lists", kListEndings,
     "a list of number, northing, easting, elevation and description",
     [](std::string_view) { return true; },
     [](std::string_view bytes, ReadLog& log) {
       return ReadCoordinates(TextLines(bytes, log), log);
     }},
}};

bool HasEndingOf(const SurveyFormat& format, std::string_view file_name) {
  const std::string name = LowerCase(file_name);
  return std::any_of(format.endings.begin(), format.endings.end(),
                     [&](std::string_view ending) { return name.ends_with(ending); });
}

}  // namespace

std::span<const SurveyFormat> SurveyFormats() { return kFormats; }

Survey ReadSurvey(std::string_view file_name, std::string_view bytes, ReadLog& log) {
  const auto format =
      std::find_if(kFormats.begin(), kFormats.end(), [&](const SurveyFormat& candidate) {
        return HasEndingOf(candidate, file_name) || candidate.recognises(bytes);
      });
  return format->read(bytes, log);
}

}  // namespace fieldhost
