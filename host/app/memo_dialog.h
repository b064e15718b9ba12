// Lets the user write the memo of a point.
#pragma once

#include <afxwin.h>

#include "host/survey/survey.h"

namespace fieldhost {

class MemoDialog : public CDialog {
 public:
  // Shows the point and its memo for editing. Ends with IDOK when the user wants Memo() kept.
  MemoDialog(CWnd& parent, const SurveyPoint& point, const CString& memo);

  // Without blanks at its end, its lines ended by CR LF.
  [[nodiscard]] const CString& Memo() const { return memo_; }

  BOOL OnInitDialog() override;
  // Ctrl+Enter is OK: Enter alone makes a new line.
  BOOL PreTranslateMessage(MSG* message) override;

 protected:
  void OnOK() override;
  afx_msg void OnFull();
  DECLARE_MESSAGE_MAP()

 private:
  SurveyPoint point_;
  CString memo_;
};

}  // namespace fieldhost
