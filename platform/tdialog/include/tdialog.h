// The device's dialogs: TDialog, and the edits TEdit and TEditInt.
#pragma once

#include <afxwin.h>

#if defined(TDIALOG_BUILD)
#define TDIALOG_CLASS __declspec(dllexport)
#else
#define TDIALOG_CLASS __declspec(dllimport)
#endif

namespace tdialog {
class DeviceTemplate;
}

// A dialog of the device. A template with the extended style 0x80000000 (WS_EX_CAPTIONOKBTN) has an
// OK button in the caption there; where the system has none, the dialog gets a visible button OK
// with id IDOK, in a place where it hides no item, and grows when there is no such place. A
// template that has an item IDOK keeps it and gets none. The caption's close box and Escape cancel,
// Enter confirms.
//
// The dialog stands inside the screen's work area as a whole. Where a template of the resources is
// too large for that, the dialog takes the largest smaller font of the template's that fits, not
// below five points, and stands in the upper left corner.
class TDIALOG_CLASS TDialog : public CDialog {
 public:
  TDialog() = default;
  explicit TDialog(UINT templateId, CWnd* parent = nullptr) : CDialog(templateId, parent) {}
  explicit TDialog(LPCWSTR templateName, CWnd* parent = nullptr) : CDialog(templateName, parent) {}

  INT_PTR DoModal() override;
  BOOL Create(LPCWSTR templateName, CWnd* parent = nullptr) override;
  using CDialog::Create;

 protected:
  // Adds the button and moves the dialog onto the screen. A derived class calls this before it
  // makes items of its own.
  BOOL OnInitDialog() override;
  void PreSubclassWindow() override;

 private:
  void FitToScreen(tdialog::DeviceTemplate& dialogTemplate, HWND owner);
  void AddOkButton();
  void StayOnScreen();

  CButton m_ok;
  BOOL m_wantsOkButton = FALSE;
  BOOL m_hasSmallerFont = FALSE;
};

// An edit of a dialog.
class TDIALOG_CLASS TEdit : public CEdit {
 public:
  // Takes over the edit `id` of `dialog` until its window goes. FALSE when there is none.
  BOOL Link(CWnd* dialog, UINT id);
};

// An edit for a whole number. Keys and pasted text that would leave anything but such a number are
// refused: other characters than digits, more digits than given, a minus unless `smallest` is below
// 0. Leaving the edit brings what was entered within the limits.
class TDIALOG_CLASS TEditInt : public TEdit {
 public:
  // Takes over the edit `id` of `dialog`. `emptyValue` is what an empty edit stands for; it may lie
  // outside `smallest` to `largest`. `digits`, 1 to 10, does not count a minus. FALSE when there is
  // no such edit.
  BOOL Link(CWnd* dialog, UINT id, int emptyValue, int smallest, int largest, int digits);

  // Shows the value, within the limits; the empty value as an empty edit.
  void SetValue(int value);
  // What is shown, within the limits; the empty value for an empty edit or a lone minus.
  int GetValue() const;
  // Nothing is entered, or a lone minus.
  BOOL IsEmpty() const;

 protected:
  afx_msg void OnChar(UINT character, UINT repeatCount, UINT flags);
  afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
  afx_msg void OnKillFocus(CWnd* newFocus);
  DECLARE_MESSAGE_MAP()

 private:
  // Whether the text in place of the selection leaves something that may stand in the edit.
  bool Accepts(LPCWSTR inserted) const;

  int m_emptyValue = 0;
  int m_smallest = 0;
  int m_largest = 0;
  int m_digits = 10;
};
