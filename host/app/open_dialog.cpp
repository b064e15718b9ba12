#include "host/app/open_dialog.h"

#include <afxdlgs.h>

#include "host/app/display_text.h"
#include "host/formats/survey_formats.h"

namespace fieldhost {
namespace {

// "*.csv;*.txt"
CString PatternsOf(const SurveyFormat& format) {
  CString patterns;
  for (const std::string_view ending : format.endings) {
    patterns += (patterns.IsEmpty() ? L"*" : L";*") + WideOf(ending);
  }
  return patterns;
}

// All of them first, then one by one, then any file.
CString Filter() {
  CString all;
  CString each;
  for (const SurveyFormat& format : SurveyFormats()) {
    const CString patterns = PatternsOf(format);
    all += (all.IsEmpty() ? L"" : L";") + patterns;
    CString shown = patterns;
    shown.Replace(L";", L", ");
    each += WideOf(format.name) + L" (" + shown + L")|" + patterns + L"|";
  }
  return L"Survey files|" + all + L"|" + each + L"All files|*.*||";
}

}  // namespace

std::vector<std::filesystem::path> AskForSurveyFiles(CWnd& parent) {
  CFileDialog dialog(TRUE, nullptr, nullptr,
                     OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT, Filter(),
                     &parent);
  std::vector<std::filesystem::path> files;
  if (dialog.DoModal() != IDOK) return files;
  for (POSITION position = dialog.GetStartPosition(); position;) {
    files.emplace_back(dialog.GetNextPathName(position).GetString());
  }
  return files;
}

}  // namespace fieldhost
