// The framework's classes of the common controls.
#pragma once

#include "afxwin.h"

#include "framework/spin_button.h"
