// A new device store for each test.
#pragma once

#include <gtest/gtest.h>
#include <windbase.h>

#include "platform/framework/database/device_store.h"
#include "platform/objectstore/failing_store.h"
#include "platform/objectstore/memory_store.h"

// The calls under test go through a failing store, which forwards them unless a test makes them
// fail.
class FreshStore : public testing::Test {
 protected:
  FreshStore() : before_(SetDeviceStore(&store_)) {}
  ~FreshStore() override { SetDeviceStore(before_); }

  // Expects a result that says "failed", and the reason.
  template <class Result>
  static void ExpectError(DWORD reason, Result result, Result failed) {
    EXPECT_EQ(failed, result);
    EXPECT_EQ(reason, GetLastError());
    SetLastError(ERROR_SUCCESS);
  }

  static LPWSTR Name(const wchar_t* name) { return const_cast<LPWSTR>(name); }

  static CEPROPVAL Short(WORD ident, short value) {
    CEPROPVAL prop{};
    prop.propid = static_cast<CEPROPID>(MAKELONG(CEVT_I2, ident));
    prop.val.iVal = value;
    return prop;
  }
  static CEPROPVAL String(WORD ident, const wchar_t* text) {
    CEPROPVAL prop{};
    prop.propid = static_cast<CEPROPID>(MAKELONG(CEVT_LPWSTR, ident));
    prop.val.lpwstr = const_cast<LPWSTR>(text);
    return prop;
  }

  tavix::MemoryStore memory_;
  tavix::FailingStore store_{memory_};

 private:
  tavix::ObjectStore* before_;
};

constexpr CEPROPID kLineId = static_cast<CEPROPID>(MAKELONG(CEVT_I2, 111));
constexpr CEPROPID kPointId = static_cast<CEPROPID>(MAKELONG(CEVT_I2, 112));
