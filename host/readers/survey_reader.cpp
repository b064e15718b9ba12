#include "host/readers/survey_reader.h"

#include "host/readers/coordinate_reader.h"
#include "host/readers/field_text.h"
#include "host/readers/landxml_reader.h"
#include "host/readers/sima_reader.h"
#include "host/readers/sima_record.h"
#include "host/readers/text_lines.h"

namespace fieldhost {
namespace {

bool IsSima(std::string_view file_name, const TextLines& lines) {
  return LowerCase(file_name).ends_with(".sim") ||
         (!lines.All().empty() && BeginsSima(lines.All().front().text));
}

}  // namespace

Survey ReadSurvey(std::string_view file_name, std::string_view bytes, ReadLog& log) {
  if (IsXmlFile(file_name, bytes)) return ReadLandXml(bytes, log);
  const TextLines lines(bytes, log);
  return IsSima(file_name, lines) ? ReadSima(lines, log) : ReadCoordinates(lines, log);
}

}  // namespace fieldhost
