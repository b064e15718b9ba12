// Text without a box behind it.
#pragma once

#include <afxwin.h>

namespace tavix {

// Makes the background mode transparent and puts the old one back.
class TransparentBackground {
 public:
  explicit TransparentBackground(CDC& dc) : dc_(dc), old_mode_(dc.SetBkMode(TRANSPARENT)) {}
  ~TransparentBackground() { dc_.SetBkMode(old_mode_); }
  TransparentBackground(const TransparentBackground&) = delete;
  TransparentBackground& operator=(const TransparentBackground&) = delete;

 private:
  CDC& dc_;
  int old_mode_;
};

}  // namespace tavix
