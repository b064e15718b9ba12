// An operator new that fails on request.
#pragma once

namespace tavix::test {

// While it lives the `nth` allocation from here on fails, 1 the next. One at a time.
class FailingNew {
 public:
  explicit FailingNew(int nth);
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;

  // Whether so many were asked for.
  [[nodiscard]] static bool HasFailed();
};

}  // namespace tavix::test
