// CString: storage, assignment, joining.
#include "framework/string.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <new>
#include <utility>

// The characters of one or more strings, with a count of the strings that share them. They lie
// right behind the block, closed by a NUL.
struct CString::Block {
  long users;
  int length;
  int capacity;  // without the NUL

  [[nodiscard]] LPWSTR Characters() { return reinterpret_cast<LPWSTR>(this + 1); }

  static Block* Of(LPWSTR characters) { return reinterpret_cast<Block*>(characters) - 1; }

  static Block* New(int capacity) {
    const std::size_t bytes =
        sizeof(Block) + (static_cast<std::size_t>(capacity) + 1) * sizeof(WCHAR);
    return new (::operator new(bytes)) Block{1, 0, capacity};
  }
};

namespace {

WCHAR g_empty[] = L"";

int LengthOf(LPCWSTR text) { return text ? static_cast<int>(std::wcslen(text)) : 0; }

}  // namespace

CString::CString() : characters_(g_empty) {}

CString::CString(const CString& other) : characters_(other.characters_) {
  if (Block* block = Shared()) InterlockedIncrement(&block->users);
}

CString::CString(CString&& other) noexcept
    : characters_(std::exchange(other.characters_, g_empty)) {}

CString::CString(LPCWSTR text) : CString(text, LengthOf(text)) {}

CString::CString(LPCSTR text) : CString() { *this = text; }

CString::CString(WCHAR ch, int repeat) : CString() {
  if (repeat <= 0) return;
  std::fill_n(GetBufferSetLength(repeat), repeat, ch);
}

CString::CString(LPCWSTR text, int length) : CString() {
  if (text) Assign(text, length);
}

CString::~CString() { Release(); }

CString& CString::operator=(const CString& other) {
  CString copy(other);
  std::swap(characters_, copy.characters_);
  return *this;
}

CString& CString::operator=(CString&& other) noexcept {
  std::swap(characters_, other.characters_);
  return *this;
}

CString& CString::operator=(LPCWSTR text) {
  Assign(text, LengthOf(text));
  return *this;
}

CString& CString::operator=(LPCSTR text) {
  const int count = text ? MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0) : 0;
  if (count <= 1) {  // the closing NUL alone
    Empty();
    return *this;
  }
  MultiByteToWideChar(CP_ACP, 0, text, -1, GetBufferSetLength(count - 1), count);
  return *this;
}

CString& CString::operator=(WCHAR ch) {
  Assign(&ch, 1);
  return *this;
}

int CString::GetLength() const {
  const Block* block = Shared();
  return block ? block->length : 0;
}

void CString::Empty() {
  Release();
  characters_ = g_empty;
}

void CString::SetAt(int index, WCHAR ch) {
  MakeWritable(GetLength());
  characters_[index] = ch;
}

CString& CString::operator+=(const CString& text) {
  Splice(GetLength(), 0, text, text.GetLength());
  return *this;
}

CString& CString::operator+=(LPCWSTR text) {
  Splice(GetLength(), 0, text, LengthOf(text));
  return *this;
}

CString& CString::operator+=(WCHAR ch) {
  Splice(GetLength(), 0, &ch, 1);
  return *this;
}

int CString::Insert(int index, WCHAR ch) {
  Splice(std::clamp(index, 0, GetLength()), 0, &ch, 1);
  return GetLength();
}

int CString::Insert(int index, LPCWSTR text) {
  Splice(std::clamp(index, 0, GetLength()), 0, text, LengthOf(text));
  return GetLength();
}

int CString::Delete(int index, int count) {
  const int first = std::max(index, 0);
  if (first < GetLength() && count > 0) {
    Splice(first, std::min(count, GetLength() - first), nullptr, 0);
  }
  return GetLength();
}

LPWSTR CString::GetBuffer(int minLength) {
  MakeWritable(std::max(minLength, GetLength()));
  return characters_;
}

LPWSTR CString::GetBufferSetLength(int length) {
  GetBuffer(length);
  ReleaseBuffer(length);
  return characters_;
}

void CString::ReleaseBuffer(int newLength) {
  Block* block = Shared();
  if (!block) return;
  if (newLength < 0) {
    const WCHAR* end = std::find(characters_, characters_ + block->capacity, L'\0');
    newLength = static_cast<int>(end - characters_);
  }
  block->length = std::min(newLength, block->capacity);
  characters_[block->length] = L'\0';
}

CString::Block* CString::Shared() const {
  return characters_ == g_empty ? nullptr : Block::Of(characters_);
}

void CString::Release() {
  Block* block = Shared();
  if (block && InterlockedDecrement(&block->users) == 0) ::operator delete(block);
}

void CString::Assign(LPCWSTR text, int length) {
  if (length <= 0) {
    Empty();
    return;
  }
  Splice(0, GetLength(), text, length);
}

// Replaces `removed` characters from `index` on by `length` characters of `text`, which may be part
// of this very string: the result is put together in a new block unless there is room behind the
// end of one that is this string's alone.
void CString::Splice(int index, int removed, LPCWSTR text, int length) {
  const int old_length = GetLength();
  const int new_length = old_length - removed + length;
  Block* block = Shared();
  const bool appends = index == old_length && removed == 0;
  if (appends && block && block->users == 1 && block->capacity >= new_length) {
    std::copy_n(text, length, characters_ + old_length);
    ReleaseBuffer(new_length);
    return;
  }
  // Room to grow by half, so that a string built piece by piece is copied seldom.
  const int room = appends && old_length > 0 ? new_length + new_length / 2 : new_length;
  LPWSTR joined = Block::New(room)->Characters();
  std::copy_n(characters_, index, joined);
  std::copy_n(text, length, joined + index);
  std::copy(characters_ + index + removed, characters_ + old_length, joined + index + length);
  Release();
  characters_ = joined;
  ReleaseBuffer(new_length);
}

void CString::MakeWritable(int capacity) {
  Block* block = Shared();
  if (block && block->users == 1 && block->capacity >= capacity) return;
  const int length = GetLength();
  LPWSTR own = Block::New(std::max(capacity, length))->Characters();
  std::copy_n(characters_, length, own);
  Release();
  characters_ = own;
  ReleaseBuffer(length);
}

CString operator+(const CString& a, const CString& b) {
  CString sum(a);
  sum += b;
  return sum;
}

CString operator+(const CString& a, LPCWSTR b) {
  CString sum(a);
  sum += b;
  return sum;
}

CString operator+(LPCWSTR a, const CString& b) {
  CString sum(a);
  sum += b;
  return sum;
}

CString operator+(const CString& a, WCHAR b) {
  CString sum(a);
  sum += b;
  return sum;
}

CString operator+(WCHAR a, const CString& b) {
  CString sum(a);
  sum += b;
  return sum;
}
