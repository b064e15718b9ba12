// The parts of an instance, by value.
#pragma once

#include "figure/figure_list.h"
#include "frame/instance.h"
#include "store/hanrei.h"
#include "store/lin_db.h"
#include "store/mem_db.h"
#include "store/point3_list.h"
#include "store/point_list.h"
#include "view/view_state.h"

namespace tavix {

// Declared in the order in which they are made.
struct Instance::Parts {
  explicit Parts(int index) : memos(index), lines(index), figures(index) {}

  CViewState view;
  CPntList points;
  CPnt3List points3;
  CMemDb memos;
  CLinDb lines;
  CFigList figures;
  CHanrei legend;
};

}  // namespace tavix
