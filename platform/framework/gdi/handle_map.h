// The maps from handles to the C++ objects that represent them, and how an object gets its handle.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <unordered_map>

namespace afx {

// The objects that hold a handle permanently: one for each handle, the last one set.
template <class Object, class Handle>
class PermanentMap {
 public:
  Object* Find(Handle handle) const {
    const auto found = objects_.find(handle);
    return found == objects_.end() ? nullptr : found->second;
  }
  void Set(Handle handle, Object* object) { objects_[handle] = object; }
  // Does nothing when another object holds the handle.
  void Remove(Handle handle, const Object* object) {
    const auto found = objects_.find(handle);
    if (found != objects_.end() && found->second == object) objects_.erase(found);
  }
  std::size_t Size() const { return objects_.size(); }

 private:
  std::unordered_map<Handle, Object*> objects_;
};

// Objects created for handles without one, one for each handle, kept until the handle is dead. Dead
// entries are removed when the map has doubled, so that its size stays within twice the live
// handles.
//
// `Member` is the object's handle; alive(handle) is true while the handle is in use.
template <class Object, class Handle, auto Member, bool (*alive)(Handle)>
class TemporaryMap {
 public:
  Object* Get(Handle handle) {
    const auto found = objects_.find(handle);
    if (found != objects_.end()) return found->second.get();
    if (objects_.size() >= limit_) DropDead();
    auto object = std::make_unique<Object>();
    (*object).*Member = handle;
    return objects_.emplace(handle, std::move(object)).first->second.get();
  }
  std::size_t Size() const { return objects_.size(); }

 private:
  static constexpr std::size_t kSmallestLimit = 64;

  void DropDead() {
    std::erase_if(objects_, [](const auto& entry) { return !alive(entry.first); });
    limit_ = std::max(kSmallestLimit, 2 * objects_.size());
  }

  std::unordered_map<Handle, std::unique_ptr<Object>> objects_;
  std::size_t limit_ = kSmallestLimit;
};

// Attaches a handle that was just made or got. Without memory for that the handle is given back.
template <class Object, class Handle, class GiveBack>
auto AttachOrGiveBack(Object& object, Handle handle, GiveBack give_back) {
  try {
    return object.Attach(handle);
  } catch (const std::bad_alloc&) {
    give_back();
    throw;
  }
}

}  // namespace afx
