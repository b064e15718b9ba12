// Runs test programs one after another and leaves one text file to send back:
//
//     test_runner.exe [--limit SECONDS] [PROGRAM ...]
//
// Without names it runs every *_tests.exe beside it; a name without a folder is one beside it. The
// report, tavix-test-report.txt, lies in the folder above, which is the current one of the
// programs. Ends with 0 when nothing failed, with 1 when something did, with 2 when it cannot run.
#include <windows.h>

#include <shellapi.h>
#include <tavix/tavix_c.h>

#include <algorithm>
#include <cwchar>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/runner/run_program.h"
#include "tests/runner/system_facts.h"
#include "tests/runner/utf8.h"
#include "tests/support/program_folder.h"

namespace tavix::runner {
namespace {

// Prints a text in any script: on a console whatever its code page is, into a file or a pipe as
// UTF-8.
void Print(std::wstring_view text) {
  const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  DWORD written = 0;
  if (::GetConsoleMode(output, &mode)) {
    ::WriteConsoleW(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    return;
  }
  const std::string bytes = Utf8(text);
  ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

struct Order {
  unsigned limit = 900;  // seconds a program may take
  std::vector<std::filesystem::path> programs;
};

std::vector<std::filesystem::path> AllPrograms() {
  constexpr std::wstring_view kEnd = L"_tests.exe";
  std::vector<std::filesystem::path> programs;
  for (const auto& entry : std::filesystem::directory_iterator(test::BesideProgram(L""))) {
    if (entry.path().wstring().ends_with(kEnd)) programs.push_back(entry.path());
  }
  std::sort(programs.begin(), programs.end());
  return programs;
}

Order OrderOf(int count, wchar_t** words) {
  Order order;
  for (int i = 1; i < count; ++i) {
    if (std::wstring_view(words[i]) == L"--limit" && i + 1 < count) {
      order.limit = static_cast<unsigned>(std::wcstoul(words[++i], nullptr, 10));
    } else {
      order.programs.push_back(test::BesideProgram(words[i]));
    }
  }
  if (order.programs.empty()) order.programs = AllPrograms();
  return order;
}

std::vector<Fact> FactsOfRun(const std::filesystem::path& folder) {
  std::vector<Fact> facts = SystemFacts();
  facts.push_back({"Tavix", std::to_string(TAVIX_VERSION_MAJOR) + "." +
                                std::to_string(TAVIX_VERSION_MINOR) + "." +
                                std::to_string(TAVIX_VERSION_PATCH)});
  facts.push_back({"Folder", Utf8(folder.wstring())});
  return facts;
}

// ASCII, as the outcomes of programs are.
std::wstring Wide(const std::string& text) { return {text.begin(), text.end()}; }

bool WriteReport(const std::filesystem::path& file, const std::string& text) {
  std::ofstream report(file, std::ios::binary);
  report << text;
  return report.flush().good();
}

int Run(const Order& order) {
  const std::filesystem::path folder = test::BesideProgram(L"..").lexically_normal();
  const std::filesystem::path report = folder / L"tavix-test-report.txt";
  const std::filesystem::path printed = folder / L"output";
  std::filesystem::create_directories(printed);
  std::filesystem::current_path(folder);
  // No box of the system waits for an answer where a program crashes; programs inherit this.
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);

  Print(
      L"Tests of Tavix. Please leave mouse and keyboard alone until the end.\n"
      L"Tavix の試験です。終わるまで、マウスとキーボードに触れないでください。\n\n");
  const std::vector<Fact> facts = FactsOfRun(folder);
  const std::size_t planned = order.programs.size();
  std::vector<ProgramRun> runs;
  bool is_written = false;
  for (const auto& program : order.programs) {
    Print(L"[" + std::to_wstring(runs.size() + 1) + L"/" + std::to_wstring(planned) + L"] " +
          program.stem().wstring() + L" ... ");
    runs.push_back(RunProgram(program, printed, order.limit));
    Print(Wide(Outcome(runs.back())) + L"\n");
    // Each time: a run that is broken off leaves what it found.
    is_written = WriteReport(report, ReportText(facts, runs, planned));
  }
  if (!is_written) {
    Print(L"\nThe report could not be written: " + report.wstring() +
          L"\n報告書を書き込めませんでした。\n");
    return 2;
  }
  const Tally tally = TallyOf(runs);
  Print(L"\n" + std::to_wstring(tally.passed) + L" passed, " + std::to_wstring(tally.failed) +
        L" failed, " + std::to_wstring(tally.skipped) + L" skipped; " +
        std::to_wstring(tally.broken_off) + L" programs hung or crashed\n\n" +
        L"Please send back this one file:\n次のファイルを一つだけお送りください。\n\n    " +
        report.wstring() + L"\n\n");
  return std::any_of(runs.begin(), runs.end(), [](const ProgramRun& run) { return run.Failed(); });
}

}  // namespace
}  // namespace tavix::runner

int main() {
  try {
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    return tavix::runner::Run(tavix::runner::OrderOf(count, words));
  } catch (const std::exception& failure) {
    const std::string words = failure.what();
    tavix::runner::Print(L"The tests cannot run: " + std::wstring(words.begin(), words.end()) +
                         L"\n試験を実行できません。\n");
    return 2;
  }
}
