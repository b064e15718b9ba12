// The main window's export of the plan as a one-bit picture.
#include <tavix/tavix.h>

#include "host/app/main_window.h"
#include "host/app/utf8_path.h"
#include "host/app/wide_text.h"
#include "host/pictures/export_dialog.h"
#include "host/pictures/group_picture.h"
#include "host/pictures/one_bit_writer.h"
#include "host/plot/plot_area.h"
#include "host/resources/fieldhost_ids.h"

namespace fieldhost {
namespace {

// Writes the current plan; else says what is wrong and what to do.
CString Export(const PictureSize& size, int resolution, const std::filesystem::path& file) {
  const CString name = WideOf(Utf8Of(file.filename()));
  const std::optional<OneBitFormat> format = OneBitFormatOf(Utf8Of(file));
  if (!format) return name + L": name the picture .png or .pbm.";
  const std::optional<OneBitPicture> picture = DrawGroupPicture(size);
  if (!picture) return L"There is no room for so large a picture. Choose a smaller size.";
  if (!WriteOneBitPicture(*picture, *format, resolution, file)) {
    return name +
           L" cannot be written. Check that the folder may be written to and that no other "
           L"program holds the file.";
  }
  return CString();
}

}  // namespace

void CMainWindow::OnExport() {
  const CWnd* plot = Tavix_Wnd();
  if (!plot) return;
  ExportDialog dialog(*this, PlotArea(*plot, plot_.ShowsButtons()));
  if (dialog.DoModal() != IDOK) return;
  const std::filesystem::path file = AskForPictureFile(*this);
  if (file.empty()) return;

  const CString problem = Export(dialog.Size(), dialog.Resolution(), file);
  if (problem.IsEmpty()) {
    info_.Show(L"Written: " + WideOf(Utf8Of(file.filename())));
  } else {
    AfxMessageBox(problem, MB_OK | MB_ICONWARNING);
  }
}

}  // namespace fieldhost
