// The main window: a menu, tabs for the plan and the side view, the plot, and the
// information line below it.
#pragma once

#include <afxwin.h>

#include <filesystem>
#include <optional>
#include <span>

#include "host/app/command_line.h"
#include "host/app/information_line.h"
#include "host/app/view_tabs.h"
#include "host/plot/plot_pane.h"
#include "host/plot/side_pane.h"
#include "host/survey/survey_document.h"
#include "host/survey/survey_loader.h"
#include "host/tools/toolbox.h"

namespace fieldhost {

// Make it with new: the framework deletes it with its window.
class CMainWindow : public CFrameWnd {
 public:
  // For the user: of the given client size, else of the usual one; it fills a handheld's screen.
  BOOL CreateForUser(const std::optional<PictureSize>& size);
  // For a picture: the client area alone, of just this size, at the screen's top left corner.
  BOOL CreateForPicture(const PictureSize& size);

  // Reads files and shows them beside those already open, or shows what is wrong.
  void OpenFiles(std::span<const std::filesystem::path> files);

  // Shows a survey beside those already open, and counts it in the information line.
  void Show(LoadedSurvey loaded);
  [[nodiscard]] const SurveyDocument& Document() const { return document_; }

  // Turns to the plan or the side view; false, with the reason in the information line, when there
  // is no side view.
  bool ShowView(PlotView view);

  // Polls the view, which the plot's own buttons change without notifying, and shows the sheet's
  // new scale and origin. For idle times.
  void FollowView();

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

  afx_msg int OnCreate(CREATESTRUCTW* create);
  afx_msg void OnSize(UINT type, int width, int height);
  afx_msg LRESULT OnEnterSizeMove(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnExitSizeMove(WPARAM wParam, LPARAM lParam);
  afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system_menu);
  afx_msg void OnOpen();
  afx_msg void OnCloseAll();
  afx_msg void OnExit();
  afx_msg void OnExport();
  afx_msg void OnPointMemo();
  afx_msg void OnInfoTapped();
  afx_msg void OnWholeView();
  afx_msg void OnPlanView();
  afx_msg void OnSideView();
  afx_msg void OnViewTab(NMHDR* header, LRESULT* result);
  afx_msg void OnShowButtons();
  afx_msg void OnScaleBar();
  afx_msg void OnSetFocus(CWnd* old);
  afx_msg LRESULT OnFocusLater(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnParentNotify(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  void LayOut();
  void ShowViewFor(UINT command);
  void UpdateViewMenu(CMenu& menu);
  void TakeFocus();
  void ShowPoint(int key);
  void ShowToolText();
  void ShowSummary();
  void ShowPlanInfo();
  void ShowHeights();

  SurveyDocument document_;
  PlotPane plot_{document_};
  SidePane side_{document_};
  Toolbox tools_{document_, plot_};
  ViewTabs tabs_;  // none in a picture
  InformationLine info_;
  CString sheet_text_;    // shown last
  CSize laid_out_{0, 0};  // the client size that the children fit
  bool for_user_ = false;
  bool sizing_ = false;            // the user is dragging an edge
  std::optional<int> tapped_key_;  // of the point tapped last
};

}  // namespace fieldhost
