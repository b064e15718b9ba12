// The five plot instances and the one that is current.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "figure/figure_list.h"
#include "store/hanrei.h"
#include "store/lin_db.h"
#include "store/mem_db.h"
#include "store/point3_list.h"
#include "store/point_list.h"
#include "view/view_state.h"
#include "window/plot_window.h"

namespace tavix {

// One instance. The slot owns its objects; they are null while the instance does not exist, and one
// for which there was no memory stays null.
struct TavixSlot {
  static constexpr std::int16_t kNoLegend = -1;

  bool in_use = false;
  std::unique_ptr<CPlotWnd> window;
  std::int16_t selected_point_legend = kNoLegend;
  std::int16_t selected_line_legend = kNoLegend;
  std::unique_ptr<CViewState> view;
  std::unique_ptr<CPntList> points;
  std::unique_ptr<CPnt3List> points3;
  std::unique_ptr<CMemDb> memos;
  std::unique_ptr<CLinDb> lines;
  std::unique_ptr<CFigList> figures;
  std::unique_ptr<CHanrei> legend;
  bool show_buttons = true;
  bool auto_redraw = false;

  // Creates the objects of instance `index`, in the order of the members.
  void Create(int index);

  // Destroys them in the same order.
  void Destroy();

  // Empties the stores, the legend excepted. 0, or the code of the first store that cannot be
  // emptied, and the stores after it are left alone.
  int Clear();
};

class SlotTable {
 public:
  static constexpr int kSlots = 5;

  [[nodiscard]] TavixSlot& Current() { return slots_[static_cast<std::size_t>(index_)]; }
  [[nodiscard]] int Index() const { return index_; }

  // An index outside 0..4 changes nothing.
  void SetIndex(int index);

  // Makes the highest slot in use current; none in use leaves the index.
  void SelectHighestInUse();

  // Whether this thread is the one that made the instances there are. While there are none, any
  // thread is, and the next to ask becomes the one.
  [[nodiscard]] bool IsOnItsThread();

 private:
  std::array<TavixSlot, kSlots> slots_;
  int index_ = 0;
  DWORD thread_ = 0;
};

// The library's table. To be asked on one thread as long as instances exist; builds with assertions
// stop at a call from another.
[[nodiscard]] SlotTable& Slots();

}  // namespace tavix
