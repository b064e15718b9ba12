// The labels of one font, drawn letter by letter.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "draw/dib/glyph_table.h"
#include "draw/dib/label_letters.h"
#include "store/name_pool.h"
#include "view/coordinates.h"

namespace tavix {

// Glyphs are read back from GDI as labels need them, and compared with it:
//
//   - the first label with a new letter is drawn both by GDI and from its glyphs. When the two
//     differ, each new letter is compared alone, and those that differ are left to GDI; when it is
//     not the letters, all labels of the font are;
//   - so are the first labels in which one letter lies over another, and when they differ, all
//     such labels are left to GDI.
//
// `Font` knows the kind of bitmap that is drawn in:
//
//     Block, Reference                         what is drawn into, GDI's bitmap
//     Height(), kHighest                       of the font, in pixels; higher ones are left to GDI
//     MakeReference(length)                    for labels of that many letters
//     Read(reference, letter)                  the optional glyph of a letter
//     Draw(block, at, glyph)                   with its cell's top left corner at `at`
//     Glyph                                    the picture of a letter, with
//       Advance()                                pixels to the next letter
//       LeavesCell()                             whether it may lie over or under another
//       LiesUnder(next)                          whether the next one is drawn over a part of it
//       Bytes()                                  of memory, beside the object itself
template <class Font>
class GlyphCache {
  using Block = typename Font::Block;
  using Glyph = typename Font::Glyph;
  using Reference = typename Font::Reference;

 public:
  // Keeps letters until `budget`, which outlives the cache, is spent; other ones are left to GDI.
  GlyphCache(const Font& font, MemoryBudget& budget) : font_(font), glyphs_(budget) {}

  // Draws a label with its top left corner at `at`. False, and nothing drawn, for a label that is
  // left to GDI.
  [[nodiscard]] bool Draw(const Block& block, ScreenPoint at, NameView text) {
    if (is_refused_) return false;
    Row row;
    if (!FindPlain(text, row) && !FindLetters(text, row)) return false;
    const bool may_overlap = leaves_cell_ && proofs_of_overlap_ < kProofs;
    if (may_overlap && HasOverlap(row) && !ProveOverlap(text, row)) return false;
    DrawRow(block, at, row);
    return true;
  }

 private:
  using Entry = typename GlyphTable<Glyph>::Entry;
  using Letters = std::span<const Letter>;

  static constexpr int kProofs = 8;  // compared labels with letters over each other
  static constexpr int kDisproved = -1;

  // The glyphs of a label, from left to right.
  class Row {
   public:
    void Clear() { count_ = 0; }
    void Add(const Glyph& glyph) { glyphs_[count_++] = &glyph; }
    [[nodiscard]] std::span<const Glyph* const> All() const { return {glyphs_.data(), count_}; }

   private:
    std::array<const Glyph*, LabelLetters::kLongest> glyphs_;
    std::size_t count_ = 0;
  };

  // The short way for most labels, those without an '&' whose letters are all known. Otherwise
  // false.
  [[nodiscard]] bool FindPlain(NameView text, Row& row) const {
    if (text.size() > LabelLetters::kLongest) return false;
    for (const char16_t unit : text) {
      const Entry* entry = unit == u'&' ? nullptr : glyphs_.Find({unit});
      if (!entry || !*entry) return false;
      row.Add(**entry);
    }
    return true;
  }

  // False for a label that is left to GDI.
  [[nodiscard]] bool FindLetters(NameView text, Row& row) {
    const std::optional<LabelLetters> label = LabelLetters::Of(text);
    if (!label) return false;
    if (FindAll(label->All(), row)) return true;
    Learn(label->All());
    return !is_refused_ && FindAll(label->All(), row);
  }

  // False where a letter is not known or left to GDI.
  [[nodiscard]] bool FindAll(Letters letters, Row& row) const {
    row.Clear();
    for (const Letter& letter : letters) {
      const Entry* entry = glyphs_.Find(letter);
      if (!entry || !*entry) return false;
      row.Add(**entry);
    }
    return true;
  }

  // Reads back and compares the letters that are not known.
  void Learn(Letters letters) {
    if (font_.Height() > Font::kHighest || glyphs_.IsFull() || KnowsAll(letters)) return;
    Reference single = font_.MakeReference(1);
    Reference whole = font_.MakeReference(static_cast<int>(letters.size()));
    if (!single.IsMade() || !whole.IsMade()) return;
    std::vector<Letter> added;
    for (const Letter& letter : letters) {
      if (glyphs_.Find(letter)) continue;
      Entry glyph = font_.Read(single, letter);
      const std::size_t bytes = glyph ? glyph->Bytes() : 0;
      leaves_cell_ = leaves_cell_ || (glyph && glyph->LeavesCell());
      glyphs_.Set(letter, std::move(glyph), bytes);
      added.push_back(letter);
    }
    if (IsSameWithoutGaps(whole, letters)) return;
    if (LeavesToGdi(single, added) && IsSameWithoutGaps(whole, letters)) return;
    if (HasOverlap(WithoutGaps(letters).second)) {
      proofs_of_overlap_ = kDisproved;
    } else {
      is_refused_ = true;
    }
  }

  [[nodiscard]] bool KnowsAll(Letters letters) const {
    return std::all_of(letters.begin(), letters.end(),
                       [&](const Letter& letter) { return glyphs_.Find(letter); });
  }

  // The label without the letters that are left to GDI: its text and its glyphs.
  [[nodiscard]] std::pair<std::u16string, Row> WithoutGaps(Letters letters) const {
    std::pair<std::u16string, Row> rest;
    for (const Letter& letter : letters) {
      const Entry& entry = *glyphs_.Find(letter);
      if (!entry) continue;
      rest.first += letter.Spelled();
      rest.second.Add(*entry);
    }
    return rest;
  }

  [[nodiscard]] bool IsSameWithoutGaps(Reference& reference, Letters letters) const {
    const auto& [text, row] = WithoutGaps(letters);
    return IsSame(reference, text, row);
  }

  [[nodiscard]] bool IsSame(Reference& reference, NameView text, const Row& row) const {
    return reference.IsGdiLabel(
        text, [&](const Block& block, ScreenPoint at) { DrawRow(block, at, row); });
  }

  // Leaves those letters to GDI that are not the same when they are drawn alone. True when there
  // are any.
  bool LeavesToGdi(Reference& single, Letters letters) {
    bool any = false;
    for (const Letter& letter : letters) {
      Entry& entry = *glyphs_.Find(letter);
      if (!entry || IsSameWithoutGaps(single, {&letter, 1})) continue;
      entry.reset();
      any = true;
    }
    return any;
  }

  [[nodiscard]] static bool HasOverlap(const Row& row) {
    const auto glyphs = row.All();
    return std::adjacent_find(glyphs.begin(), glyphs.end(), [](const Glyph* a, const Glyph* b) {
             return a->LiesUnder(*b);
           }) != glyphs.end();
  }

  // Whether a label with letters over each other is the same as GDI's.
  [[nodiscard]] bool ProveOverlap(NameView text, const Row& row) {
    if (proofs_of_overlap_ == kDisproved) return false;
    Reference whole = font_.MakeReference(static_cast<int>(row.All().size()));
    if (!whole.IsMade()) return false;
    const bool is_same = IsSame(whole, text, row);
    proofs_of_overlap_ = is_same ? proofs_of_overlap_ + 1 : kDisproved;
    return is_same;
  }

  void DrawRow(const Block& block, ScreenPoint at, const Row& row) const {
    for (const Glyph* glyph : row.All()) {
      font_.Draw(block, at, *glyph);
      at.x += glyph->Advance();
    }
  }

  Font font_;
  bool is_refused_ = false;
  bool leaves_cell_ = false;  // a glyph does, and may lie over another
  int proofs_of_overlap_ = 0;
  GlyphTable<Glyph> glyphs_;
};

}  // namespace tavix
