// A root folder of the device for one run of a benchmark.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace tavix {

// A folder that stores of this process use, and that goes with the object.
class DeviceRoot {
 public:
  DeviceRoot()
      : folder_(std::filesystem::temp_directory_path() /
                ("tavix_bench" + std::to_string(::GetCurrentProcessId()))) {
    std::filesystem::create_directories(folder_);
    ::SetEnvironmentVariableW(L"CE_DEVICE_ROOT", folder_.c_str());
  }
  ~DeviceRoot() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  DeviceRoot(const DeviceRoot&) = delete;
  DeviceRoot& operator=(const DeviceRoot&) = delete;

 private:
  std::filesystem::path folder_;
};

}  // namespace tavix
