// One plot instance: its stores, its view, and the window that shows it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class CString;

namespace tavix {

class CFigList;
class CPlotWnd;
class CViewState;
class LegendTable;
struct GroundPoint;
struct LineKeys;
struct Point;
struct Point3;

// Owns its parts, and holds the rules of the exported calls on them. What concerns the view, the
// figures, the legend or the window alone, callers ask of that part.
//
// A redraw is drawn later than it is asked for (PlotDisplay), so what it shows must not change
// before. Entering, changing and ending entities finishes it where that is needed; before any other
// change of what is drawn callers call FinishRedraw.
class Instance {
 public:
  // Makes instance `index`, 0 to 4, with empty stores and the legend of the legend file, in the
  // order view, points, 3-D points, memos, lines, figures, legend.
  explicit Instance(int index);

  // Destroys the window, then the parts in the order in which they were made; the legend is saved.
  ~Instance();

  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  [[nodiscard]] CViewState& View();
  [[nodiscard]] LegendTable& Legend();

  // To read, or to add to; a redraw that is pending leaves new figures out.
  [[nodiscard]] CFigList& Figures();

  // Null while none is linked.
  [[nodiscard]] CPlotWnd* Window() { return window_.get(); }

  // Empties the stores, the legend excepted. 0, or the code of the first store that cannot be
  // emptied; the stores after it are left alone.
  int Clear();

  // ---- The window

  // Destroys the window there is, makes a new one and has `create` give it its place. -1 when that
  // fails; the window then stays, without a handle, until the next link.
  int LinkWindow(unsigned notify_id, const std::function<bool(CPlotWnd&)>& create);

  // Kept for windows to come, and applied to the one that is linked.
  void ShowButtons(bool show);

  // Switches between plan and side view, and turns the view back to 0 degrees.
  void ShowSideView(bool show);

  // Gives the moved point the symbol of a point legend. -1 for an unknown number or without a
  // window, -2 for an entry that is not a point legend; the symbol is then as it was.
  int StartMovePoint(int legend);

  // Redraws everything, with `keep_view` unset after a fit to the data. -1 without a window, else
  // the redraw's result.
  int Redraw(bool keep_view);

  // Draws the redraw that is pending, if one is.
  void FinishRedraw();

  // While set, entering something new draws it at once and a change redraws the window.
  void SetAutoRedraw(bool on) { auto_redraw_ = on; }

  // The answer of a call that changed something with `code`: that code, or where it is 0 and
  // auto-redraw is on, the redraw's.
  int RedrawAfterChange(int code);

  // ---- Entities

  // The legends of the points and lines that are entered; they need not exist.
  void SelectPointLegend(std::int16_t number) { point_legend_ = number; }
  void SelectLineLegend(std::int16_t number) { line_legend_ = number; }

  // Enter a point with the selected point legend, or replace all but the key of the one that has
  // this key. 0, or the redraw's result.
  int EnterPoint(Point point);
  int EnterPoint3(Point3 point);

  // Find a point by its key and make it current; where keys repeat, the nearest to the point that
  // is current. Its name is valid until a point changes.
  [[nodiscard]] std::optional<Point> FindPoint(std::int32_t key);
  [[nodiscard]] std::optional<GroundPoint> FindPointPosition(std::int32_t key);
  [[nodiscard]] std::optional<Point3> FindPoint3(std::int32_t key);

  // Change one value of a point. With auto-redraw on a value that is there already is no change,
  // and nothing is drawn. -1 for an unknown key, else 0 or the redraw's result.
  int ChangePointLegend(std::int32_t key, std::int16_t legend);
  int ChangePointNumberAndName(const Point& point);
  int ChangePointPosition(const Point& point);

  // The same for a 3-D point, without a redraw: the side view draws when it is asked to.
  int ChangePoint3Legend(std::int32_t key, std::int16_t legend);
  int ChangePoint3NumberAndName(const Point3& point);

  // Removes a point and the memo of its key. -1 for an unknown key; a memo of it is removed in any
  // case.
  int RemovePoint(std::int32_t key);

  // The code of the 3-D point store.
  int RemovePoint3(std::int32_t key);

  // Keep a text for a point key, or get it. The code of the memo store.
  int EnterMemo(std::int32_t key, const CString& memo);
  int ReadMemo(std::int32_t key, CString* memo);

  // Enters a line with the selected line legend; one that is there stays as it is. 0, or -1 when it
  // could not be added.
  int EnterLine(LineKeys keys);

  // End a figure, or delete every piece of a figure number, and redraw with auto-redraw on. 0, or
  // -1 while another process has the figure files or, to delete, when there is no figure at all.
  int EndFigure();
  int DeleteFigure(std::int32_t number);

  // The code of a search that found no such line, of a change that failed, or the redraw's result.
  int ChangeLineLegend(LineKeys keys, std::int16_t legend);

  // Remove a line, or all of them. The code of the line store.
  int RemoveLine(LineKeys keys);
  int ClearLines();

 private:
  struct Parts;

  // Before a change after which RedrawAfterChange is called: the redraw of that one takes the place
  // of a pending one, where there is one.
  void FinishRedrawUnlessAnotherFollows();

  template <class IsSame, class Change>
  int ChangePoint(std::int32_t key, IsSame is_same, Change change);

  std::unique_ptr<Parts> parts_;
  std::unique_ptr<CPlotWnd> window_;
  std::int16_t point_legend_;
  std::int16_t line_legend_;
  bool show_buttons_ = true;
  bool auto_redraw_ = false;
};

}  // namespace tavix
