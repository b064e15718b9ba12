#include "frame/line_calls.h"

#include "frame/redraw.h"

namespace tavix {

int EnterLine(TavixSlot& slot, LineKeys keys) {
  if (slot.lines->Find(keys) == 0) return 0;
  Line line{0, keys, slot.selected_line_legend};
  const int code = slot.lines->Add(keys, line.legend, &line.id);
  if (code == 0 && slot.auto_redraw && slot.window) slot.window->DrawNewLine(line);
  return code;
}

int ChangeLineLegend(TavixSlot& slot, LineKeys keys, std::int16_t legend) {
  if (const int code = slot.lines->Find(keys); code != 0) return code;
  Line old;
  if (slot.auto_redraw && slot.lines->ReadCur(&old) == 0 && old.legend == legend) return 0;
  return RedrawAfterChange(slot, slot.lines->SetCurHan(legend));
}

}  // namespace tavix
