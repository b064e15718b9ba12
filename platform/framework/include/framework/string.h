// CString: a string of UTF-16 characters.
//
// One pointer wide. Copies share their characters until one of them changes; the count of users is
// thread-safe, an object is used by one thread at a time. The memory is allocated and freed inside
// framework.dll, so that an object can be passed between DLLs by value.
//
// Differs from the usual class: always wide; no choice of a memory manager; an index out of range
// is not asserted (Mid, Left and Right clamp).
#pragma once

#include <cstdarg>

#include "platform.h"

class AFX_FRAMEWORK CString {
 public:
  // ---- Construction and assignment; a null pointer is an empty string

  CString();
  CString(const CString& other);
  CString(CString&& other) noexcept;
  CString(LPCWSTR text);
  explicit CString(LPCSTR text);  // from the ANSI code page
  explicit CString(WCHAR ch, int repeat = 1);
  CString(LPCWSTR text, int length);
  ~CString();

  CString& operator=(const CString& other);
  CString& operator=(CString&& other) noexcept;
  CString& operator=(LPCWSTR text);
  CString& operator=(LPCSTR text);
  CString& operator=(WCHAR ch);

  // ---- Characters

  int GetLength() const;
  BOOL IsEmpty() const { return GetLength() == 0; }
  void Empty();
  WCHAR GetAt(int index) const { return characters_[index]; }
  WCHAR operator[](int index) const { return characters_[index]; }
  void SetAt(int index, WCHAR ch);
  // Valid until the string changes.
  operator LPCWSTR() const { return characters_; }
  LPCWSTR GetString() const { return characters_; }

  // ---- Joining

  CString& operator+=(const CString& text);
  CString& operator+=(LPCWSTR text);
  CString& operator+=(WCHAR ch);

  // ---- Comparing: below 0, 0 or above 0; by character value up to the first NUL. NoCase compares
  //      in lower case, for every script.

  int Compare(LPCWSTR other) const;
  int CompareNoCase(LPCWSTR other) const;

  // ---- Parts; counts and starts outside of the string are clamped

  CString Mid(int first, int count) const;
  CString Mid(int first) const;
  CString Left(int count) const;
  CString Right(int count) const;
  CString SpanIncluding(LPCWSTR set) const;
  CString SpanExcluding(LPCWSTR set) const;

  // ---- Searching: an index, or -1

  int Find(WCHAR ch, int start = 0) const;
  int Find(LPCWSTR text, int start = 0) const;
  int ReverseFind(WCHAR ch) const;
  int FindOneOf(LPCWSTR set) const;

  // ---- Changing in place. Insert and Delete return the new length, Replace and Remove how many
  //      characters or parts they changed.

  CString& MakeUpper();
  CString& MakeLower();
  CString& MakeReverse();
  // Without an argument: white space, including the ideographic space.
  CString& Trim();
  CString& TrimLeft();
  CString& TrimRight();
  CString& Trim(WCHAR ch);
  CString& TrimLeft(WCHAR ch);
  CString& TrimRight(WCHAR ch);
  CString& Trim(LPCWSTR set);
  CString& TrimLeft(LPCWSTR set);
  CString& TrimRight(LPCWSTR set);
  int Replace(WCHAR from, WCHAR to);
  int Replace(LPCWSTR from, LPCWSTR to);
  int Remove(WCHAR ch);
  int Insert(int index, WCHAR ch);
  int Insert(int index, LPCWSTR text);
  int Delete(int index, int count = 1);

  // ---- Formatting as wprintf (%s is a wide string); results of any length

  void Format(LPCWSTR format, ...);
  void AppendFormat(LPCWSTR format, ...);
  void FormatV(LPCWSTR format, va_list arguments);
  void Format(UINT formatId, ...);  // the format is a string resource

  // Loads a string resource, also from the chain of extension modules. FALSE and an empty string
  // when there is no such resource.
  BOOL LoadStringW(UINT id);
  BOOL LoadStringA(UINT id) { return LoadStringW(id); }

  // ---- Direct writing to a buffer of at least `minLength` characters and a NUL. Afterwards call
  //      ReleaseBuffer, with the new length, or with -1 for the length up to the NUL.

  LPWSTR GetBuffer(int minLength = 0);
  LPWSTR GetBufferSetLength(int length);
  void ReleaseBuffer(int newLength = -1);

 private:
  struct Block;
  [[nodiscard]] Block* Shared() const;
  void Release();
  void Assign(LPCWSTR text, int length);
  void Splice(int index, int removed, LPCWSTR text, int length);
  void MakeWritable(int capacity);

  LPWSTR characters_;  // into a Block, or a static empty string
};

AFX_FRAMEWORK CString operator+(const CString& a, const CString& b);
AFX_FRAMEWORK CString operator+(const CString& a, LPCWSTR b);
AFX_FRAMEWORK CString operator+(LPCWSTR a, const CString& b);
AFX_FRAMEWORK CString operator+(const CString& a, WCHAR b);
AFX_FRAMEWORK CString operator+(WCHAR a, const CString& b);

#define AFX_STRING_COMPARISON(op)                                                           \
  inline bool operator op(const CString& a, const CString& b) { return a.Compare(b) op 0; } \
  inline bool operator op(const CString& a, LPCWSTR b) { return a.Compare(b) op 0; }        \
  inline bool operator op(LPCWSTR a, const CString& b) { return 0 op b.Compare(a); }
AFX_STRING_COMPARISON(==)
AFX_STRING_COMPARISON(!=)
AFX_STRING_COMPARISON(<)
AFX_STRING_COMPARISON(>)
AFX_STRING_COMPARISON(<=)
AFX_STRING_COMPARISON(>=)
#undef AFX_STRING_COMPARISON

// With one character.
inline bool operator==(const CString& a, WCHAR b) { return a.GetLength() == 1 && a[0] == b; }
inline bool operator!=(const CString& a, WCHAR b) { return !(a == b); }
