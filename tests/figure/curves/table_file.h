// Tables of measured curves that lie beside the project, where they are at hand.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tavix::test {

// One row, by the names of the table's first line.
class TableRow {
 public:
  explicit TableRow(std::map<std::string, std::string> fields) : fields_(std::move(fields)) {}

  // Fails with std::out_of_range where the table has no such column.
  [[nodiscard]] const std::string& Text(const std::string& column) const {
    return fields_.at(column);
  }
  // INF, the radius of a straight, is 0 here as it is in the library's calls.
  [[nodiscard]] double Number(const std::string& column) const;

  // The number after `name` and an equals sign in a text like "R1=-25 A=15 R2=0".
  [[nodiscard]] double NumberAfter(const std::string& column, const std::string& name) const;

 private:
  std::map<std::string, std::string> fields_;
};

// All rows of a file of comma-separated values; none when there is no such file.
[[nodiscard]] std::vector<TableRow> ReadTable(const std::filesystem::path& file);

}  // namespace tavix::test
