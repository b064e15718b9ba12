// The figure files as bytes, and the folder they lie in.
#pragma once

#include <windows.h>

#include <array>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <string>

namespace tavix::test {

// The root folder of the device.
inline std::filesystem::path DeviceRoot() {
  std::array<wchar_t, MAX_PATH> path{};
  ::GetEnvironmentVariableW(L"CE_DEVICE_ROOT", path.data(), MAX_PATH);
  return path.data();
}

inline std::filesystem::path IndexFile(int instance = 0) {
  return DeviceRoot() / (L"FIG" + std::to_wstring(instance) + L".DAT");
}

inline std::filesystem::path CoordinateFile(int instance = 0) {
  return DeviceRoot() / (L"FIG" + std::to_wstring(instance) + L".XY");
}

// Little-endian bytes of 32-bit words.
template <class... Words>
std::string WordBytes(Words... words) {
  std::string bytes;
  const auto put = [&](std::uint32_t word) {
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(word >> (8 * i) & 0xFF);
  };
  (put(static_cast<std::uint32_t>(words)), ...);
  return bytes;
}

// Little-endian bytes of 64-bit floating point numbers.
template <class... Numbers>
std::string NumberBytes(Numbers... numbers) {
  std::string bytes;
  const auto put = [&](double number) {
    const auto bits = std::bit_cast<std::uint64_t>(number);
    bytes += WordBytes(bits & 0xFFFFFFFF, bits >> 32);
  };
  (put(static_cast<double>(numbers)), ...);
  return bytes;
}

}  // namespace tavix::test
