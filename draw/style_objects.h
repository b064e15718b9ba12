// The system's drawing objects of one style at a time.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include "store/legend_table.h"

namespace tavix {

// Makes the pen, brush and font of a style and selects them into the device context. Until the
// first style its own pen draws, and shapes are hollow. The destructor puts back what was selected
// before. Entities of one legend in a row, as they mostly come, share the objects; a font, the
// dearest of the three, stays until another text height is asked for.
class StyleObjects {
 public:
  explicit StyleObjects(CDC& dc) : dc_(dc), hollow_(dc, NULL_BRUSH) {}
  ~StyleObjects() {
    DropPenAndBrush();
    DropFont();
  }
  StyleObjects(const StyleObjects&) = delete;
  StyleObjects& operator=(const StyleObjects&) = delete;

  // A pen and no brush.
  void UseForLines(const LegendStyle& style);

  // A pen, a brush for the filled kinds, and a font where there is a text height.
  void UseForPoints(const LegendStyle& style);

 private:
  void SelectPen(const LegendStyle& style);
  void SelectFont(int height);
  void DropPenAndBrush();
  void DropFont();

  CDC& dc_;
  CScopedSelect hollow_;
  CPen pen_;
  CBrush brush_;
  CFont font_;
  int font_height_ = 0;  // pixels; 0 while there is none
  CPen* old_pen_ = nullptr;
  CBrush* old_brush_ = nullptr;
  CFont* old_font_ = nullptr;
};

}  // namespace tavix
