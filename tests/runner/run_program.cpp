#include "tests/runner/run_program.h"

#include <windows.h>

#include <fstream>
#include <iterator>

#include "tests/host/support/child_process.h"
#include "tests/host/support/process_report.h"
#include "tests/runner/failed_pictures.h"
#include "tests/runner/utf8.h"

namespace tavix::runner {
namespace {

constexpr std::size_t kMostPictures = 6;  // of a program: of three comparisons
constexpr DWORD kSecond = 1000;           // milliseconds

// Fills in how the program ended and how long it took.
void Watch(const fieldhost::ChildProcess& child, unsigned limit, ProgramRun& run) {
  const ULONGLONG begin = ::GetTickCount64();
  if (child.EndsWithin(limit * kSecond)) {
    run.code = child.Code();
  } else {
    run.ending = Ending::kAfterLimit;
    run.standing = fieldhost::ReportOn(child.Id());
  }
  run.seconds = static_cast<double>(::GetTickCount64() - begin) / kSecond;
}

}  // namespace

ProgramRun RunProgram(const std::filesystem::path& program, const std::filesystem::path& folder,
                      unsigned limit) {
  ProgramRun run;
  run.name = Utf8(program.stem().wstring());
  const std::filesystem::path printed = folder / (program.stem().wstring() + L".txt");
  const std::filesystem::path pictures = folder / program.stem();
  std::filesystem::remove_all(pictures);
  ::SetEnvironmentVariableW(L"TAVIX_FAILED_PICTURES", pictures.c_str());
  {
    const fieldhost::OwnedHandle input(
        fieldhost::OpenForChild(L"NUL", GENERIC_READ, OPEN_EXISTING));
    const fieldhost::OwnedHandle output(
        fieldhost::OpenForChild(printed, GENERIC_WRITE, CREATE_ALWAYS));
    const fieldhost::ChildProcess child(L'"' + program.wstring() + L'"',
                                        {input.Get(), output.Get(), output.Get()});
    if (child.Get()) {
      Watch(child, limit, run);
    } else {
      run.ending = Ending::kNotStarted;
      run.code = child.StartError();
    }
  }
  std::ifstream file(printed, std::ios::binary);
  run.output = ReadGtestOutput(
      std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
  FailedPictures failed = TakeFailedPictures(pictures, kMostPictures);
  run.pictures = std::move(failed.taken);
  run.pictures_left_out = failed.left_out;
  return run;
}

}  // namespace tavix::runner
