#include "tests/figure/curves/table_file.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tavix::test {
namespace {

std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
  std::istringstream text(line);
  for (std::string field; std::getline(text, field, ',');) fields.push_back(field);
  return fields;
}

bool ReadLine(std::istream& stream, std::string* line) {
  if (!std::getline(stream, *line)) return false;
  if (!line->empty() && line->back() == '\r') line->pop_back();
  return true;
}

}  // namespace

double TableRow::Number(const std::string& column) const {
  const std::string& text = Text(column);
  return text == "INF" ? 0.0 : std::stod(text);
}

double TableRow::NumberAfter(const std::string& column, const std::string& name) const {
  std::istringstream words(Text(column));
  for (std::string word; words >> word;) {
    if (word.starts_with(name + "=")) return std::stod(word.substr(name.size() + 1));
  }
  throw std::out_of_range(column + " names no " + name);
}

std::vector<TableRow> ReadTable(const std::filesystem::path& file) {
  std::ifstream stream(file);
  std::string line;
  if (!ReadLine(stream, &line)) return {};
  const std::vector<std::string> names = Fields(line);
  std::vector<TableRow> rows;
  while (ReadLine(stream, &line)) {
    const std::vector<std::string> values = Fields(line);
    std::map<std::string, std::string> fields;
    for (std::size_t i = 0; i < names.size(); ++i) {
      fields[names[i]] = i < values.size() ? values[i] : "";
    }
    rows.emplace_back(std::move(fields));
  }
  return rows;
}

}  // namespace tavix::test
