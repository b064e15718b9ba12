// The library from its loading on: a copy of it, loaded beside the one the other tests use, has
// never been called.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <utility>

#include "tests/support/private_folder.h"
#include "tests/support/program_folder.h"

namespace tavix::test {
namespace {

class LoadedCopy : public testing::Test {
 protected:
  LoadedCopy() {
    const std::filesystem::path file = folder_.Path() / L"tavix_copy.dll";
    std::filesystem::copy_file(BesideProgram(L"tavix.dll"), file);
    library_ = ::LoadLibraryW(file.c_str());
  }
  ~LoadedCopy() override { Unload(); }

  bool Unload() {
    const HMODULE library = std::exchange(library_, nullptr);
    return library && ::FreeLibrary(library);
  }

  template <class Function>
  Function* Call(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(library_, name)));
  }

  PrivateFolder folder_{L"ROVCOND_DATA_FOLDER"};
  HMODULE library_ = nullptr;
};

TEST_F(LoadedCopy, BeginsWithInstanceZeroAndNoneInUse) {
  ASSERT_NE(nullptr, library_);
  int index = -1;
  Call<void(int*)>("Tavix_GetIdx")(&index);
  EXPECT_EQ(0, index);
  const auto set_index = Call<void(int)>("Tavix_SetIdx");
  for (index = 0; index < 5; ++index) {
    set_index(index);
    EXPECT_EQ(nullptr, Call<void*()>("Tavix_Wnd")()) << index;
  }
}

TEST_F(LoadedCopy, FirstCreationMayBeOfAnyInstance) {
  ASSERT_NE(nullptr, library_);
  const auto set_index = Call<void(int)>("Tavix_SetIdx");
  const auto create = Call<int()>("Tavix_Crt");
  set_index(3);
  EXPECT_EQ(0, create());
  EXPECT_EQ(-1, create());
  for (const int free_index : {0, 1, 2, 4}) {
    set_index(free_index);
    EXPECT_EQ(0, create()) << free_index;
    EXPECT_EQ(-1, create()) << free_index;
  }
  for (int left = 5; left > 0; --left) Call<int()>("Tavix_Del")();
}

TEST_F(LoadedCopy, CanBeUnloadedAndLoadedAgain) {
  ASSERT_NE(nullptr, library_);
  const std::filesystem::path file = folder_.Path() / L"tavix_copy.dll";
  ASSERT_EQ(0, Call<int()>("Tavix_Crt")());
  Call<int()>("Tavix_Del")();
  EXPECT_TRUE(Unload());
  EXPECT_EQ(nullptr, ::GetModuleHandleW(L"tavix_copy.dll"));
  library_ = ::LoadLibraryW(file.c_str());
  ASSERT_NE(nullptr, library_);
  EXPECT_EQ(0, Call<int()>("Tavix_Crt")());
  Call<int()>("Tavix_Del")();
}

}  // namespace
}  // namespace tavix::test
