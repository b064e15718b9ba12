#include "tests/support/device_records.h"

namespace tavix::test {
namespace {

// Calls `take` for each record of a database, sorted by a property.
template <class Take>
void ForEachRecord(const std::wstring& name, WORD sorted_by, Take take) {
  CCeDBDatabase database;
  CCeDBProp order(CCeDBProp::Type_Short, sorted_by);
  if (!database.Open(name.c_str(), &order)) {
    ADD_FAILURE() << "no such database";
    return;
  }
  database.m_bAutoSeekNext = FALSE;
  for (CEOID at = database.SeekFirst(); at != 0; at = database.SeekNext()) {
    CCeDBRecord record;
    if (database.ReadCurrRecord(&record)) take(record);
  }
}

int ShortOf(const CCeDBRecord& record, WORD ident) {
  const CCeDBProp* property = record.GetPropFromIdent(ident);
  EXPECT_NE(nullptr, property) << ident;
  return property ? property->GetShort() : -1;
}

}  // namespace

std::vector<LineRecord> LinesOnDevice(int instance) {
  std::vector<LineRecord> lines;
  ForEachRecord(L"QZLinDB" + std::to_wstring(instance), 111, [&](const CCeDBRecord& record) {
    lines.push_back({ShortOf(record, 111), ShortOf(record, 112), ShortOf(record, 113),
                     ShortOf(record, 114), ShortOf(record, 115)});
  });
  return lines;
}

std::vector<MemoRecord> MemosOnDevice(int instance) {
  std::vector<MemoRecord> memos;
  ForEachRecord(L"QZMemDB" + std::to_wstring(instance), 121, [&](const CCeDBRecord& record) {
    const CCeDBProp* text = record.GetPropFromIdent(122);
    memos.push_back({ShortOf(record, 121), text ? text->GetString() : L"(none)"});
  });
  return memos;
}

void TakePropertyOut(const wchar_t* name, WORD ident, CCeDBProp::enType type) {
  CCeDBDatabase database;
  ASSERT_TRUE(database.Open(name));
  ASSERT_NE(0U, database.SeekFirst());
  CCeDBProp property(type, ident);
  ASSERT_TRUE(database.DeleteCurrProps(&property, 1));
}

}  // namespace tavix::test
