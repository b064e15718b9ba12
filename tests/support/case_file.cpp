#include "tests/support/case_file.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>

#include "tests/support/project_folder.h"

namespace tavix::test {
namespace {

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r";
  const std::size_t from = text.find_first_not_of(kBlank);
  if (from == std::string_view::npos) return "";
  return text.substr(from, text.find_last_not_of(kBlank) - from + 1);
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t at = 0; at != std::string_view::npos;) {
    const std::size_t end = text.find(separator);
    parts.push_back(Trim(text.substr(0, end)));
    at = end;
    if (end != std::string_view::npos) text.remove_prefix(end + 1);
  }
  return parts;
}

std::optional<double> PlainNumber(std::string_view text) {
  double value = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<double> NumberOrFraction(std::string_view text) {
  const auto parts = Split(text, '/');
  const auto number = PlainNumber(parts[0]);
  if (parts.size() == 1 || !number) return number;
  const auto divisor = PlainNumber(parts[1]);
  if (parts.size() > 2 || !divisor) return std::nullopt;
  return *number / *divisor;
}

double NumberIn(std::string_view text) {
  const auto number = NumberOrFraction(text);
  if (!number) throw std::runtime_error("not a number: " + std::string(text));
  return *number;
}

std::vector<std::string> Words(std::string_view text) {
  std::istringstream stream{std::string(text)};
  return {std::istream_iterator<std::string>(stream), {}};
}

void ExpectNear(double expected, double actual, double tolerance) {
  if (tolerance == 0.0) {
    EXPECT_EQ(expected, actual);
  } else {
    EXPECT_NEAR(expected, actual, tolerance);
  }
}

}  // namespace

Case::Case(std::string_view line) {
  const auto columns = Split(line, '|');
  if (columns.size() != 5) throw std::runtime_error("a line has five columns");
  operation_ = columns[0];
  tolerance_ = NumberIn(columns[1]);
  for (const std::string& word : Words(columns[2])) {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) throw std::runtime_error("no number for " + word);
    Input input;
    for (const auto number : Split(std::string_view(word).substr(equals + 1), ',')) {
      input.numbers.push_back(NumberIn(number));
    }
    if (!input_.emplace(word.substr(0, equals), input).second) {
      throw std::runtime_error("twice: " + word);
    }
  }
  for (const std::string& word : Words(columns[3])) {
    const auto number = NumberOrFraction(word);
    if (number) {
      expected_.push_back(*number);
    } else if (expected_word_.empty()) {
      expected_word_ = word;
    } else {
      throw std::runtime_error("more than one word: " + word);
    }
  }
  if (expected_.empty() && expected_word_.empty()) throw std::runtime_error("nothing is expected");
  if (columns[4] != "-") back_ = NumberIn(columns[4]);
}

const std::vector<double>& Case::Numbers(const std::string& name, std::size_t count) const {
  const auto found = input_.find(name);
  if (found == input_.end()) throw std::runtime_error("no input " + name);
  if (found->second.numbers.size() != count) throw std::runtime_error("wrong count of " + name);
  found->second.used = true;
  return found->second.numbers;
}

double Case::Number(const std::string& name, double absent) const {
  return Has(name) ? Number(name) : absent;
}

int Case::Whole(const std::string& name) const {
  const double number = Number(name);
  if (TruncateToInt(number) != number) throw std::runtime_error("not a whole number: " + name);
  return TruncateToInt(number);
}

int Case::Whole(const std::string& name, int absent) const {
  return Has(name) ? Whole(name) : absent;
}

GroundPoint Case::Ground(const std::string& name) const {
  const auto& numbers = Numbers(name, 2);
  return {numbers[0], numbers[1]};
}

ScreenPoint Case::Screen(const std::string& name) const {
  const auto& numbers = Numbers(name, 2);
  return {TruncateToInt(numbers[0]), TruncateToInt(numbers[1])};
}

void Case::Expect(const std::vector<double>& numbers, std::string_view word) const {
  EXPECT_EQ(expected_word_, word);
  ASSERT_EQ(expected_.size(), numbers.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    ExpectNear(expected_[i], numbers[i], tolerance_);
  }
}

void Case::ExpectBack(const std::vector<double>& given, const std::vector<double>& input) const {
  if (!back_) return;
  went_back_ = true;
  ASSERT_EQ(input.size(), given.size());
  for (std::size_t i = 0; i < input.size(); ++i) ExpectNear(input[i], given[i], *back_);
}

std::string Case::Unused() const {
  std::string unused;
  for (const auto& [name, input] : input_) {
    if (!input.used) unused += " " + name;
  }
  return back_ && !went_back_ ? unused + " back" : unused;
}

void RunCases(const std::string& name, std::string_view text, const Operations& operations) {
  std::set<std::string> run;
  int number = 0;
  for (const std::string_view line : Split(text, '\n')) {
    ++number;
    if (line.empty() || line.front() == '#') continue;
    SCOPED_TRACE(name + ":" + std::to_string(number) + ": " + std::string(line));
    try {
      const Case each(line);
      const auto operation = operations.find(each.Operation());
      if (operation == operations.end()) throw std::runtime_error("unknown operation");
      run.insert(each.Operation());
      operation->second(each);
      EXPECT_EQ("", each.Unused());
    } catch (const std::runtime_error& error) {
      ADD_FAILURE() << error.what();
    }
  }
  for (const auto& [operation, call] : operations) {
    EXPECT_TRUE(run.contains(operation)) << name << " has no line for " << operation;
  }
  EXPECT_FALSE(run.empty()) << name << " has no lines";
}

void RunCaseFile(const std::string& name, const Operations& operations) {
  std::ifstream file(ProjectFolder() / "tests/cases" / name, std::ios::binary);
  ASSERT_TRUE(file.is_open()) << "tests/cases/" << name;
  RunCases(name, std::string(std::istreambuf_iterator<char>(file), {}), operations);
}

}  // namespace tavix::test
