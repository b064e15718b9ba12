// The events of the system's XML parser, handed on. Only for sources of Windows.
#pragma once

#include <windows.h>

#include <msxml2.h>

#include <optional>

#include "host/formats/xml/xml_parser.h"

namespace fieldhost {

// Lives on the stack of the parse: whoever counts references to it keeps none beyond.
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

}  // namespace fieldhost
