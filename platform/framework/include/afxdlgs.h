// The framework's classes of the common dialogs.
#pragma once

#include "afxwin.h"

#include "framework/common_dialogs.h"
