// Records: reading returns what was written.
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
  EXPECT_EQ(record, view.id);
  ASSERT_EQ(9U, view.properties.size());
  EXPECT_EQ(-32768, view.properties[0].AsI2());
  EXPECT_EQ(65535, view.properties[1].AsUI2());
  EXPECT_EQ(std::numeric_limits<int>::min(), view.properties[2].AsI4());
  EXPECT_EQ(0xFFFFFFFFU, view.properties[3].AsUI4());
  EXPECT_EQ(-1.5e-300, view.properties[4].AsR8());
  EXPECT_TRUE(view.properties[5].AsBool());
  EXPECT_EQ(0xFFFFFFFFFFFFFFFFU, view.properties[6].AsFileTime());
  EXPECT_EQ(u"点Ａ", view.properties[7].AsString());
  EXPECT_TRUE(std::ranges::equal(view.properties[8].AsBytes(), kBytes));
}

TEST_P(RecordTest, StringsOfEveryLengthComeBackWithAZeroBehind) {
  for (const std::size_t length : {0U, 1U, 2U, 3U, 4U, 5U, 31U, 255U, 256U, 32735U}) {
    const std::u16string text(length, u'x');
    Add(handle_, {Property::String(1, text)});
    const std::u16string_view read = Read().properties[0].AsString();
    EXPECT_EQ(text, read);
    EXPECT_EQ(u'\0', read.data()[length]);
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
    EXPECT_EQ(StoreError::kInvalidParameter, Store().Write(handle_, 0, row).error);
  }
  EXPECT_EQ(0U, Store().Info(database_).value.database.record_count);
}

TEST_P(RecordTest, ARecordHoldsTheMostBytesAndNotOneMore) {
  const std::vector<std::byte> half(65471);
  const std::vector<std::byte> rest(131072 - 2 * 65471);
  const std::vector<std::byte> one(1);
  const ObjectId record =
      Add(handle_, {Property::Blob(1, half), Property::Blob(2, half), Property::Blob(3, rest)});
  EXPECT_EQ(StoreError::kInvalidParameter,
            Store().Write(handle_, record, Values({Property::Blob(4, one)})).error);
  EXPECT_EQ(131072U, Store().Info(database_).value.database.bytes);
}

TEST_P(RecordTest, AWriteSetsAddsAndRemoves) {
  const ObjectId record =
      Add(handle_, {Property::I2(1, 10), Property::String(2, u"old"), Property::I2(3, 30)});
  ASSERT_TRUE(Store().Write(handle_, record,
                            Values({Property::String(2, u"new"), Property::I4(4, 40),
                                    Property::Removal(PropertyId(3, PropertyType::kI2)),
                                    Property::Removal(PropertyId(9, PropertyType::kI2))})));
  const RecordView view = Read();
  ASSERT_EQ(3U, view.properties.size());
  EXPECT_EQ(10, view.properties[0].AsI2());
  EXPECT_EQ(u"new", view.properties[1].AsString());
  EXPECT_EQ(40, view.properties[2].AsI4());
}

TEST_P(RecordTest, OneTagWithTwoTypesIsTwoProperties) {
  Add(handle_, {Property::I2(1, 10), Property::String(1, u"ten")});
  EXPECT_EQ(2U, Read().properties.size());
}

TEST_P(RecordTest, TheLaterOfTwoValuesCounts) {
  Add(handle_, {Property::I2(1, 10), Property::I2(1, 11)});
  ASSERT_EQ(1U, Read().properties.size());
  EXPECT_EQ(11, Read().properties[0].AsI2());
}

TEST_P(RecordTest, ARecordMayLoseItsLastProperty) {
  const ObjectId record = Add(handle_, {Property::I2(1, 10)});
  ASSERT_TRUE(Store().Write(handle_, record,
                            Values({Property::Removal(PropertyId(1, PropertyType::kI2))})));
  EXPECT_EQ(record, Read().id);
  EXPECT_TRUE(Read().properties.empty());
}

TEST_P(RecordTest, ARecordMayBeWrittenFromItsOwnValues) {
  const ObjectId record =
      Add(handle_, {Property::String(1, u"text"), Property::String(2, u"more")});
  for (int i = 0; i < 100; ++i) {
    const RecordView view = Read();
    const std::vector<Property> own(view.properties.begin(), view.properties.end());
    ASSERT_TRUE(Store().Write(handle_, record, own));
  }
  EXPECT_EQ(u"more", Read().properties[1].AsString());
}

TEST_P(RecordTest, BytesCountTheValuesThatAreThere) {
  const auto bytes = [this] { return Store().Info(database_).value.database.bytes; };
  EXPECT_EQ(0U, bytes());
  const ObjectId first =
      Add(handle_, {Property::I2(1, 1), Property::I4(2, 1), Property::R8(3, 1.0)});
  EXPECT_EQ(14U, bytes());
  const ObjectId second = Add(handle_, {Property::String(4, u"abc")});
  EXPECT_EQ(20U, bytes());
  ASSERT_TRUE(Store().Write(handle_, second, Values({Property::String(4, u"a")})));
  EXPECT_EQ(16U, bytes());
  EXPECT_EQ(StoreError::kNone, Store().DeleteRecord(handle_, first));
  EXPECT_EQ(2U, bytes());
}

TAVIX_STORE_TESTS(RecordTest);

}  // namespace
}  // namespace tavix
