// Dialog data exchange. DoDataExchange of a dialog calls a DDX function for each item, which moves
// a value to the item or back (see CWnd::UpdateData), and after it a DDV function to check the
// value.
#pragma once

#include "string.h"
#include "wnd.h"

class AFX_FRAMEWORK CDataExchange {
 public:
  BOOL m_bSaveAndValidate;  // TRUE: from the items to the members
  CWnd* m_pDlgWnd;
  HWND m_hWndLastControl = nullptr;
  BOOL m_bEditLastControl = FALSE;

  CDataExchange(CWnd* dialog, BOOL saveAndValidate)
      : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

  // The item's handle, which is remembered for Fail. Throws a CResourceException when there is no
  // such item.
  HWND PrepareCtrl(int id);
  HWND PrepareEditCtrl(int id);
  // Sets the focus to the last item and ends the exchange with a CUserException; UpdateData returns
  // FALSE.
  [[noreturn]] void Fail();
};

// Subclasses the item with `control`, unless that has a window already.
AFX_FRAMEWORK void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// The text of an edit. If it is not a number of the type, a message box says so and the exchange
// fails.
AFX_FRAMEWORK void DDX_Text(CDataExchange* exchange, int id, CString& value);
AFX_FRAMEWORK void DDX_Text(CDataExchange* exchange, int id, int& value);
AFX_FRAMEWORK void DDX_Text(CDataExchange* exchange, int id, UINT& value);
AFX_FRAMEWORK void DDX_Text(CDataExchange* exchange, int id, long& value);
AFX_FRAMEWORK void DDX_Text(CDataExchange* exchange, int id, double& value);

AFX_FRAMEWORK void DDX_Check(CDataExchange* exchange, int id, int& value);  // 0, 1 or 2
// The index, from 0, of the checked button in the group that starts with `id`; -1 without one.
AFX_FRAMEWORK void DDX_Radio(CDataExchange* exchange, int id, int& value);
AFX_FRAMEWORK void DDX_CBIndex(CDataExchange* exchange, int id, int& index);
AFX_FRAMEWORK void DDX_CBString(CDataExchange* exchange, int id, CString& value);

AFX_FRAMEWORK void DDV_MaxChars(CDataExchange* exchange, const CString& value, int count);
AFX_FRAMEWORK void DDV_MinMaxInt(CDataExchange* exchange, int value, int smallest, int largest);
AFX_FRAMEWORK void DDV_MinMaxDouble(CDataExchange* exchange, const double& value,
                                    const double& smallest, const double& largest);
