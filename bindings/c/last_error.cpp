#include "bindings/c/last_error.h"

#include <array>
#include <cwchar>

namespace tavix_c {
namespace {

// A fixed place: the reason may be that there is no memory.
std::array<wchar_t, 200>& Sentence() {
  thread_local std::array<wchar_t, 200> sentence{};
  return sentence;
}

}  // namespace

void ForgetReason() { Sentence()[0] = 0; }

void KeepReason(const char* call, const wchar_t* reason, int number) {
  auto& sentence = Sentence();
  const int length = std::swprintf(sentence.data(), sentence.size(), L"%hs: ", call);
  const auto begin = static_cast<std::size_t>(length < 0 ? 0 : length);
  std::swprintf(sentence.data() + begin, sentence.size() - begin, reason, number);
}

const wchar_t* KeptReason() { return Sentence().data(); }

}  // namespace tavix_c
