#include "draw/ink/ink_cache.h"

#include "draw/dib/verification.h"

namespace tavix {

InkCache& InkCache::OfProcess() {
  static InkCache cache;
  return cache;
}

const InkMark* InkCache::Mark(const PointSymbol& symbol) {
  const PointSymbol mark = MarkOnly(symbol);
  const CachedMark* cached = marks_.Get(mark, mark);
  return cached && cached->mark ? &*cached->mark : nullptr;
}

}  // namespace tavix
