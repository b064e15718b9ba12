#include "host/formats/xml/sax_listener_windows.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/formats/utf8_windows.h"

namespace fieldhost {
namespace {

// The header declares the interfaces' identifiers; no library here holds them.
constexpr IID kContentHandler = {
    0x1545CDFA, 0x9E4E, 0x4497, {0xA8, 0xA4, 0x2B, 0xF7, 0xD0, 0x11, 0x2C, 0x44}};
constexpr IID kErrorHandler = {
    0xA60511C4, 0xCCF5, 0x479E, {0x98, 0xA3, 0xDC, 0x8D, 0xC5, 0x45, 0xB7, 0xD0}};

std::wstring_view Text(const wchar_t* text, int length) {
  return text && length > 0 ? std::wstring_view(text, static_cast<std::size_t>(length))
                            : std::wstring_view();
}

std::vector<XmlAttribute> Attributes(ISAXAttributes& all) {
  int count = 0;
  all.getLength(&count);
  std::vector<XmlAttribute> attributes;
  for (int i = 0; i < count; ++i) {
    const wchar_t* name = nullptr;
    const wchar_t* value = nullptr;
    int name_length = 0;
    int value_length = 0;
    if (FAILED(all.getQName(i, &name, &name_length)) ||
        FAILED(all.getValue(i, &value, &value_length))) {
      continue;
    }
    const std::wstring_view qualified = Text(name, name_length);
    if (qualified == L"xmlns" || qualified.find(L':') != std::wstring_view::npos) continue;
    attributes.push_back({Utf8FromWide(qualified), Utf8FromWide(Text(value, value_length))});
  }
  return attributes;
}

}  // namespace

HRESULT SaxListener::QueryInterface(REFIID id, void** object) {
  if (::IsEqualIID(id, kErrorHandler)) {
    *object = static_cast<ISAXErrorHandler*>(this);
  } else if (::IsEqualIID(id, kContentHandler) || ::IsEqualIID(id, IID_IUnknown)) {
    *object = static_cast<ISAXContentHandler*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  return S_OK;
}

HRESULT SaxListener::putDocumentLocator(ISAXLocator* locator) {
  locator_ = locator;
  return S_OK;
}

HRESULT SaxListener::startPrefixMapping(const wchar_t*, int, const wchar_t*, int) { return S_OK; }

HRESULT SaxListener::startElement(const wchar_t*, int, const wchar_t* name, int name_length,
                                  const wchar_t*, int, ISAXAttributes* attributes) {
  if (fault_) return E_FAIL;  // not every refusal is heeded at once
  has_root_ = true;
  ReadLine(locator_);
  if (++depth_ > kDeepestXml) return Stop(XmlFault::kTooDeep);
  handler_.BeginElement(Utf8FromWide(Text(name, name_length)),
                        attributes ? Attributes(*attributes) : std::vector<XmlAttribute>(), line_);
  return S_OK;
}

HRESULT SaxListener::endElement(const wchar_t*, int, const wchar_t*, int, const wchar_t*, int) {
  --depth_;
  handler_.EndElement();
  return S_OK;
}

HRESULT SaxListener::characters(const wchar_t* text, int length) {
  handler_.TakeText(Utf8FromWide(Text(text, length)));
  return S_OK;
}

HRESULT SaxListener::processingInstruction(const wchar_t*, int, const wchar_t*, int) {
  return S_OK;
}

// An entity that only a document type could explain.
HRESULT SaxListener::skippedEntity(const wchar_t*, int) { return Stop(XmlFault::kNotWellFormed); }

HRESULT SaxListener::error(ISAXLocator* locator, const wchar_t* message, HRESULT code) {
  return fatalError(locator, message, code);
}

HRESULT SaxListener::fatalError(ISAXLocator* locator, const wchar_t*, HRESULT) {
  if (!fault_) {
    ReadLine(locator);
    fault_ = XmlFault::kNotWellFormed;
  }
  return E_FAIL;
}

HRESULT SaxListener::Stop(XmlFault fault) {
  if (!fault_) fault_ = fault;
  return E_FAIL;
}

void SaxListener::ReadLine(ISAXLocator* locator) {
  int line = 0;
  if (locator && SUCCEEDED(locator->getLineNumber(&line))) line_ = std::max(1, line);
}

}  // namespace fieldhost
