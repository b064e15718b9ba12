// The settings dialog's working copy of any legend, edited in any order: what the controls are to
// show is within their lists, what is chosen is shown again, and only Save changes the legend.

#include "fuzzers/fuzz_input.h"
#include "window/settings/legend_editor.h"

namespace {

using namespace tavix;
using fuzz::FuzzInput;
using fuzz::Require;

constexpr int kEntries = LegendTable::kPointLegends;

LegendTable LegendFrom(FuzzInput& input) {
  LegendTable legend;
  for (std::int16_t number = 1; number <= kEntries; ++number) {
    LegendValues values;
    for (std::int32_t* value :
         {&values.kind, &values.prm1, &values.prm2, &values.prm3, &values.width, &values.color}) {
      *value = input.Whole();
    }
    Require(legend.Change(number, true, values) == 0, "a built-in entry can be changed");
  }
  return legend;
}

bool IsLine(int line) { return line >= 0 && line < LegendEditor::kLines; }

bool IsSame(const LegendChoice& a, const LegendChoice& b) {
  return a.mark_line == b.mark_line && a.text_line == b.text_line &&
         a.shows_number == b.shows_number;
}

LegendChoice Select(LegendEditor& editor, int entry) {
  const LegendChoice choice = editor.Select(entry);
  Require(editor.Selected() == entry, "the selected entry is current");
  Require(IsLine(choice.mark_line) && IsLine(choice.text_line), "what is shown is in the lists");
  return choice;
}

void Step(LegendEditor& editor, FuzzInput& input) {
  switch (input.Below(4)) {
    case 0:
      Select(editor, static_cast<int>(input.Below(kEntries)));
      return;
    case 1: {
      const LegendChoice choice{static_cast<int>(input.Below(LegendEditor::kLines)),
                                static_cast<int>(input.Below(LegendEditor::kLines)), input.Coin()};
      editor.Take(choice);
      Require(IsSame(choice, Select(editor, editor.Selected())), "what is chosen is shown again");
      return;
    }
    case 2: {
      const int color = input.Whole();
      editor.SetColor(color);
      Require(editor.Color() == color, "a colour is kept");
      return;
    }
    default: {
      const int selected = editor.Selected();
      const LegendChoice choice = Select(editor, selected);
      const std::int32_t color = editor.Color();
      editor.CopyToAll();
      for (int entry = 0; entry < kEntries; ++entry) {
        Require(IsSame(choice, Select(editor, entry)) && editor.Color() == color,
                "a copied choice is that of every entry");
      }
      Select(editor, selected);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  LegendTable legend = LegendFrom(input);
  const std::vector<HanRec> before = legend.Entries();
  LegendEditor editor(legend);
  for (int steps = 0; steps < 100 && !input.IsEmpty(); ++steps) Step(editor, input);
  Require(legend.Entries() == before, "editing leaves the legend alone");
  editor.Save(legend);
  for (std::size_t i = 0; i < before.size(); ++i) {
    const bool edited = i < editor.Entries().size();
    Require(legend.Entries()[i] == (edited ? editor.Entries()[i] : before[i]),
            "a save writes the point legends and nothing else");
  }
  return 0;
}
