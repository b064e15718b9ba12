// What is drawn over the plan at paint time: paper frame, north arrow, scale bar.
#pragma once

#include <afxwin.h>

#include "view/paper_frame.h"
#include "view/view_state.h"

namespace tavix {

void DrawPaperFrame(CDC& dc, const PaperFrame& frame);
void DrawNorthArrow(CDC& dc, const CViewState& view);

// The bar with its length as text in `font`; nothing when the view is too close for one. `vertical`
// as for ScaleBarOf.
void DrawScaleBar(CDC& dc, const CViewState& view, bool vertical, CFont& font);

}  // namespace tavix
