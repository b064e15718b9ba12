// Records: what is written is what is read.
#include <array>
#include <cmath>
#include <limits>

#include "tests/platform/objectstore/store_fixture.h"

namespace tavix {
namespace {

class RecordTest : public StoreTest {
 protected:
  void SetUp() override {
    database_ = Store().CreateDatabase(u"records", 0, {}).value;
    handle_ = Open(kNoSort);
  }
  RecordView Read() {
    const Outcome<RecordView> view = Store().Read(handle_);
    EXPECT_TRUE(view);
    return view.value;
  }
  StoreHandle handle_ = 0;
};

TEST_P(RecordTest, EveryTypeKeepsItsExtremes) {
  constexpr std::array<std::byte, 3> kBytes = {std::byte{0}, std::byte{255}, std::byte{7}};
  const ObjectId record =
      Add(handle_, {Property::I2(1, std::numeric_limits<std::int16_t>::min()),
                    Property::UI2(2, 65535), Property::I4(3, std::numeric_limits<int>::min()),
                    Property::UI4(4, 0xFFFFFFFF), Property::R8(5, -1.5e-300),
                    Property::Bool(6, true), Property::FileTime(7, 0xFFFFFFFFFFFFFFFF),
                    Property::String(8, u"点Ａ"), Property::Blob(9, kBytes)});
  const RecordView view = Read();
  EXPECT_EQ(view.id, record);
  ASSERT_EQ(view.properties.size(), 9U);
  EXPECT_EQ(view.properties[0].AsI2(), -32768);
  EXPECT_EQ(view.properties[1].AsUI2(), 65535);
  EXPECT_EQ(view.properties[2].AsI4(), std::numeric_limits<int>::min());
  EXPECT_EQ(view.properties[3].AsUI4(), 0xFFFFFFFFU);
  EXPECT_EQ(view.properties[4].AsR8(), -1.5e-300);
  EXPECT_TRUE(view.properties[5].AsBool());
  EXPECT_EQ(view.properties[6].AsFileTime(), 0xFFFFFFFFFFFFFFFFU);
  EXPECT_EQ(view.properties[7].AsString(), u"点Ａ");
  EXPECT_TRUE(std::ranges::equal(view.properties[8].AsBytes(), kBytes));
}

TEST_P(RecordTest, StringsOfEveryLengthComeBackWithAZeroBehind) {
  for (const std::size_t length : {0U, 1U, 2U, 3U, 4U, 5U, 31U, 255U, 256U, 32735U}) {
    const std::u16string text(length, u'x');
    Add(handle_, {Property::String(1, text)});
    const std::u16string_view read = Read().properties[0].AsString();
    EXPECT_EQ(read, text);
    EXPECT_EQ(read.data()[length], u'\0');
  }
}

TEST_P(RecordTest, BlobsOfOddLengthsComeBack) {
  for (const std::size_t length : {0U, 1U, 3U, 7U, 65471U}) {
    const std::vector<std::byte> bytes(length, std::byte{0xA5});
    Add(handle_, {Property::Blob(1, bytes)});
    EXPECT_TRUE(std::ranges::equal(Read().properties[0].AsBytes(), bytes));
  }
}

TEST_P(RecordTest, ValuesThatCannotBeAreRefusedAndLeaveNothingBehind) {
  const std::vector<std::byte> bytes(65472);
  const std::vector<std::byte> most(65471);
  const std::u16string text(32736, u'x');
  const std::u16string_view no_text(static_cast<const char16_t*>(nullptr), 1);
  const std::vector<std::vector<Property>> rows = {
      {},
      {Property::Blob(1, bytes)},
      {Property::String(1, text)},
      {Property::String(1, no_text)},
      {Property::I2(1, 1), Property()},
      {Property::Removal(PropertyId(0x00010006))},
      {Property::Blob(1, most), Property::Blob(2, most), Property::Blob(3, most)},
  };
  for (const std::vector<Property>& row : rows) {
    EXPECT_EQ(Store().Write(handle_, 0, row).error, StoreError::kInvalidParameter);
  }
  EXPECT_EQ(Store().Info(database_).value.database.record_count, 0U);
}

TEST_P(RecordTest, ARecordHoldsTheMostBytesAndNotOneMore) {
  const std::vector<std::byte> half(65471);
  const std::vector<std::byte> rest(131072 - 2 * 65471);
  const std::vector<std::byte> one(1);
  const ObjectId record =
      Add(handle_, {Property::Blob(1, half), Property::Blob(2, half), Property::Blob(3, rest)});
  EXPECT_EQ(Store().Write(handle_, record, Values({Property::Blob(4, one)})).error,
            StoreError::kInvalidParameter);
  EXPECT_EQ(Store().Info(database_).value.database.bytes, 131072U);
}

TEST_P(RecordTest, AWriteSetsAddsAndRemoves) {
  const ObjectId record =
      Add(handle_, {Property::I2(1, 10), Property::String(2, u"old"), Property::I2(3, 30)});
  ASSERT_TRUE(Store().Write(handle_, record,
                            Values({Property::String(2, u"new"), Property::I4(4, 40),
                                    Property::Removal(PropertyId(3, PropertyType::kI2)),
                                    Property::Removal(PropertyId(9, PropertyType::kI2))})));
  const RecordView view = Read();
  ASSERT_EQ(view.properties.size(), 3U);
  EXPECT_EQ(view.properties[0].AsI2(), 10);
  EXPECT_EQ(view.properties[1].AsString(), u"new");
  EXPECT_EQ(view.properties[2].AsI4(), 40);
}

TEST_P(RecordTest, OneTagWithTwoTypesIsTwoProperties) {
  Add(handle_, {Property::I2(1, 10), Property::String(1, u"ten")});
  EXPECT_EQ(Read().properties.size(), 2U);
}

TEST_P(RecordTest, TheLaterOfTwoValuesCounts) {
  Add(handle_, {Property::I2(1, 10), Property::I2(1, 11)});
  ASSERT_EQ(Read().properties.size(), 1U);
  EXPECT_EQ(Read().properties[0].AsI2(), 11);
}

TEST_P(RecordTest, ARecordMayLoseItsLastProperty) {
  const ObjectId record = Add(handle_, {Property::I2(1, 10)});
  ASSERT_TRUE(Store().Write(handle_, record,
                            Values({Property::Removal(PropertyId(1, PropertyType::kI2))})));
  EXPECT_EQ(Read().id, record);
  EXPECT_TRUE(Read().properties.empty());
}

TEST_P(RecordTest, ARecordMayBeWrittenFromItsOwnValues) {
  const ObjectId record =
      Add(handle_, {Property::String(1, u"text"), Property::String(2, u"more")});
  for (int i = 0; i < 100; ++i) {
    const RecordView view = Read();
    ASSERT_TRUE(Store().Write(handle_, record, view.properties));
  }
  EXPECT_EQ(Read().properties[1].AsString(), u"more");
}

TEST_P(RecordTest, BytesCountTheValuesThatAreThere) {
  const auto bytes = [this] { return Store().Info(database_).value.database.bytes; };
  EXPECT_EQ(bytes(), 0U);
  const ObjectId first =
      Add(handle_, {Property::I2(1, 1), Property::I4(2, 1), Property::R8(3, 1.0)});
  EXPECT_EQ(bytes(), 14U);
  const ObjectId second = Add(handle_, {Property::String(4, u"abc")});
  EXPECT_EQ(bytes(), 20U);
  ASSERT_TRUE(Store().Write(handle_, second, Values({Property::String(4, u"a")})));
  EXPECT_EQ(bytes(), 16U);
  EXPECT_EQ(Store().DeleteRecord(handle_, first), StoreError::kNone);
  EXPECT_EQ(bytes(), 2U);
}

TAVIX_STORE_TESTS(RecordTest);

}  // namespace
}  // namespace tavix
