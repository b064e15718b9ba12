#include "framework/string.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <cwctype>
#include <new>
#include <string>
#include <string_view>
#include <utility>

// The header of a string's characters, with the number of strings that share them. The characters
// follow the header and end with a NUL.
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

std::wstring_view View(const CString& text) {
  return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

std::wstring_view View(LPCWSTR text) {
  return text ? std::wstring_view(text) : std::wstring_view();
}

int ToIndex(std::wstring_view::size_type place) {
  return place == std::wstring_view::npos ? -1 : static_cast<int>(place);
}

bool IsSpace(WCHAR ch) { return std::iswspace(ch) != 0; }

// How many characters at the start or the end satisfy `belongs`.
template <class Belongs>
int CountAtStart(std::wstring_view text, Belongs belongs) {
  return static_cast<int>(std::find_if_not(text.begin(), text.end(), belongs) - text.begin());
}

template <class Belongs>
int CountAtEnd(std::wstring_view text, Belongs belongs) {
  return static_cast<int>(std::find_if_not(text.rbegin(), text.rend(), belongs) - text.rbegin());
}

CString& CutTo(CString& text, int length) {
  text.Delete(length, text.GetLength());
  return text;
}

auto OneOf(LPCWSTR set) {
  return [set](WCHAR ch) { return View(set).find(ch) != std::wstring_view::npos; };
}

}  // namespace

// ---- Making and assigning

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

// ---- Characters

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

// ---- Joining

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

CString operator+(const CString& a, const CString& b) { return CString(a) += b; }
CString operator+(const CString& a, LPCWSTR b) { return CString(a) += b; }
CString operator+(LPCWSTR a, const CString& b) { return CString(a) += b; }
CString operator+(const CString& a, WCHAR b) { return CString(a) += b; }
CString operator+(WCHAR a, const CString& b) { return CString(a) += b; }

// ---- Comparing

int CString::Compare(LPCWSTR other) const { return View(GetString()).compare(View(other)); }

int CString::CompareNoCase(LPCWSTR other) const {
  return CString(*this).MakeLower().Compare(CString(other).MakeLower());
}

// ---- Parts

CString CString::Mid(int first, int count) const {
  const int start = std::clamp(first, 0, GetLength());
  return {characters_ + start, std::clamp(count, 0, GetLength() - start)};
}

CString CString::Mid(int first) const { return Mid(first, GetLength()); }

CString CString::Left(int count) const { return Mid(0, count); }

CString CString::Right(int count) const { return Mid(GetLength() - std::max(count, 0)); }

CString CString::SpanIncluding(LPCWSTR set) const {
  const auto end = View(*this).find_first_not_of(View(set));
  return Left(end == std::wstring_view::npos ? GetLength() : static_cast<int>(end));
}

CString CString::SpanExcluding(LPCWSTR set) const {
  const int end = FindOneOf(set);
  return Left(end < 0 ? GetLength() : end);
}

// ---- Searching

int CString::Find(WCHAR ch, int start) const {
  return start < 0 ? -1 : ToIndex(View(*this).find(ch, static_cast<std::size_t>(start)));
}

int CString::Find(LPCWSTR text, int start) const {
  return start < 0 ? -1 : ToIndex(View(*this).find(View(text), static_cast<std::size_t>(start)));
}

int CString::ReverseFind(WCHAR ch) const { return ToIndex(View(*this).rfind(ch)); }

int CString::FindOneOf(LPCWSTR set) const { return ToIndex(View(*this).find_first_of(View(set))); }

// ---- Changing in place

CString& CString::MakeUpper() {
  CharUpperBuffW(GetBuffer(), static_cast<DWORD>(GetLength()));
  return *this;
}

CString& CString::MakeLower() {
  CharLowerBuffW(GetBuffer(), static_cast<DWORD>(GetLength()));
  return *this;
}

CString& CString::MakeReverse() {
  LPWSTR text = GetBuffer();
  std::reverse(text, text + GetLength());
  return *this;
}

CString& CString::Trim() { return TrimRight().TrimLeft(); }

CString& CString::TrimLeft() {
  Delete(0, CountAtStart(View(*this), IsSpace));
  return *this;
}

CString& CString::TrimRight() {
  return CutTo(*this, GetLength() - CountAtEnd(View(*this), IsSpace));
}

CString& CString::Trim(WCHAR ch) { return TrimRight(ch).TrimLeft(ch); }

CString& CString::TrimLeft(WCHAR ch) {
  const WCHAR set[] = {ch, L'\0'};
  return TrimLeft(set);
}

CString& CString::TrimRight(WCHAR ch) {
  const WCHAR set[] = {ch, L'\0'};
  return TrimRight(set);
}

CString& CString::Trim(LPCWSTR set) {
  const CString kept(set);  // `set` may be part of this string
  return TrimRight(kept).TrimLeft(kept);
}

CString& CString::TrimLeft(LPCWSTR set) {
  Delete(0, CountAtStart(View(*this), OneOf(set)));
  return *this;
}

CString& CString::TrimRight(LPCWSTR set) {
  return CutTo(*this, GetLength() - CountAtEnd(View(*this), OneOf(set)));
}

int CString::Replace(WCHAR from, WCHAR to) {
  int changed = 0;
  for (int i = Find(from); i >= 0; i = Find(from, i + 1)) {
    SetAt(i, to);
    ++changed;
  }
  return from == to ? 0 : changed;
}

int CString::Replace(LPCWSTR from, LPCWSTR to) {
  const std::wstring_view wanted = View(from);
  if (wanted.empty()) return 0;
  int changed = 0;
  std::wstring result;
  std::wstring_view rest = View(*this);
  for (auto at = rest.find(wanted); at != std::wstring_view::npos; at = rest.find(wanted)) {
    result.append(rest.substr(0, at)).append(View(to));
    rest.remove_prefix(at + wanted.size());
    ++changed;
  }
  if (changed == 0) return 0;
  result.append(rest);
  Assign(result.data(), static_cast<int>(result.size()));
  return changed;
}

int CString::Remove(WCHAR ch) {
  LPWSTR text = GetBuffer();
  const WCHAR* end = std::remove(text, text + GetLength(), ch);
  const int removed = GetLength() - static_cast<int>(end - text);
  ReleaseBuffer(GetLength() - removed);
  return removed;
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

// ---- Formatting

void CString::Format(LPCWSTR format, ...) {
  va_list arguments;
  va_start(arguments, format);
  FormatV(format, arguments);
  va_end(arguments);
}

void CString::AppendFormat(LPCWSTR format, ...) {
  va_list arguments;
  va_start(arguments, format);
  CString more;
  more.FormatV(format, arguments);
  va_end(arguments);
  *this += more;
}

void CString::Format(UINT formatId, ...) {
  CString format;
  if (!format.LoadStringW(formatId)) return;
  va_list arguments;
  va_start(arguments, formatId);
  FormatV(format, arguments);
  va_end(arguments);
}

void CString::FormatV(LPCWSTR format, va_list arguments) {
  // In the printf functions of the system's C library %s is a wide string; only _vscwprintf returns
  // the length of a result that does not fit. The arguments may point into this string, so the
  // result is built in another one.
  va_list again;
  va_copy(again, arguments);
  const int length = format ? ::_vscwprintf(format, arguments) : 0;
  if (length > 0) {
    CString result;
    ::_vsnwprintf(result.GetBufferSetLength(length), static_cast<std::size_t>(length) + 1, format,
                  again);
    *this = std::move(result);
  } else if (length == 0) {
    Empty();
  }
  va_end(again);
}

// ---- Direct writing

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

// ---- Storage

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
// of this string: the result is built in a new block, unless the text is appended to an unshared
// block with room for it.
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
  // Grows by half, so that a string that is built by appending is copied rarely.
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
