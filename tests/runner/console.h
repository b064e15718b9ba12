// What a person sees while the tests run.
#pragma once

#include <string_view>

namespace tavix::runner {

// Prints a text in any script: on a console whatever its code page is, into a file or a pipe as
// UTF-8.
void Print(std::wstring_view text);

}  // namespace tavix::runner
