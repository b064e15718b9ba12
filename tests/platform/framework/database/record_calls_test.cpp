// The calls on records: seeking, reading into buffers, writing, deleting.
#include <array>
#include <memory>
#include <vector>

#include "tests/platform/framework/database/fresh_store.h"

namespace {

class RecordCalls : public FreshStore {
 protected:
  RecordCalls() { handle_ = Open(0); }

  HANDLE Open(DWORD flags) {
    SORTORDERSPEC sortings[] = {{kLineId, 0}, {kPointId, 0}};
    if (oid_ == 0) oid_ = CeCreateDatabase(Name(L"lines"), 0, 2, sortings);
    return CeOpenDatabase(&oid_, nullptr, kLineId, flags, nullptr);
  }
  CEOID Add(short line, short point) {
    CEPROPVAL values[] = {Short(111, line), Short(112, point)};
    return CeWriteRecordProps(handle_, 0, 2, values);
  }
  CEOID Seek(DWORD type, DWORD value) { return CeSeekDatabase(handle_, type, value, nullptr); }
  CEOID SeekLine(DWORD type, short line) {
    const CEPROPVAL value = Short(111, line);
    return CeSeekDatabase(handle_, type, reinterpret_cast<DWORD_PTR>(&value), nullptr);
  }
  // A read of everything into a buffer the call allocates; null when it fails.
  struct Free {
    void operator()(BYTE* buffer) const { LocalFree(buffer); }
  };
  using Buffer = std::unique_ptr<BYTE, Free>;
  Buffer ReadAll(HANDLE handle, WORD& count, DWORD& size) {
    LPBYTE buffer = nullptr;
    size = 0;
    const CEOID record =
        CeReadRecordProps(handle, CEDB_ALLOWREALLOC, &count, nullptr, &buffer, &size);
    Buffer owned(buffer);
    return record != 0 ? std::move(owned) : nullptr;
  }
  static const CEPROPVAL* Values(const Buffer& buffer) {
    return reinterpret_cast<const CEPROPVAL*>(buffer.get());
  }

  CEOID oid_ = 0;
  HANDLE handle_ = nullptr;
};

TEST_F(RecordCalls, EveryTypeGoesInAndComesOut) {
  BYTE bytes[] = {1, 0, 255};
  std::array<CEPROPVAL, 9> in{};
  const WORD types[] = {CEVT_I2,     CEVT_UI2,  CEVT_I4,   CEVT_UI4, CEVT_FILETIME,
                        CEVT_LPWSTR, CEVT_BLOB, CEVT_BOOL, CEVT_R8};
  for (WORD i = 0; i < 9; ++i) in[i].propid = static_cast<CEPROPID>(MAKELONG(types[i], i + 1));
  in[0].val.iVal = -32768;
  in[1].val.uiVal = 65535;
  in[2].val.lVal = -2147483647L;
  in[3].val.ulVal = 0xFFFFFFFF;
  in[4].val.filetime = {0x89ABCDEF, 0x01234567};
  in[5].val.lpwstr = Name(L"測点 1");
  in[6].val.blob = {sizeof bytes, bytes};
  in[7].val.boolVal = 42;
  in[8].val.dblVal = -0.1;
  ASSERT_NE(0U, CeWriteRecordProps(handle_, 0, 9, in.data()));

  WORD count = 0;
  DWORD size = 0;
  const Buffer buffer = ReadAll(handle_, count, size);
  ASSERT_EQ(9, count);
  const CEPROPVAL* out = Values(buffer);
  for (WORD i = 0; i < 9; ++i) {
    EXPECT_EQ(in[i].propid, out[i].propid);
    EXPECT_EQ(0, out[i].wFlags);
  }
  EXPECT_EQ(-32768, out[0].val.iVal);
  EXPECT_EQ(65535, out[1].val.uiVal);
  EXPECT_EQ(-2147483647L, out[2].val.lVal);
  EXPECT_EQ(0xFFFFFFFF, out[3].val.ulVal);
  EXPECT_EQ(0, CompareFileTime(&out[4].val.filetime, &in[4].val.filetime));
  EXPECT_STREQ(L"測点 1", out[5].val.lpwstr);
  ASSERT_EQ(3U, out[6].val.blob.dwCount);
  EXPECT_EQ(0, memcmp(out[6].val.blob.lpb, bytes, 3));
  EXPECT_EQ(TRUE, out[7].val.boolVal);
  EXPECT_EQ(-0.1, out[8].val.dblVal);
}

TEST_F(RecordCalls, StringsAndBlobsOfEveryLengthComeBackFromOneBuffer) {
  std::vector<std::wstring> texts;
  std::vector<std::vector<BYTE>> blobs;
  std::vector<CEPROPVAL> in;
  for (WORD length = 0; length < 20; ++length) {
    texts.emplace_back(length, static_cast<wchar_t>(L'a' + length));
    blobs.emplace_back(length, static_cast<BYTE>(length));
  }
  for (WORD i = 0; i < 20; ++i) {
    in.push_back(String(static_cast<WORD>(i + 1), texts[i].c_str()));
    CEPROPVAL& blob = in.emplace_back();
    blob.propid = static_cast<CEPROPID>(MAKELONG(CEVT_BLOB, i + 1));
    blob.val.blob = {static_cast<DWORD>(blobs[i].size()), blobs[i].data()};
  }
  ASSERT_NE(0U, CeWriteRecordProps(handle_, 0, 40, in.data()));
  WORD count = 0;
  DWORD size = 0;
  const Buffer buffer = ReadAll(handle_, count, size);
  ASSERT_EQ(40, count);
  for (WORD i = 0; i < 20; ++i) {
    EXPECT_EQ(texts[i], Values(buffer)[2 * i].val.lpwstr);
    const CEBLOB blob = Values(buffer)[2 * i + 1].val.blob;
    ASSERT_EQ(i, blob.dwCount);
    EXPECT_TRUE(std::equal(blobs[i].begin(), blobs[i].end(), blob.lpb));
  }
}

TEST_F(RecordCalls, ChosenPropertiesComeInTheOrderAsked) {
  const CEOID record = Add(5, 6);
  CEPROPID wanted[] = {kPointId, static_cast<CEPROPID>(MAKELONG(CEVT_I2, 200)), kLineId};
  WORD count = 3;
  alignas(CEPROPVAL) BYTE memory[3 * sizeof(CEPROPVAL)];
  LPBYTE buffer = memory;
  DWORD size = sizeof memory;
  EXPECT_EQ(record, CeReadRecordProps(handle_, 0, &count, wanted, &buffer, &size));
  EXPECT_EQ(memory, buffer);
  EXPECT_EQ(sizeof memory, size);
  const auto* out = reinterpret_cast<const CEPROPVAL*>(memory);
  EXPECT_EQ(6, out[0].val.iVal);
  EXPECT_EQ(wanted[1], out[1].propid);
  EXPECT_EQ(CEDB_PROPNOTFOUND, out[1].wFlags);
  EXPECT_EQ(5, out[2].val.iVal);
}

TEST_F(RecordCalls, NoneOfTheChosenPropertiesIsNoData) {
  Add(5, 6);
  CEPROPID wanted[] = {static_cast<CEPROPID>(MAKELONG(CEVT_LPWSTR, 111))};
  WORD count = 1;
  LPBYTE buffer = nullptr;
  DWORD size = 0;
  ExpectError(ERROR_NO_DATA,
              CeReadRecordProps(handle_, CEDB_ALLOWREALLOC, &count, wanted, &buffer, &size),
              CEOID{0});
  ASSERT_EQ(sizeof(CEPROPVAL), size);
  EXPECT_EQ(CEDB_PROPNOTFOUND, reinterpret_cast<const CEPROPVAL*>(buffer)->wFlags);
  LocalFree(buffer);
}

TEST_F(RecordCalls, ABufferThatIsTooSmallSaysHowMuchAndReadsNothing) {
  const HANDLE going = Open(CEDB_AUTOINCREMENT);
  const CEOID record = Add(5, 6);
  CeSeekDatabase(going, CEDB_SEEK_BEGINNING, 0, nullptr);
  alignas(CEPROPVAL) BYTE memory[2 * sizeof(CEPROPVAL)] = {};
  for (const DWORD given : {DWORD{0}, DWORD{1}, static_cast<DWORD>(sizeof memory - 1)}) {
    LPBYTE buffer = memory;
    DWORD size = given;
    WORD count = 99;
    ExpectError(ERROR_INSUFFICIENT_BUFFER,
                CeReadRecordProps(going, 0, &count, nullptr, &buffer, &size), CEOID{0});
    EXPECT_EQ(sizeof memory, size);
    EXPECT_EQ(99, count);
    EXPECT_EQ(0, memory[0]);
  }
  LPBYTE buffer = memory;
  DWORD size = sizeof memory;
  WORD count = 0;
  EXPECT_EQ(record, CeReadRecordProps(going, 0, &count, nullptr, &buffer, &size))
      << "the pointer has not moved";
  ExpectError(ERROR_NO_MORE_ITEMS, CeReadRecordProps(going, 0, &count, nullptr, &buffer, &size),
              CEOID{0});
}

TEST_F(RecordCalls, ALocalBufferGrowsAndIsUsedAgain) {
  const CEOID small = Add(1, 1);
  LPBYTE buffer = static_cast<LPBYTE>(LocalAlloc(LMEM_FIXED, 1));
  DWORD size = 1;
  WORD count = 0;
  EXPECT_EQ(small, CeReadRecordProps(handle_, CEDB_ALLOWREALLOC, &count, nullptr, &buffer, &size));
  const LPBYTE grown = buffer;
  DWORD large = 4096;
  EXPECT_EQ(small, CeReadRecordProps(handle_, CEDB_ALLOWREALLOC, &count, nullptr, &buffer, &large));
  EXPECT_EQ(grown, buffer);
  EXPECT_EQ(2 * sizeof(CEPROPVAL), large);
  LocalFree(buffer);
}

TEST_F(RecordCalls, ParametersThatCannotBeAreRefused) {
  Add(1, 1);
  WORD count = 0;
  DWORD size = 0;
  LPBYTE buffer = nullptr;
  const CEOID none = 0;
  ExpectError(ERROR_INVALID_PARAMETER,
              CeReadRecordProps(handle_, 1, nullptr, nullptr, &buffer, &size), none);
  ExpectError(ERROR_INVALID_PARAMETER,
              CeReadRecordProps(handle_, 1, &count, nullptr, nullptr, &size), none);
  ExpectError(ERROR_INVALID_PARAMETER,
              CeReadRecordProps(handle_, 1, &count, nullptr, &buffer, nullptr), none);
  ExpectError(ERROR_INVALID_PARAMETER,
              CeReadRecordProps(nullptr, 1, &count, nullptr, &buffer, &size), none);
  CEPROPVAL no_text = String(1, nullptr);
  CEPROPVAL no_type{};
  ExpectError(ERROR_INVALID_PARAMETER, CeWriteRecordProps(handle_, 0, 1, nullptr), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeWriteRecordProps(handle_, 0, 0, &no_text), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeWriteRecordProps(handle_, 0, 1, &no_text), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeWriteRecordProps(handle_, 0, 1, &no_type), none);
  ExpectError(ERROR_INVALID_PARAMETER, CeWriteRecordProps(handle_, 12345, 1, &no_text), none);
  for (const DWORD type : {0U, 3U, 0x100U})
    ExpectError(ERROR_INVALID_PARAMETER, Seek(type, 0), none);
  for (const DWORD type : {CEDB_SEEK_VALUESMALLER, CEDB_SEEK_VALUEFIRSTEQUAL,
                           CEDB_SEEK_VALUEGREATER, CEDB_SEEK_VALUENEXTEQUAL}) {
    ExpectError(ERROR_INVALID_PARAMETER, Seek(static_cast<DWORD>(type), 0), none);
  }
  ExpectError(ERROR_INVALID_PARAMETER, CeDeleteRecord(handle_, 0), FALSE);
}

TEST_F(RecordCalls, EverySeekTypeFindsItsRecord) {
  const CEOID a = Add(1, 0);
  const CEOID b = Add(2, 0);
  const CEOID b2 = Add(2, 1);
  const CEOID c = Add(3, 0);
  DWORD index = 0;
  EXPECT_EQ(c, CeSeekDatabase(handle_, CEDB_SEEK_CEOID, c, &index));
  EXPECT_EQ(3U, index);
  EXPECT_EQ(b, Seek(CEDB_SEEK_BEGINNING, 1));
  EXPECT_EQ(c, Seek(CEDB_SEEK_END, 0));
  EXPECT_EQ(a, Seek(CEDB_SEEK_END, 3));
  EXPECT_EQ(b2, Seek(CEDB_SEEK_CURRENT, 2));
  EXPECT_EQ(b, Seek(CEDB_SEEK_CURRENT, static_cast<DWORD>(-1)));
  EXPECT_EQ(b, SeekLine(CEDB_SEEK_VALUESMALLER, 3));
  EXPECT_EQ(b, SeekLine(CEDB_SEEK_VALUEGREATER, 2));
  EXPECT_EQ(b, SeekLine(CEDB_SEEK_VALUEFIRSTEQUAL, 2));
  EXPECT_EQ(b2, SeekLine(CEDB_SEEK_VALUENEXTEQUAL, 2));
  index = 77;
  const CEPROPVAL two = Short(111, 2);
  ExpectError(
      ERROR_NO_MORE_ITEMS,
      CeSeekDatabase(handle_, CEDB_SEEK_VALUENEXTEQUAL, reinterpret_cast<DWORD_PTR>(&two), &index),
      CEOID{0});
  EXPECT_EQ(77U, index);
  ExpectError(ERROR_NO_MORE_ITEMS, Seek(CEDB_SEEK_BEGINNING, 0xFFFFFFFF), CEOID{0});
}

TEST_F(RecordCalls, AWriteChangesAndDeletesInOneCall) {
  const CEOID record = Add(1, 2);
  CEPROPVAL values[] = {Short(111, 9), Short(112, 0), String(5, L"new")};
  values[1].wFlags = CEDB_PROPDELETE;
  EXPECT_EQ(record, CeWriteRecordProps(handle_, record, 3, values));
  WORD count = 0;
  DWORD size = 0;
  const Buffer buffer = ReadAll(handle_, count, size);
  ASSERT_EQ(2, count);
  EXPECT_EQ(9, Values(buffer)[0].val.iVal);
  EXPECT_STREQ(L"new", Values(buffer)[1].val.lpwstr);
}

TEST_F(RecordCalls, ADeletedRecordIsGoneForEveryHandle) {
  const CEOID a = Add(1, 0);
  const CEOID b = Add(2, 0);
  const HANDLE going = Open(CEDB_AUTOINCREMENT);
  Seek(CEDB_SEEK_CEOID, a);
  EXPECT_TRUE(CeDeleteRecord(handle_, a));
  WORD count = 0;
  DWORD size = 0;
  EXPECT_EQ(nullptr, ReadAll(handle_, count, size));
  EXPECT_EQ(static_cast<DWORD>(ERROR_KEY_DELETED), GetLastError());
  ExpectError(ERROR_KEY_DELETED, Seek(CEDB_SEEK_CURRENT, 0), CEOID{0});
  ExpectError(ERROR_INVALID_PARAMETER, CeDeleteRecord(going, a), FALSE);
  const Buffer buffer = ReadAll(going, count, size);
  ASSERT_NE(nullptr, buffer);
  EXPECT_EQ(2, Values(buffer)[0].val.iVal);
  EXPECT_EQ(b, Seek(CEDB_SEEK_CURRENT, 1));
}

}  // namespace
