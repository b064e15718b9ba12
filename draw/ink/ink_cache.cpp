#include "draw/ink/ink_cache.h"

#include "draw/dib/verification.h"

namespace tavix {

InkCache& InkCache::OfProcess() {
  static InkCache cache;
  return cache;
}

const TieRule* InkCache::Lines() {
  if (!lines_probed_) lines_ = ProbeInkTieRule();
  lines_probed_ = true;
  return lines_ ? &*lines_ : nullptr;
}

const InkMark* InkCache::Mark(const PointSymbol& symbol) {
  const PointSymbol mark = MarkOnly(symbol);
  const CachedMark* cached = marks_.Get(mark, mark);
  return cached && cached->mark ? &*cached->mark : nullptr;
}

}  // namespace tavix
