// The records of one database in memory.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

#include "platform/objectstore/object_store.h"

namespace tavix {

// Records have numbered slots; a slot keeps its number while its record exists and may be reused
// afterwards. The slots lie in pages of rows, the rows of a page one after another and all of one
// layout:
//
//   slots        0   1   2  ...  255 | 256  257  ... | 512 ...
//   page         layout A             layout B        layout A
//   a row        identifier (4 bytes), then the values, each in its own size
//
// A record whose properties change to those of another layout keeps its slot, and its values move
// to a row of another page. Strings and blobs are separate allocations that the heap owns.
class RecordHeap {
 public:
  using Slot = std::uint32_t;

  RecordHeap() = default;
  RecordHeap(const RecordHeap&) = delete;
  RecordHeap& operator=(const RecordHeap&) = delete;
  ~RecordHeap();

  // The values are copied. Add and Replace leave the heap as it is when there is no memory for
  // them; Remove needs none.
  Slot Add(ObjectId id, std::span<const Property> properties);

  // `properties` may point into the heap, as those of the same record do.
  void Replace(Slot slot, std::span<const Property> properties);

  void Remove(Slot slot);

  // 0 for a slot without a record.
  [[nodiscard]] ObjectId Id(Slot slot) const;

  // Valid until the heap changes.
  [[nodiscard]] RecordValues Properties(Slot slot) const {
    const Slot row = RowOf(slot);
    return {pages_[row / kRows].shape->layout, ValuesIn(row)};
  }

  // All slots are below this one; those with the identifier 0 are free.
  [[nodiscard]] Slot SlotEnd() const { return static_cast<Slot>(pages_.size() * kRows); }

  [[nodiscard]] std::size_t Count() const { return count_; }

  // The size of all values in bytes.
  [[nodiscard]] std::uint64_t Bytes() const { return bytes_; }

 private:
  static constexpr Slot kRows = 256;  // of a page
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  // A layout that pages use.
  struct Shape {
    RecordLayout layout;
    std::size_t hash = 0;  // of its identifiers
    std::uint32_t pages = 0;
    std::uint32_t with_room = kNone;  // the first page that has a free row
  };
  using Shapes = std::unordered_multimap<std::size_t, Shape>;  // by their hash

  // Which rows of a page are in use.
  class RowSet {
   public:
    [[nodiscard]] bool Has(Slot row) const { return (words_[row / 64] >> row % 64 & 1) != 0; }
    void Insert(Slot row) {
      words_[row / 64] |= std::uint64_t{1} << row % 64;
      ++count_;
    }
    void Erase(Slot row) {
      words_[row / 64] &= ~(std::uint64_t{1} << row % 64);
      --count_;
    }
    [[nodiscard]] bool IsEmpty() const { return count_ == 0; }
    [[nodiscard]] bool IsFull() const { return count_ == kRows; }
    // There is one.
    [[nodiscard]] Slot FirstFree() const {
      std::size_t word = 0;
      while (words_[word] == ~std::uint64_t{0}) ++word;
      return static_cast<Slot>(word * 64 + static_cast<std::size_t>(std::countr_one(words_[word])));
    }

   private:
    std::array<std::uint64_t, kRows / 64> words_{};
    std::uint32_t count_ = 0;
  };

  struct Page {
    Shape* shape = nullptr;       // null for a page without rows
    std::vector<std::byte> rows;  // up to the last one that was in use
    RowSet taken;
    std::uint32_t moved = 0;     // records of the page whose values are elsewhere
    std::uint32_t next = kNone;  // in the list of those with room, or of those without rows
    std::uint32_t previous = kNone;
  };

  [[nodiscard]] static std::size_t RowBytes(const Shape& shape) {
    return sizeof(ObjectId) + shape.layout.RowBytes();
  }
  [[nodiscard]] const std::byte* RowAt(Slot row) const {
    const Page& page = pages_[row / kRows];
    return page.rows.data() + row % kRows * RowBytes(*page.shape);
  }
  [[nodiscard]] std::byte* RowAt(Slot row) {
    Page& page = pages_[row / kRows];
    return page.rows.data() + row % kRows * RowBytes(*page.shape);
  }
  [[nodiscard]] const std::byte* ValuesIn(Slot row) const { return RowAt(row) + sizeof(ObjectId); }
  // Where the values of a record are: in its own row, unless they have moved.
  [[nodiscard]] Slot RowOf(Slot slot) const {
    return pages_[slot / kRows].moved == 0 ? slot : MovedRowOf(slot);
  }
  [[nodiscard]] Slot MovedRowOf(Slot slot) const;

  Shape& ShapeFor(std::span<const Property> properties);
  // A free row for the shape, which is taken only by Take; until then nothing has changed.
  Slot FreeRow(Shape& shape);
  void Take(Slot row);
  void GiveBack(Slot row);
  std::uint32_t MakePage(Shape& shape);
  void DropPage(std::uint32_t number);
  void ListAsWithRoom(std::uint32_t number);
  void Unlist(std::uint32_t number);

  // A row of the shape in fresh_, with copies of strings and blobs.
  void Encode(const Shape& shape, ObjectId id, std::span<const Property> properties);
  void CopyFresh(Slot row);
  // Frees the strings and blobs of a row, and counts its values no longer.
  void FreeValues(Slot row);

  Shapes shapes_;
  Shape* recent_ = nullptr;  // the one that was used last
  std::vector<Page> pages_;
  std::uint32_t empty_pages_ = kNone;     // the first of a list
  std::unordered_map<Slot, Slot> moved_;  // from slots to the rows of their values
  std::vector<std::byte> fresh_;          // reused
  std::size_t count_ = 0;
  std::uint64_t bytes_ = 0;
};

}  // namespace tavix
