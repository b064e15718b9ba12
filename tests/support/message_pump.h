// The message loop of a test: it waits for a condition, never for a time.
#pragma once

#include <functional>

namespace tavix::test {

// Dispatches messages until `condition` holds; false when it does not within ten seconds, which is
// a failure and not a way to wait.
[[nodiscard]] bool PumpUntil(const std::function<bool()>& condition);

// Dispatches what is in the queue now, with the messages that leads to.
void DrainMessages();

}  // namespace tavix::test
