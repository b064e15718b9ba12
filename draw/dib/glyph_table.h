// The glyphs of one font by letter.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "draw/dib/label_letters.h"

namespace tavix {

// Memory that several tables may take together, in bytes.
class MemoryBudget {
 public:
  explicit MemoryBudget(std::size_t bytes) : left_(bytes) {}
  MemoryBudget(const MemoryBudget&) = delete;
  MemoryBudget& operator=(const MemoryBudget&) = delete;

  [[nodiscard]] bool IsSpent() const { return left_ == 0; }

  // The last one to take may exceed what is left.
  std::size_t Take(std::size_t bytes) {
    const std::size_t taken = bytes < left_ ? bytes : left_;
    left_ -= taken;
    return taken;
  }
  void GiveBack(std::size_t taken) { left_ += taken; }

 private:
  std::size_t left_;
};

// Finds a glyph by two array accesses. What it has taken of the budget it gives back in the end.
template <class Glyph>
class GlyphTable {
 public:
  // A letter that has been asked for; without a glyph, it is left to GDI.
  using Entry = std::optional<Glyph>;

  // The budget outlives the table.
  explicit GlyphTable(MemoryBudget& budget) : budget_(budget) {}
  ~GlyphTable() { budget_.GiveBack(taken_); }
  GlyphTable(const GlyphTable&) = delete;
  GlyphTable& operator=(const GlyphTable&) = delete;

  // Whether there is no memory left for more.
  [[nodiscard]] bool IsFull() const { return budget_.IsSpent(); }

  // Null for a letter that has not been set.
  [[nodiscard]] Entry* Find(const Letter& letter) const {
    const Pages& pages = pages_[letter.is_prefixed ? 1 : 0];
    const std::size_t page = PageOf(letter);
    return page < pages.size() && pages[page] ? (*pages[page])[PlaceOf(letter)].get() : nullptr;
  }

  // Sets a letter for the first time. `bytes` is what its glyph takes in memory. The entry stays
  // where it is.
  Entry* Set(const Letter& letter, Entry entry, std::size_t bytes) {
    Pages& pages = pages_[letter.is_prefixed ? 1 : 0];
    const std::size_t page = PageOf(letter);
    if (page >= pages.size()) pages.resize(page + 1);
    if (!pages[page]) {
      pages[page] = std::make_unique<Page>();
      bytes += sizeof(Page);
    }
    taken_ += budget_.Take(bytes + sizeof(Entry));
    std::unique_ptr<Entry>& place = (*pages[page])[PlaceOf(letter)];
    place = std::make_unique<Entry>(std::move(entry));
    return place.get();
  }

 private:
  static constexpr std::size_t kPage = 256;
  using Page = std::array<std::unique_ptr<Entry>, kPage>;
  using Pages = std::vector<std::unique_ptr<Page>>;

  [[nodiscard]] static std::size_t PageOf(const Letter& letter) { return letter.character / kPage; }
  [[nodiscard]] static std::size_t PlaceOf(const Letter& letter) {
    return letter.character % kPage;
  }

  MemoryBudget& budget_;
  std::size_t taken_ = 0;
  std::array<Pages, 2> pages_;  // of letters without and with a prefix
};

}  // namespace tavix
