// The main of a program that replays a fuzzer's corpus: one test for each file of the corpus, or
// for each file that is named. The program legend_file_corpus has the files of corpus/legend_file.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/project_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Files = std::vector<std::filesystem::path>;

class ReplayTest : public testing::Test {
 public:
  explicit ReplayTest(std::filesystem::path input) : input_(std::move(input)) {}

 private:
  void TestBody() override {
    std::ifstream file(input_, std::ios::binary);
    ASSERT_TRUE(file) << input_;
    const std::vector<char> text{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }

  std::filesystem::path input_;
};

Files CorpusOf(std::string program) {
  program.resize(program.rfind('_'));
  Files files;
  const auto folder = tavix::test::ProjectFolder() / "fuzzers" / "corpus" / program;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  const std::string program = std::filesystem::path(arguments[0]).stem().string();
  const Files inputs = count > 1 ? Files(arguments + 1, arguments + count) : CorpusOf(program);
  if (inputs.empty()) {
    std::cerr << "the corpus of " << program << " is empty\n";
    return 1;
  }
  for (const std::filesystem::path& input : inputs) {
    testing::RegisterTest(program.c_str(), input.filename().string().c_str(), nullptr, nullptr,
                          __FILE__, __LINE__,
                          [input]() -> testing::Test* { return new ReplayTest(input); });
  }
  return RUN_ALL_TESTS();
}
