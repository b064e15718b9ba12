// CString: comparing, searching, cutting, changing, formatting.
#include <algorithm>
#include <cwchar>
#include <string>
#include <string_view>
#include <utility>

#include "framework/string.h"

namespace {

constexpr LPCWSTR kWhiteSpace = L" \t\n\v\f\r";

std::wstring_view View(const CString& text) {
  return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

std::wstring_view View(LPCWSTR text) {
  return text ? std::wstring_view(text) : std::wstring_view();
}

int ToIndex(std::wstring_view::size_type place) {
  return place == std::wstring_view::npos ? -1 : static_cast<int>(place);
}

}  // namespace

int CString::Compare(LPCWSTR other) const { return View(*this).compare(View(other)); }

int CString::CompareNoCase(LPCWSTR other) const {
  const std::wstring_view a = View(*this);
  const std::wstring_view b = View(other);
  return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), other ? b.data() : L"",
                              static_cast<int>(b.size()), TRUE) -
         CSTR_EQUAL;
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

CString& CString::TrimLeft() { return TrimLeft(kWhiteSpace); }

CString& CString::TrimRight() { return TrimRight(kWhiteSpace); }

CString& CString::TrimLeft(LPCWSTR set) {
  const auto first = View(*this).find_first_not_of(View(set));
  Delete(0, first == std::wstring_view::npos ? GetLength() : static_cast<int>(first));
  return *this;
}

CString& CString::TrimRight(LPCWSTR set) {
  const auto last = View(*this).find_last_not_of(View(set));
  Delete(last == std::wstring_view::npos ? 0 : static_cast<int>(last) + 1, GetLength());
  return *this;
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
  const int length = ::_vscwprintf(format, arguments);
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
