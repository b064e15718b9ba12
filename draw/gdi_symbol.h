// The GDI objects of one symbol at a time.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include "store/symbols.h"

namespace tavix {

// Makes the pen, brush and font of a symbol and selects them into the device context. Until the
// first one its own pen draws, and shapes are hollow. The destructor puts back what was selected
// before. Entities of one legend in a row, as they mostly come, share the objects; a font, which
// takes the longest to make, stays until another label height is in use.
class GdiSymbol {
 public:
  explicit GdiSymbol(CDC& dc) : dc_(dc), hollow_(dc, NULL_BRUSH) {}
  ~GdiSymbol() {
    DropPenAndBrush();
    DropFont();
  }
  GdiSymbol(const GdiSymbol&) = delete;
  GdiSymbol& operator=(const GdiSymbol&) = delete;

  // A pen and no brush.
  void Use(const Pen& pen);

  // A pen, a brush for the filled marks, and a font where there is a label height.
  void Use(const PointSymbol& symbol);

 private:
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
