// The message a window procedure of this thread is handling.
#pragma once

#include "framework/platform.h"

namespace afx {

MSG& CurrentMessage();

// Makes a message the current one for as long as it lives.
class ScopedCurrentMessage {
 public:
  explicit ScopedCurrentMessage(const MSG& message) : previous_(CurrentMessage()) {
    CurrentMessage() = message;
  }
  ~ScopedCurrentMessage() { CurrentMessage() = previous_; }
  ScopedCurrentMessage(const ScopedCurrentMessage&) = delete;
  ScopedCurrentMessage& operator=(const ScopedCurrentMessage&) = delete;

 private:
  const MSG previous_;
};

}  // namespace afx
