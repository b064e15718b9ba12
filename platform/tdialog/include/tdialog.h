// The device's dialogs: TDialog, and the edits TEdit and TEditInt.
#pragma once

#include "afxwin.h"

#if defined(TDIALOG_BUILD)
#define TDIALOG_CLASS __declspec(dllexport)
#else
#define TDIALOG_CLASS __declspec(dllimport)
#endif

namespace tdialog {
class DeviceTemplate;
}

// A dialog of the device. On the device, a template with the extended style 0x80000000
// (WS_EX_CAPTIONOKBTN) has an OK button in the caption. Here the dialog gets a visible OK button
// with id IDOK, in a place where it covers no item; it grows when there is no such place. A
// template that has an item IDOK keeps it and gets no other. The caption's close box and Escape
// cancel, Enter confirms.
//
// The dialog is placed inside the screen's work area. If its template from the resources is too
// large for that, the dialog uses the largest size of the template's font that fits, at least five
// points, and is placed in the upper left corner.
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
  // creates items of its own.
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
  // Subclasses the edit `id` of `dialog` until its window is destroyed. FALSE when there is no such
  // edit.
  BOOL Link(CWnd* dialog, UINT id);
};

// An edit for a whole number. Keys and pasted text are refused if they would leave anything else:
// characters other than digits, more digits than given, a minus unless `smallest` is below 0. When
// the edit loses the focus, the number is clamped to the limits.
class TDIALOG_CLASS TEditInt : public TEdit {
 public:
  // Subclasses the edit `id` of `dialog`. `emptyValue` is the value of an empty edit; it may be
  // outside `smallest` to `largest`. `digits`, 1 to 10, does not include a minus. FALSE when there
  // is no such edit.
  BOOL Link(CWnd* dialog, UINT id, int emptyValue, int smallest, int largest, int digits);

  // Shows the value, clamped to the limits; the empty value as an empty edit.
  void SetValue(int value);
  // The number shown, clamped to the limits; the empty value for an empty edit or a lone minus.
  int GetValue() const;
  // TRUE when the edit is empty or holds a lone minus.
  BOOL IsEmpty() const;

 protected:
  afx_msg void OnChar(UINT character, UINT repeatCount, UINT flags);
  afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
  afx_msg void OnKillFocus(CWnd* newFocus);
  DECLARE_MESSAGE_MAP()

 private:
  // Whether replacing the selection by the text leaves an allowed text.
  bool Accepts(LPCWSTR inserted) const;

  int m_emptyValue = 0;
  int m_smallest = 0;
  int m_largest = 0;
  int m_digits = 10;
};
