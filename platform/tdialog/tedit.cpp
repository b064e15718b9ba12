#include "tdialog.h"

BOOL TEdit::Link(CWnd* dialog, UINT id) { return SubclassDlgItem(id, dialog); }
