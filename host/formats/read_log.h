// What a reader skipped of a file, and why.
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

// Collects the diagnostics of one file. All that is skipped counts, but only the first sentences
// are kept: a file of another kind would give one for each of its lines.
class ReadLog {
 public:
  static constexpr std::size_t kKept = 100;

  explicit ReadLog(std::string file) : file_(std::move(file)) {}

  // `count` lines were skipped, the first of them `line`.
  void Skip(int line, std::string sentence, std::size_t count = 1) {
    skipped_lines_ += count;
    Tell(line, std::move(sentence));
  }

  // An element was skipped, in a file that is made of elements rather than lines; it begins at
  // `line`.
  void SkipElement(int line, std::string sentence) {
    ++skipped_elements_;
    Tell(line, std::move(sentence));
  }

  // The file as a whole cannot be used; `why` is the end of a sentence that begins with its name,
  // and says what to do.
  void Refuse(std::string why) { refusal_ = std::move(why); }

  [[nodiscard]] std::size_t SkippedLines() const { return skipped_lines_; }
  [[nodiscard]] std::size_t SkippedElements() const { return skipped_elements_; }
  // Empty when the file was not refused.
  [[nodiscard]] const std::string& Refusal() const { return refusal_; }
  [[nodiscard]] const std::vector<Diagnostic>& Diagnostics() const { return diagnostics_; }

 private:
  void Tell(int line, std::string sentence) {
    if (diagnostics_.size() < kKept) diagnostics_.push_back({file_, line, std::move(sentence)});
  }

  std::string file_;
  std::string refusal_;
  std::size_t skipped_lines_ = 0;
  std::size_t skipped_elements_ = 0;
  std::vector<Diagnostic> diagnostics_;
};

}  // namespace fieldhost
