#include "host/formats/sima/sima_record.h"

#include <algorithm>
#include <string>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

constexpr std::size_t kMostFields = 8;  // no record we read has more

struct KnownRecord {
  std::string_view code;
  SimaRecordKind kind;
};

constexpr KnownRecord kKnownRecords[] = {
    {"A01", SimaRecordKind::kPoint},       {"B01", SimaRecordKind::kParcelVertex},
    {"D00", SimaRecordKind::kParcelBegin}, {"D99", SimaRecordKind::kParcelEnd},
    {"G00", SimaRecordKind::kNoData},      {"G01", SimaRecordKind::kNoData},
    {"G99", SimaRecordKind::kNoData},      {"Z00", SimaRecordKind::kNoData},
    {"Z01", SimaRecordKind::kNoData},      {"A00", SimaRecordKind::kNoData},
    {"A99", SimaRecordKind::kNoData},      {"C03", SimaRecordKind::kNoData},
};

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

bool IsCode(std::string_view code) {
  return code.size() == 3 && code[0] >= 'A' && code[0] <= 'Z' && IsDigit(code[1]) &&
         IsDigit(code[2]);
}

SimaRecordKind KindOf(std::string_view code) {
  const auto* known = std::find_if(std::begin(kKnownRecords), std::end(kKnownRecords),
                                   [&](const KnownRecord& row) { return row.code == code; });
  if (known != std::end(kKnownRecords)) return known->kind;
  return IsCode(code) ? SimaRecordKind::kUnknown : SimaRecordKind::kNoRecord;
}

}  // namespace

void SimaRecord::Cut(std::string_view line) {
  SplitFields(line, ',', kMostFields, fields_);
  kind_ = KindOf(FieldText(fields_.front()));
}

bool BeginsSima(std::string_view first_line) {
  SimaRecord record;
  record.Cut(first_line);
  return FieldText(record.Code()) == "G00";
}

}  // namespace fieldhost
