#include "store/hanrei.h"

#include "store/legend_codec.h"
#include "store/legend_file.h"

namespace tavix {
namespace {

// Library-wide: see the class comment.
LegendFile& SharedFile() {
  static LegendFile file;
  return file;
}

}  // namespace

CHanrei::CHanrei() {
  SharedFile() = LegendFile::InDataFolder();
  if (!SharedFile().Exists()) return;
  const std::optional<std::string> bytes = SharedFile().Read();
  if (!bytes) {
    unread_ = EncodeLegend(table_);
  } else if (!DecodeLegend(*bytes, table_)) {
    SharedFile().Remove();
  }
}

void CHanrei::Save() const {
  const std::string bytes = EncodeLegend(table_);
  if (bytes != unread_) SharedFile().Save(bytes);
}

}  // namespace tavix
