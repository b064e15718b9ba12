// Before the others: their headers need its types.
#include <windows.h>

#include <msxml2.h>
#include <shlwapi.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/formats/code_page_windows.h"
#include "host/formats/xml/xml_parser.h"

namespace fieldhost {
namespace {

// The header declares the interfaces' identifiers; no library here holds them.
constexpr IID kReader = {
    0xA4F96ED0, 0xF829, 0x476E, {0x81, 0xC0, 0xCD, 0xC7, 0xBD, 0x2A, 0x08, 0x02}};
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

// The parser's events, handed on. Lives on the stack of the parse, beyond which nothing refers to
// it.
class SaxListener final : public ISAXContentHandler, public ISAXErrorHandler {
 public:
  explicit SaxListener(XmlHandler& handler) : handler_(handler) {}
  virtual ~SaxListener() = default;
  SaxListener(const SaxListener&) = delete;
  SaxListener& operator=(const SaxListener&) = delete;

  [[nodiscard]] bool HasRoot() const { return has_root_; }
  // Why the listener stopped the parse, when it did.
  [[nodiscard]] std::optional<XmlFault> Fault() const { return fault_; }
  // Where the parse stopped, from 1.
  [[nodiscard]] int Line() const { return line_; }

  HRESULT WINAPI QueryInterface(REFIID id, void** object) override;
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }

  HRESULT WINAPI putDocumentLocator(ISAXLocator* locator) override;
  HRESULT WINAPI startDocument() override { return S_OK; }
  HRESULT WINAPI endDocument() override { return S_OK; }
  HRESULT WINAPI startPrefixMapping(const wchar_t*, int, const wchar_t*, int) override;
  HRESULT WINAPI endPrefixMapping(const wchar_t*, int) override { return S_OK; }
  HRESULT WINAPI startElement(const wchar_t* space, int space_length, const wchar_t* name,
                              int name_length, const wchar_t* qualified, int qualified_length,
                              ISAXAttributes* attributes) override;
  HRESULT WINAPI endElement(const wchar_t*, int, const wchar_t*, int, const wchar_t*, int) override;
  HRESULT WINAPI characters(const wchar_t* text, int length) override;
  HRESULT WINAPI ignorableWhitespace(const wchar_t*, int) override { return S_OK; }
  HRESULT WINAPI processingInstruction(const wchar_t*, int, const wchar_t*, int) override;
  HRESULT WINAPI skippedEntity(const wchar_t*, int) override;

  HRESULT WINAPI error(ISAXLocator* locator, const wchar_t* message, HRESULT code) override;
  HRESULT WINAPI fatalError(ISAXLocator* locator, const wchar_t* message, HRESULT code) override;
  HRESULT WINAPI ignorableWarning(ISAXLocator*, const wchar_t*, HRESULT) override { return S_OK; }

 private:
  HRESULT Stop(XmlFault fault);
  void ReadLine(ISAXLocator* locator);

  XmlHandler& handler_;
  ISAXLocator* locator_ = nullptr;  // the parser's, valid throughout the parse
  bool has_root_ = false;
  unsigned depth_ = 0;
  std::optional<XmlFault> fault_;
  int line_ = 1;
};

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
  if (fault_) return E_FAIL;  // the parser may go on after a refusal
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

// An entity that only a document type could define.
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

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

// COM may already be initialised on this thread in another apartment model; that is fine.
class ComInUse {
 public:
  ComInUse() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComInUse() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }
  ComInUse(const ComInUse&) = delete;
  ComInUse& operator=(const ComInUse&) = delete;

 private:
  HRESULT result_;
};

Owned<ISAXXMLReader> SystemReader() {
  CLSID id = {};
  void* reader = nullptr;
  if (FAILED(::CLSIDFromProgID(L"Msxml2.SAXXMLReader.6.0", &id)) ||
      FAILED(::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, kReader, &reader))) {
    return nullptr;
  }
  return Owned<ISAXXMLReader>(static_cast<ISAXXMLReader*>(reader));
}

// Lends the object for one call.
VARIANT Variant(IUnknown& object) {
  VARIANT variant;
  variant.vt = VT_UNKNOWN;
  variant.punkVal = &object;
  return variant;
}

}  // namespace

std::optional<XmlProblem> ParseBySystem(std::string_view text, XmlHandler& handler) {
  const ComInUse com;
  const Owned<ISAXXMLReader> reader = SystemReader();
  const Owned<IStream> stream(::SHCreateMemStream(reinterpret_cast<const BYTE*>(text.data()),
                                                  static_cast<UINT>(text.size())));
  if (!reader || !stream) return XmlProblem{XmlFault::kNoParser, 1};

  SaxListener listener(handler);
  reader->putContentHandler(&listener);
  reader->putErrorHandler(&listener);
  const HRESULT result = reader->parse(Variant(*stream));
  if (SUCCEEDED(result) && listener.HasRoot() && !listener.Fault()) return std::nullopt;
  return XmlProblem{listener.Fault().value_or(XmlFault::kNotWellFormed), listener.Line()};
}

}  // namespace fieldhost
