#include "store/mem_db.h"

#include <array>

namespace tavix {
namespace {

// Properties of a memo record; do not change.
constexpr WORD kKey = 121;
constexpr WORD kText = 122;

DWORD IdentOf(int instance) { return static_cast<DWORD>(10003 + 10 * instance); }

std::span<CCeDBProp> SortProperties() {
  static std::array<CCeDBProp, 1> properties{CCeDBProp(CCeDBProp::Type_Short, kKey)};
  return properties;
}

CCeDBProp KeyProperty(std::int32_t key) { return {static_cast<short>(key), kKey}; }

}  // namespace

CMemDb::CMemDb(int instance)
    : database_(L"QZMemDB", instance, IdentOf(instance), SortProperties()), instance_(instance) {}

int CMemDb::Open() {
  if (state_ != State::kClosed) return -2;
  if (database_.Open(nullptr)) state_ = State::kOpen;
  return static_cast<int>(state_);
}

int CMemDb::Close() {
  const bool was_open = state_ == State::kOpen;
  state_ = State::kClosed;
  return was_open && database_.Close() ? 0 : -1;
}

void CMemDb::Discard() {
  Close();
  database_.Discard();
}

int CMemDb::Seek(std::int32_t key) {
  if (state_ == State::kClosed && Open() != 0) return -2;
  return database_.Records().SeekFirstEqual(KeyProperty(key)) != 0 ? 0 : -1;
}

int CMemDb::Enter(std::int32_t key, const CString& text) {
  if (Seek(key) != 0) return Add(key, text);
  return text.IsEmpty() ? Remove(key) : UpdateCur(text);
}

int CMemDb::Read(std::int32_t key, CString* text) {
  text->Empty();
  const int code = Seek(key);
  return code == 0 ? ReadCur(text) : code;
}

int CMemDb::Add(std::int32_t key, const CString& text) {
  std::array<CCeDBProp, 2> properties{KeyProperty(key), CCeDBProp(text.GetString(), kText)};
  CCeDBRecord record;
  record.AddProps(properties.data(), static_cast<int>(properties.size()));
  return state_ == State::kOpen && database_.Records().AddRecord(&record) != 0 ? 0 : -1;
}

int CMemDb::ReadCur(CString* text) {
  if (state_ == State::kClosed) return -2;
  CCeDBRecord record;
  if (!database_.Records().ReadCurrRecord(&record)) return -1;
  const CCeDBProp* property = record.GetPropFromIdent(kText);
  if (!property) return -1;
  *text = property->GetString();
  return 0;
}

int CMemDb::UpdateCur(const CString& text) {
  if (state_ == State::kClosed) return -2;
  CCeDBRecord record;
  if (!database_.Records().ReadCurrRecord(&record)) return -3;
  CCeDBProp* property = record.GetPropFromIdent(kText);
  if (!property) return -3;
  property->SetString(text);
  return database_.Records().WriteCurrRecord(&record) ? 0 : -1;
}

int CMemDb::Remove(std::int32_t key) {
  if (const int code = Seek(key); code != 0) return code;
  return database_.DeleteCurrent() ? 0 : -3;
}

int CMemDb::Clear() {
  state_ = State::kClosed;
  database_.Recreate();
  Open();
  return static_cast<int>(state_);
}

}  // namespace tavix
