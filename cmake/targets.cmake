# The targets that several folders add their sources to, and what all of them are compiled with.
# Each folder lists its own sources once, for every preset: with `tavix_portable` what needs no
# window and no device context, with `tavix_windows` the rest.

add_library(tavix_warnings INTERFACE)
target_compile_options(tavix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(TAVIX_SANITIZE)
  target_compile_options(tavix_warnings INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavix_warnings INTERFACE -fsanitize=address,undefined)
endif()
if(TAVIX_FUZZ)
  target_compile_options(tavix_warnings INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(TAVIX_COVERAGE)
  target_compile_options(tavix_warnings INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(tavix_warnings INTERFACE -fprofile-instr-generate)
endif()
if(WIN32)
  target_compile_definitions(tavix_warnings INTERFACE
    UNICODE _UNICODE WINVER=0x0A00 _WIN32_WINNT=0x0A00 NOMINMAX)
  # The same sources give the same bytes, whenever they are linked.
  add_link_options(-Wl,--no-insert-timestamp)
endif()

# Headers take longer to read than most sources that include them. `tavix_precompile(NAME HEADERS ...
# [OPTIONS ...] [LIBRARIES ...])` compiles some once, for all targets that say
# `target_precompile_headers(TARGET REUSE_FROM NAME)` and have the same options.
function(tavix_precompile name)
  cmake_parse_arguments(arg "" "" "HEADERS;OPTIONS;LIBRARIES" ${ARGN})
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "// Holds precompiled headers.\n")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_compile_options(${name} PRIVATE ${arg_OPTIONS})
  target_link_libraries(${name} PRIVATE tavix_warnings ${arg_LIBRARIES})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# Natively the portable sources do without: so each is known to include what it needs.
set(TAVIX_WINDOW_HEADERS <afxwin.h> <array> <functional> <memory> <optional> <string> <vector>)
if(WIN32)
  tavix_precompile(portable_headers HEADERS <algorithm> <optional> <span> <string> <vector>)
  tavix_precompile(window_headers HEADERS ${TAVIX_WINDOW_HEADERS} LIBRARIES framework)
endif()
function(tavix_precompiled_portable target)
  if(WIN32)
    target_precompile_headers(${target} REUSE_FROM portable_headers)
  endif()
endfunction()

add_library(tavix_core STATIC)
target_include_directories(tavix_core PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(tavix_core PRIVATE tavix_warnings)
set_target_properties(tavix_core PROPERTIES POSITION_INDEPENDENT_CODE ON)
tavix_precompiled_portable(tavix_core)

function(tavix_portable)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  target_sources(tavix_core PRIVATE ${ARGN})
endfunction()

if(WIN32)
  add_library(tavix_window_core STATIC)
  target_include_directories(tavix_window_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(tavix_window_core PRIVATE tavix_warnings PUBLIC tavix_core framework rovcond tdialog)
  target_precompile_headers(tavix_window_core REUSE_FROM window_headers)
endif()

function(tavix_windows)
  if(WIN32)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    target_sources(tavix_window_core PRIVATE ${ARGN})
  endif()
endfunction()

# Gives a DLL or a program the version of the project, as Windows shows it.
function(tavix_version_resource target description)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    set(file_type VFT_APP)
    set(file_name ${target}.exe)
  else()
    set(file_type VFT_DLL)
    set(file_name ${target}.dll)
  endif()
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${resource})
endfunction()

# The import library of a DLL for Visual C++, with the list of calls (.def) that it is made from:
# ${target}.lib beside the other import libraries. Calls are undecorated and of C's convention.
find_program(TAVIX_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
function(tavix_msvc_import_library target definition)
  if(NOT TAVIX_DLLTOOL)
    message(STATUS "No llvm-dlltool: no ${target}.lib for Visual C++ (scripts/setup.sh test)")
    return()
  endif()
  set(machine i386:x86-64)
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
    set(machine i386)
  endif()
  set(library ${PROJECT_BINARY_DIR}/msvc/${target}.lib)
  add_custom_command(
    OUTPUT ${library}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/msvc
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${definition}
      ${PROJECT_BINARY_DIR}/msvc/${target}.def
    COMMAND ${TAVIX_DLLTOOL} -m ${machine} -D ${target}.dll -d ${definition} -l ${library}
    DEPENDS ${definition}
    COMMENT "Making ${target}.lib for Visual C++"
    VERBATIM)
  add_custom_target(${target}_msvc ALL DEPENDS ${library})
endfunction()
