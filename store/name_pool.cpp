#include "store/name_pool.h"

namespace tavix {

PooledName NamePool::Add(NameView name) {
  const PooledName added{static_cast<std::uint32_t>(text_.size()),
                         static_cast<std::uint32_t>(name.size())};
  text_.append(name);
  return added;
}

void NamePool::Replace(PooledName& name, NameView text) {
  if (text.size() <= name.length) {
    wasted_ += name.length - text.size();
    text_.replace(name.offset, text.size(), text);
    name.length = static_cast<std::uint32_t>(text.size());
    return;
  }
  Drop(name);
  name = Add(text);
}

void NamePool::Clear() {
  text_.clear();
  text_.shrink_to_fit();
  wasted_ = 0;
}

}  // namespace tavix
