// Before the others: their headers need its types.
#include <windows.h>

#include <msxml2.h>
#include <shlwapi.h>

#include <algorithm>
#include <memory>

#include "host/formats/xml/sax_listener_windows.h"
#include "host/formats/xml/xml_parser.h"

namespace fieldhost {
namespace {

// The header declares the interfaces' identifiers; no library here holds them.
constexpr IID kReader = {
    0xA4F96ED0, 0xF829, 0x476E, {0x81, 0xC0, 0xCD, 0xC7, 0xBD, 0x2A, 0x08, 0x02}};

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

// The thread may have taken to components already, in whatever manner: that serves as well.
class ComponentsInUse {
 public:
  ComponentsInUse() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComponentsInUse() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }
  ComponentsInUse(const ComponentsInUse&) = delete;
  ComponentsInUse& operator=(const ComponentsInUse&) = delete;

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
  const ComponentsInUse components;
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
