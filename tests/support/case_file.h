// Case files: numeric examples that a surveyor can read and check, one a line, in tests/cases.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "view/coordinates.h"

namespace tavix::test {

// One line: operation | tolerance | input | expected | back. The input are names with their
// numbers, `scale=2 centre=1000,2000`; a number may be a fraction, 1/3. Lines that begin with # and
// empty ones say nothing. What is wrong with a line is thrown as std::runtime_error.
class Case {
 public:
  explicit Case(std::string_view line);

  [[nodiscard]] const std::string& Operation() const { return operation_; }

  // The numbers of an input by its name, which must be there and have so many, unless there is a
  // value for its absence.
  [[nodiscard]] double Number(const std::string& name) const { return Numbers(name, 1)[0]; }
  [[nodiscard]] double Number(const std::string& name, double absent) const;
  [[nodiscard]] int Whole(const std::string& name) const;
  [[nodiscard]] int Whole(const std::string& name, int absent) const;
  [[nodiscard]] GroundPoint Ground(const std::string& name) const;
  [[nodiscard]] ScreenPoint Screen(const std::string& name) const;
  [[nodiscard]] bool Has(const std::string& name) const { return input_.contains(name); }

  [[nodiscard]] double Tolerance() const { return tolerance_; }
  [[nodiscard]] bool HasBack() const { return back_.has_value(); }

  // The result of the operation: numbers, and a word where the file has one. Fails the test where
  // it is not the expected one.
  void Expect(const std::vector<double>& numbers, std::string_view word = "") const;

  // Where the line has a way back: what it gives, and what the input was.
  void ExpectBack(const std::vector<double>& given, const std::vector<double>& input) const;

  // Names of the input that the operation has not asked for, and a way back it has not gone.
  [[nodiscard]] std::string Unused() const;

 private:
  struct Input {
    std::vector<double> numbers;
    bool used = false;
  };

  [[nodiscard]] const std::vector<double>& Numbers(const std::string& name,
                                                   std::size_t count) const;

  std::string operation_;
  double tolerance_ = 0.0;
  mutable std::map<std::string, Input> input_;
  std::vector<double> expected_;
  std::string expected_word_;
  std::optional<double> back_;
  mutable bool went_back_ = false;
};

using Operations = std::map<std::string, std::function<void(const Case&)>>;

// Runs every line of a text; `name` stands in the messages. Fails the test for an unknown
// operation, an operation without a line, a line that is wrong, and a text without lines.
void RunCases(const std::string& name, std::string_view text, const Operations& operations);

// The same with a file of tests/cases.
void RunCaseFile(const std::string& name, const Operations& operations);

}  // namespace tavix::test
