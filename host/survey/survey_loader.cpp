#include "host/survey/survey_loader.h"

#include <iterator>
#include <string_view>
#include <utility>

#include "host/formats/survey_formats.h"
#include "host/survey/disk_file.h"

namespace fieldhost {
namespace {

std::string NameOf(const std::filesystem::path& file) {
  const std::string name = Utf8Of(file.filename());
  return name.empty() ? Utf8Of(file) : name;
}

// UTF-16 is full of null characters: without this check each of its lines would be refused.
bool IsUtf16(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

// "A, B or C"
std::string Choices() {
  const std::span<const SurveyFormat> formats = SurveyFormats();
  std::string choices(formats.front().choice);
  for (std::size_t i = 1; i < formats.size(); ++i) {
    choices += (i + 1 < formats.size() ? ", " : " or ") + std::string(formats[i].choice);
  }
  return choices;
}

std::string Nothing(const ReadLog& log) {
  std::string problem = "holds nothing to draw";
  if (!log.Diagnostics().empty()) {
    const Diagnostic& first = log.Diagnostics().front();
    problem += " (line " + std::to_string(first.line) + ": " + first.sentence + ")";
  }
  return problem + "; choose " + Choices();
}

// Adds what the file holds to `loaded`; else says why not, as the end of a sentence.
std::string LoadFile(const std::filesystem::path& file, LoadedSurvey& loaded) {
  const FileBytes contents = ReadWholeFile(file);
  if (!contents.problem.empty()) return contents.problem;
  if (IsUtf16(contents.bytes)) return "is UTF-16 text; save it as UTF-8 or Shift-JIS";

  const std::string name = NameOf(file);
  ReadLog log(name);
  Survey survey = ReadSurvey(name, contents.bytes, log);
  if (!log.Refusal().empty()) return log.Refusal();
  if (!survey.HasAnythingToDraw()) return Nothing(log);

  Append(std::move(survey), loaded.survey);
  loaded.skipped_lines += log.SkippedLines();
  loaded.skipped_elements += log.SkippedElements();
  loaded.diagnostics.insert(loaded.diagnostics.end(), log.Diagnostics().begin(),
                            log.Diagnostics().end());
  return "";
}

}  // namespace

LoadedSurvey LoadSurveyFiles(std::span<const std::filesystem::path> files) {
  LoadedSurvey loaded;
  for (const std::filesystem::path& file : files) {
    const std::string problem = LoadFile(file, loaded);
    if (!problem.empty()) loaded.refusals.push_back(NameOf(file) + ' ' + problem + '.');
  }
  return loaded;
}

void Append(Survey addition, Survey& survey) {
  if (!survey.HasAnythingToDraw()) {
    survey = std::move(addition);
    return;
  }
  const std::size_t before = survey.points.size();
  survey.points.reserve(before + addition.points.size());
  survey.parcels.reserve(survey.parcels.size() + addition.parcels.size());
  survey.lines.reserve(survey.lines.size() + addition.lines.size());
  survey.points.insert(survey.points.end(), std::make_move_iterator(addition.points.begin()),
                       std::make_move_iterator(addition.points.end()));
  for (SurveyParcel& parcel : addition.parcels) {
    for (std::size_t& vertex : parcel.vertices) vertex += before;
    survey.parcels.push_back(std::move(parcel));
  }
  survey.lines.insert(survey.lines.end(), std::make_move_iterator(addition.lines.begin()),
                      std::make_move_iterator(addition.lines.end()));
}

}  // namespace fieldhost
