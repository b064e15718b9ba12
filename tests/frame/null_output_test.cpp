// An output that is null: the call is refused, and none of its other outputs is written.
#include <tavix/tavix.h>

#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

// A complete instance, on which each call below succeeds once all its outputs are there.
class NullOutput : public PlotTest {
 protected:
  NullOutput() {
    MakePlot(200, 100);
    Enter(1, {1.0, 2.0}, 2, L"T-1", 101);
    Tavix_EntPnt3(1, 101, CString(L"T-1"), 1.0, 2.0, 3.0);
    Tavix_EntPntMem(1, CString(L"note"));
    Tavix_SetTatYok(2, 1);
    Tavix_SetWak(1, 254, 2970, 254, 2100);
    Tavix_VoAdd(1.0, 2.0);
    Tavix_GrpStt(100, 200);
  }
};

constexpr int kUntouchedInt = 12345;
constexpr short kUntouchedShort = 123;
constexpr double kUntouched = 0.125;

// The call asked with each of its outputs null in turn.
template <class... Outputs, std::size_t... I>
void ExpectRefusal(const char* name, const std::function<int(Outputs*...)>& call,
                   std::index_sequence<I...>) {
  for (std::size_t missing = 0; missing < sizeof...(Outputs); ++missing) {
    SCOPED_TRACE(testing::Message() << name << " without output " << missing);
    const std::tuple<Outputs...> before = [] {
      std::tuple<Outputs...> values;
      const auto mark = [](auto& value) {
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, int>) value = kUntouchedInt;
        if constexpr (std::is_same_v<Value, short>) value = kUntouchedShort;
        if constexpr (std::is_same_v<Value, double>) value = kUntouched;
      };
      (mark(std::get<I>(values)), ...);
      return values;
    }();
    std::tuple<Outputs...> outputs = before;
    EXPECT_EQ(-1, call((I == missing ? nullptr : &std::get<I>(outputs))...));
    EXPECT_TRUE(before == outputs);
  }
}

template <class... Outputs>
void ExpectRefusal(const char* name, std::type_identity_t<std::function<int(Outputs*...)>> call) {
  ExpectRefusal<Outputs...>(name, call, std::index_sequence_for<Outputs...>{});
}

TEST_F(NullOutput, IsRefusedAndNothingIsWritten) {
  ExpectRefusal<int>("Tavix_GetAng", Tavix_GetAng);
  ExpectRefusal<int, int>("Tavix_GetTatYok", Tavix_GetTatYok);
  ExpectRefusal<int, int>("Tavix_GetLstPicCrd", Tavix_GetLstPicCrd);
  ExpectRefusal<int>("Tavix_ChkCrd", [](int* visible) { return Tavix_ChkCrd(0, 0, visible); });
  ExpectRefusal<int>("Tavix_ChkCir", [](int* visible) { return Tavix_ChkCir(0, 0, 1, visible); });
  ExpectRefusal<int, CString>("Tavix_GetPntNoNam", [](int* number, CString* name) {
    return Tavix_GetPntNoNam(1, number, name);
  });
  ExpectRefusal<double, double>("Tavix_GetPntCrd",
                                [](double* x, double* y) { return Tavix_GetPntCrd(1, x, y); });
  ExpectRefusal<CString>("Tavix_GetPntMem", [](CString* memo) { return Tavix_GetPntMem(1, memo); });
  ExpectRefusal<int, CString>("Tavix_GetPnt3NoNam", [](int* number, CString* name) {
    return Tavix_GetPnt3NoNam(1, number, name);
  });
  ExpectRefusal<double, double, double>("Tavix_GetPnt3Crd", [](double* x, double* y, double* z) {
    return Tavix_GetPnt3Crd(1, x, y, z);
  });
  ExpectRefusal<int, int, int, int, int, int>(
      "Tavix_GetPntHan", [](int* kind, int* width, int* color, int* prm1, int* prm2, int* prm3) {
        return Tavix_GetPntHan(1, kind, width, color, prm1, prm2, prm3);
      });
  ExpectRefusal<int, short, short, short, int, int>(
      "Tavix_GetLinHan",
      [](int* kind, short* prm1, short* prm2, short* prm3, int* width, int* color) {
        return Tavix_GetLinHan(101, kind, prm1, prm2, prm3, width, color);
      });
  ExpectRefusal<int>("Tavix_GetWakScl", Tavix_GetWakScl);
  ExpectRefusal<double, double>("Tavix_GetWakGen", Tavix_GetWakGen);
  ExpectRefusal<int>("Tavix_VoGet", Tavix_VoGet);
  ExpectRefusal<double, double>("Tavix_VoLst", Tavix_VoLst);
  ExpectRefusal<double, double>("Tavix_VoIdx",
                                [](double* x, double* y) { return Tavix_VoIdx(0, x, y); });
  ExpectRefusal<int>("Tavix_GrpGet", [](int* ink) { return Tavix_GrpGet(0, 0, ink); });
}

TEST_F(NullOutput, OfACaptureIsRefusedAndTheCoordinateStays) {
  ASSERT_EQ(0, Tavix_CrdStt(901));
  ::SendMessageW(Window(), WM_LBUTTONDOWN, 0, MAKELPARAM(100, 50));
  ::SendMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(100, 50));
  ExpectRefusal<double, double>("Tavix_CrdGet", Tavix_CrdGet);
  Ground at{};
  EXPECT_EQ(0, Tavix_CrdGet(&at.x, &at.y));
}

TEST_F(NullOutput, OfTheIndexIsNotWritten) {
  Tavix_GetIdx(nullptr);
  EXPECT_EQ(0, CurrentIndex());
}

// The number would be lost, and with it the entry.
TEST_F(NullOutput, AddsNoLegendEntry) {
  EXPECT_EQ(-1, Tavix_AddPntHan(2, 1, 0, 10, 10, 1, nullptr));
  EXPECT_EQ(-1, Tavix_AddLinHan(101, 0, 0, 0, 1, 0, nullptr));
  short number = 0;
  EXPECT_EQ(0, Tavix_AddLinHan(101, 0, 0, 0, 1, 0, &number));
  EXPECT_EQ(201, number);
}

// A host that keeps no vertices may have no arrays either.
TEST_F(NullOutput, IsTakenWhereNothingIsToBeWritten) {
  ASSERT_EQ(0, Tavix_VoEnd());
  EXPECT_EQ(0, Tavix_VoLst(nullptr, nullptr));
}

}  // namespace
}  // namespace tavix::test
