// The buffer that a read of record properties fills.
#pragma once

#include <windbase.h>

#include <cstddef>
#include <span>
#include <vector>

#include "platform/objectstore/property.h"

// The values of a record that a caller asked for, ready to be laid out in one stretch of memory:
// the CEPROPVAL structures first, then the strings and blobs they point to.
class ReadLayout {
 public:
  // All properties of the record, or those of `wanted` in its order, absent ones marked.
  explicit ReadLayout(std::span<const tavix::Property> record);
  ReadLayout(std::span<const tavix::Property> record, std::span<const CEPROPID> wanted);

  [[nodiscard]] std::size_t Count() const { return values_.size(); }
  [[nodiscard]] bool HasAnyValue() const { return found_ > 0; }
  [[nodiscard]] std::size_t Bytes() const;

  // Into memory of Bytes() bytes, aligned as LocalAlloc aligns.
  void Write(LPBYTE buffer) const;

 private:
  void Add(CEPROPID id, const tavix::Property* property);

  struct Value {
    CEPROPVAL head;
    std::span<const std::byte> data;  // of a string with its zero, or of a blob
  };
  std::vector<Value> values_;
  std::size_t found_ = 0;
};

// Makes *buffer hold at least `wanted` bytes and stores that number in *size. A buffer that is too
// small is freed and allocated anew when that is allowed, else FALSE with
// ERROR_INSUFFICIENT_BUFFER; FALSE with ERROR_OUTOFMEMORY and a null buffer when there is none.
bool MakeRoom(LPBYTE* buffer, LPDWORD size, std::size_t wanted, bool may_reallocate);
