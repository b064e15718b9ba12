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
    : database_(L"QZMemDB", instance, IdentOf(instance), SortProperties()) {}

bool CMemDb::Open() {
  if (open_) return false;
  open_ = database_.Open(nullptr);
  return open_;
}

void CMemDb::Discard() {
  if (open_) database_.Close();
  open_ = false;
  database_.Discard();
}

int CMemDb::Seek(std::int32_t key) {
  if (!open_ && !Open()) return -2;
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
  return open_ && database_.Records().AddRecord(&record) != 0 ? 0 : -1;
}

int CMemDb::ReadCur(CString* text) {
  CCeDBRecord record;
  if (!database_.Records().ReadCurrRecord(&record)) return -1;
  const CCeDBProp* property = record.GetPropFromIdent(kText);
  if (!property) return -1;
  *text = property->GetString();
  return 0;
}

int CMemDb::UpdateCur(const CString& text) {
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
  open_ = false;
  database_.Recreate();
  return Open() ? 0 : 1;
}

}  // namespace tavix
