# Builds the sample host against the installed package it came with:
#   cmake -S PLACE/share/tavix/host -B build -DCMAKE_PREFIX_PATH=PLACE
# with the toolchain of the host. Its sources include each other from the folder above.
cmake_minimum_required(VERSION 3.25)
project(fieldhost LANGUAGES CXX RC)
set(CMAKE_CXX_STANDARD 20)
find_package(Tavix 1.0 CONFIG REQUIRED)
file(GLOB_RECURSE sources CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
add_executable(fieldhost WIN32 ${sources})
target_include_directories(fieldhost PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/..)
target_compile_definitions(fieldhost PRIVATE NOMINMAX)
target_link_libraries(fieldhost PRIVATE Tavix::tavix Tavix::framework_winmain
  comctl32 gdiplus shell32 shlwapi)
tavix_copy_runtime(fieldhost)
