// CString: comparing, searching, cutting, changing, formatting.
#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <string>
#include <string_view>
#include <utility>

#include "framework/string.h"
#include "platform/framework/base/modules.h"

namespace {

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

// What TrimLeft and TrimRight take away: how many characters at each end `belongs` accepts.
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

int CString::Compare(LPCWSTR other) const { return View(GetString()).compare(View(other)); }

int CString::CompareNoCase(LPCWSTR other) const {
  return CString(*this).MakeLower().Compare(CString(other).MakeLower());
}

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

int CString::Find(WCHAR ch, int start) const {
  return start < 0 ? -1 : ToIndex(View(*this).find(ch, static_cast<std::size_t>(start)));
}

int CString::Find(LPCWSTR text, int start) const {
  return start < 0 ? -1 : ToIndex(View(*this).find(View(text), static_cast<std::size_t>(start)));
}

int CString::ReverseFind(WCHAR ch) const { return ToIndex(View(*this).rfind(ch)); }

int CString::FindOneOf(LPCWSTR set) const { return ToIndex(View(*this).find_first_of(View(set))); }

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
  // The system's printf, in which %s is a wide string; it only says how long the result is when
  // asked to measure. The result may be made of this very string, so it is put together apart.
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

// ---- Resources

namespace {

struct ResourceText {
  const wchar_t* text = nullptr;
  int length = 0;
};

// The system hands out the string in place, not ended by a zero, when asked with a size of 0.
ResourceText FindText(HINSTANCE module, UINT id) {
  ResourceText found;
  found.length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&found.text), 0);
  return found;
}

}  // namespace

BOOL CString::LoadStringW(UINT id) {
  ResourceText found;
  // A block of sixteen strings may hold the id's place and no text there: the next module may.
  afx::FindInModules([&](HINSTANCE module) {
    found = FindText(module, id);
    return found.length > 0;
  });
  if (found.length <= 0) {
    Empty();
    return FALSE;
  }
  *this = CString(found.text, found.length);
  return TRUE;
}
