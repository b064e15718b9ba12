// Exceptions of the window classes. Thrown as pointers; the catcher calls Delete.
#pragma once

#include "framework/exception.h"
#include "framework/export.h"

// The system refused a window class, a device context or a drawing object.
class AFX_FRAMEWORK CResourceException : public CException {};

// The user has been told already; end what was going on.
class AFX_FRAMEWORK CUserException : public CException {};

[[noreturn]] AFX_FRAMEWORK void AfxThrowResourceException();
[[noreturn]] AFX_FRAMEWORK void AfxThrowUserException();
