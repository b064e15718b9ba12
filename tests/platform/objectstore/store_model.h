// A simple model of the store's rules, without any optimisation: one database, whose order is found
// by sorting all records each time. Random sequences are applied to it and to the store.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/objectstore/object_store.h"

namespace tavix {

// A record of the model: a number and a text, either of which may be missing, and properties of any
// type that no order uses.
struct ModelRecord {
  std::optional<std::int16_t> number;
  std::optional<std::u16string> text;
  std::map<std::uint32_t, std::uint8_t> others;  // by their identifiers; the value is made of this
};

struct ModelOrder {
  bool by_text = false;
  bool descending = false;
  bool unknown_first = false;
};

class StoreModel {
 public:
  std::map<ObjectId, ModelRecord> records;

  [[nodiscard]] std::vector<ObjectId> Sorted(const ModelOrder& order) const {
    std::vector<ObjectId> ids;
    for (const auto& [id, record] : records) ids.push_back(id);
    std::ranges::stable_sort(
        ids, [&](ObjectId one, ObjectId other) { return Compare(order, one, other) < 0; });
    return ids;
  }

  // Below 0 when record `one` comes before record `other`, 0 when their values are equal.
  [[nodiscard]] int Compare(const ModelOrder& order, ObjectId one, ObjectId other) const {
    const ModelRecord& left = records.at(one);
    const ModelRecord& right = records.at(other);
    return order.by_text ? CompareValues(order, left.text, right.text)
                         : CompareValues(order, left.number, right.number);
  }

  template <class Value>
  static int CompareValues(const ModelOrder& order, const std::optional<Value>& left,
                           const std::optional<Value>& right) {
    if (left.has_value() != right.has_value()) {
      return left.has_value() == order.unknown_first ? 1 : -1;
    }
    if (!left || *left == *right) return 0;
    return (*left < *right) == order.descending ? 1 : -1;
  }
};

// One handle of the model: a place among the sorted records.
struct ModelCursor {
  ModelOrder order;
  std::optional<ObjectId> record;  // without a value: the end
  bool deleted = false;            // `record` is the one after a deleted record
};

}  // namespace tavix
