// The settings dialog of a plot window.
#pragma once

#include <tdialog.h>

#include <functional>

#include "window/settings/legend_editor.h"
#include "window/settings/plot_settings.h"

namespace tavix {

class SettingsDialog : public TDialog {
 public:
  // `legend` and `settings` are written on OK, after `before_writing` has been called. `settings`
  // must outlive the dialog, `legend` too unless the dialog is abandoned first.
  SettingsDialog(CWnd* owner, LegendTable& legend, PlotSettings& settings,
                 std::function<void()> before_writing);

  // To be called before the legend is destroyed while the dialog's loop runs: closes the dialog as
  // if it were cancelled, with a colour chooser above it. Later messages write nothing; DoModal
  // returns when the caller has returned to the loop.
  void Abandon();
  [[nodiscard]] bool IsAbandoned() const { return legend_ == nullptr; }

 protected:
  BOOL OnInitDialog() override;
  void OnOK() override;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  afx_msg void OnEntryChange();
  afx_msg void OnCopyToAll();
  afx_msg void OnDestroy();
  afx_msg void OnColor();
  afx_msg void OnDrawItem(int id, DRAWITEMSTRUCT* item);
  DECLARE_MESSAGE_MAP()

 private:
  void FillEntryList();
  void FillSizeList(UINT id);
  void ShowRatio();
  void ShowEntry(int entry);
  void TakeEntry();
  void TakeRatio();
  void ShowColor();
  [[nodiscard]] CComboBox& List(int id);

  LegendTable* legend_;  // null: abandoned
  PlotSettings& settings_;
  std::function<void()> before_writing_;
  LegendEditor editor_;
  CBrush color_brush_;
  TEditInt vertical_;
  TEditInt horizontal_;
};

}  // namespace tavix
