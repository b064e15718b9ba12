// What a reader has to say about a file it read: which lines it skipped and why.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace fieldhost {

// One sentence about one line of a file. Lines count from 1.
struct Diagnostic {
  std::string file;
  int line = 0;
  std::string sentence;  // without full stop
};

// Collects the diagnostics of one file. Every skipped line counts, but only the first sentences are
// kept: a file of another kind would bring one for each of its lines.
class ReadLog {
 public:
  static constexpr std::size_t kKept = 100;

  explicit ReadLog(std::string file) : file_(std::move(file)) {}

  // `count` lines were skipped, the first of them `line`.
  void Skip(int line, std::string sentence, std::size_t count = 1) {
    skipped_lines_ += count;
    if (diagnostics_.size() < kKept) diagnostics_.push_back({file_, line, std::move(sentence)});
  }

  [[nodiscard]] std::size_t SkippedLines() const { return skipped_lines_; }
  [[nodiscard]] const std::vector<Diagnostic>& Diagnostics() const { return diagnostics_; }

 private:
  std::string file_;
  std::size_t skipped_lines_ = 0;
  std::vector<Diagnostic> diagnostics_;
};

}  // namespace fieldhost
