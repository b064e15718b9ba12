// The legend of one instance, with the file it lives in.
#pragma once

#include <string>

#include "store/legend_table.h"

namespace tavix {

// Loads the legend from "\HANREI.DAT" in the host's current data folder when it is made; its owner
// has it saved there at the end. A missing or bad file gives the built-in legend; a bad one is
// deleted. So does a file that cannot be read now, as when another program holds it; that one is
// left alone, and saved over only when the legend has been changed since. Nothing is reported.
//
// Compatibility: the file's path is one for the whole library and is found out again with each
// legend, so the legend of an instance made earlier is saved into the folder of the one made last.
class CHanrei {
 public:
  CHanrei();

  void Save() const;

  [[nodiscard]] LegendTable& Table() { return table_; }
  [[nodiscard]] const LegendTable& Table() const { return table_; }

 private:
  LegendTable table_;
  // Of a file that could not be read: what would be saved if nothing changed. Empty otherwise.
  std::string unread_;
};

}  // namespace tavix
