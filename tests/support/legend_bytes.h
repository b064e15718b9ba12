// The legend file as bytes.
#pragma once

#include <filesystem>
#include <string>

namespace tavix::test {

constexpr std::size_t kLegendRecord = 30;
constexpr std::size_t kLegendFileSize = 17 * kLegendRecord;

// A record as the file has it: `text` of 29 or 30 characters, the shorter one with a NUL.
[[nodiscard]] std::string LegendRecord(const std::string& text);

// What an instance with the built-in legend saves.
[[nodiscard]] std::string BuiltInLegendBytes();

// A legend file with `header` in front of the built-in entries.
[[nodiscard]] std::string LegendBytesWithHeader(const std::string& header);

// Empty when there is no such file.
[[nodiscard]] std::string ReadBytes(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace tavix::test
