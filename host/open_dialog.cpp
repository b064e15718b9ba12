#include "host/open_dialog.h"

#include <afxdlgs.h>

namespace fieldhost {

std::vector<std::filesystem::path> AskForSurveyFiles(CWnd& parent) {
  constexpr const wchar_t* kFilter =
      L"Survey files|*.xml;*.sim;*.csv;*.txt;*.asc|LandXML (*.xml)|*.xml|SIMA (*.sim)|*.sim|"
      L"Coordinate lists (*.csv, *.txt, *.asc)|*.csv;*.txt;*.asc|All files|*.*||";
  CFileDialog dialog(TRUE, nullptr, nullptr,
                     OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT, kFilter, &parent);
  std::vector<std::filesystem::path> files;
  if (dialog.DoModal() != IDOK) return files;
  for (POSITION position = dialog.GetStartPosition(); position;) {
    files.emplace_back(dialog.GetNextPathName(position).GetString());
  }
  return files;
}

}  // namespace fieldhost
