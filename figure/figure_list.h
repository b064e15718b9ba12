// The figures of one instance: lines, circles, polylines, arcs and clothoids.
#pragma once

#include <afx.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <vector>

#include "figure/figure_codec.h"
#include "figure/file_window.h"
#include "view/coordinates.h"
#include "view/extent.h"

namespace tavix {

// A figure read back from the files. A circle has two points: its centre, and (radius, 0).
struct Figure {
  std::int32_t number = 0;
  std::int32_t legend = 0;
  bool is_circle = false;
  std::vector<GroundPoint> points;
};

// Figures are kept in two files in the root folder of the device, "\FIG<instance>.DAT" (index) and
// "\FIG<instance>.XY" (coordinates), and not in memory. Other programs may read the files; those of
// an instance of another process that uses the same root folder are left alone. Arcs and clothoids
// are stored as polylines. Write errors are not reported: a figure that does not fit is dropped,
// and the files stay as they were before it.
class CFigList {
 public:
  explicit CFigList(int instance);
  // With other file classes: index and coordinates, both not open yet.
  CFigList(int instance, std::unique_ptr<CFile> index, std::unique_ptr<CFile> coordinates);

  // Opens both files, empty. 0, or -1 when one of them cannot be created or belongs to another
  // process; both are then closed, and no figure is kept.
  int Open();

  // Whether the last Open found files that belong to another process.
  [[nodiscard]] bool IsTaken() const { return taken_; }

  // Closes both files and deletes them. Always 0.
  int Close();

  // Leaves both files empty and forgets the pending numbers. The result of Open.
  int Clear();

  // The figure and legend number of the figures added from now on: 0 and -1 at first.
  void SetPending(std::int32_t number, std::int32_t legend);

  void AddPolyline(std::span<const GroundPoint> points, std::int32_t point_count);
  void AddCircle(GroundPoint centre, double radius);
  // An arc or a clothoid; -1 and nothing written when the curve is empty.
  int AddCurve(std::span<const GroundPoint> points);

  // Marks every live figure of this number as deleted. -1 when there is no record at all.
  int Delete(std::int32_t number);

  // How many records there are, deleted ones included.
  [[nodiscard]] std::int32_t Count() const;

  // Reads record `index`. -1 it is deleted, -2 it cannot be read, -3 a point cannot be read whole.
  int Get(std::int32_t index, Figure* figure) const;

  // Calls `visit` for every live figure that can be read whole, in the order of the records, of
  // which only the first `most` count.
  void ForEach(const std::function<void(const Figure&)>& visit,
               std::int32_t most = std::numeric_limits<std::int32_t>::max()) const;

  // The extents of all stored points; a circle counts with its centre plus and minus its radius. 0,
  // or -3 and zeros without a point.
  int GetExtent(GroundExtent* extent) const;

  // Whether the extents may have changed since the last fit.
  [[nodiscard]] bool Changed() const { return changed_; }
  void SetChanged(bool changed) { changed_ = changed; }

 private:
  void Append(std::int32_t point_count, bool is_circle, std::span<const GroundPoint> points);
  void ForgetWhatWasRead() const;

  // Never null. Const calls read them too: neither the file position nor what a window holds is
  // logical state.
  std::unique_ptr<CFile> index_;
  std::unique_ptr<CFile> coordinates_;
  mutable FileWindow index_window_;
  mutable FileWindow coordinate_window_;
  FigureRecord pending_;
  bool changed_ = false;
  bool taken_ = false;
  int instance_;
};

}  // namespace tavix
