// CSize, CPoint, CRect: the system's structures with arithmetic. Coordinates are pixels.
#pragma once

#include "framework/point.h"
#include "framework/rect.h"
