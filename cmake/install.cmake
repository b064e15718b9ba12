# What `cmake --install` lays out; cmake/packages.cmake makes a ZIP and an installer of it:
#   README.md           the first page for users of the package
#   bin/                the DLLs and the sample host
#   lib/                their import libraries, the start-up library of framework-style hosts
#   lib/cmake/Tavix     find_package(Tavix CONFIG): targets Tavix::tavix, Tavix::c
#   lib/pkgconfig       the same for pkg-config
#   lib/msvc            import libraries for Visual C++
#   include/tavix       tavix.h, tavix_c.h
#   include/tavix-framework     the headers of the framework and the other DLLs
#   share/doc/tavix     the documents, the licence, the notices of what is linked in
#   share/tavix         the declarations in other languages, the samples, the sample host's source
include(CMakePackageConfigHelpers)

install(TARGETS framework framework_winmain rovcond tdialog tavix tavix_c EXPORT TavixTargets
  RUNTIME DESTINATION bin
  ARCHIVE DESTINATION lib)
install(TARGETS fieldhost RUNTIME DESTINATION bin)

# The 32-bit DLLs share the compiler's runtime and need it beside them.
set(compiler_dlls)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
  set(compiler_dlls libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
  foreach(runtime IN LISTS compiler_dlls)
    execute_process(
      COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
      OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE "${found}")
      message(FATAL_ERROR "The compiler does not know where its ${runtime} is.")
    endif()
    install(FILES ${found} DESTINATION bin)
  endforeach()
endif()

install(DIRECTORY include/ DESTINATION include FILES_MATCHING PATTERN "*.h")
# In a folder that only those search who say so: some headers have the names of another framework's.
foreach(library IN ITEMS framework rovcond tdialog)
  install(DIRECTORY platform/${library}/include/
    DESTINATION include/tavix-framework FILES_MATCHING PATTERN "*.h")
endforeach()

# Documents: no page that is for people who change the library.
set(documents share/doc/tavix)
install(FILES package/README.md DESTINATION .)
install(FILES LICENSE CHANGELOG.md package/THIRD-PARTY.md DESTINATION ${documents})
install(DIRECTORY docs DESTINATION ${documents}
  PATTERN architecture.md EXCLUDE PATTERN how-to-add.md EXCLUDE PATTERN exported-calls.md EXCLUDE
  PATTERN fast-drawing.md EXCLUDE)
install(FILES platform/framework/README.md DESTINATION ${documents} RENAME framework.md)
# The notices of what is linked in, as Debian's packages state them.
set(architecture ${CMAKE_SYSTEM_PROCESSOR})
string(REPLACE _ - architecture ${architecture})
foreach(notice IN ITEMS gcc-mingw-w64-${architecture}-posix-runtime mingw-w64-${architecture}-dev nsis)
  string(REPLACE -${architecture} "" name ${notice})
  install(FILES /usr/share/doc/${notice}/copyright
    DESTINATION ${documents}/notices RENAME ${name}.txt OPTIONAL)
endforeach()
install(FILES /usr/share/common-licenses/GPL-3
  DESTINATION ${documents}/notices RENAME GPL-3.txt OPTIONAL)

# Sources for hosts.
install(DIRECTORY bindings/csharp bindings/go bindings/javascript bindings/pascal bindings/python
  DESTINATION share/tavix/bindings PATTERN __pycache__ EXCLUDE)
install(FILES bindings/README.md DESTINATION share/tavix/bindings)
install(DIRECTORY samples host DESTINATION share/tavix
  PATTERN "*_iconv.cpp" EXCLUDE PATTERN "*_expat.cpp" EXCLUDE PATTERN host/CMakeLists.txt EXCLUDE
  PATTERN __pycache__ EXCLUDE PATTERN .gitattributes EXCLUDE)
install(FILES package/host.cmake DESTINATION share/tavix/host RENAME CMakeLists.txt)

install(DIRECTORY ${PROJECT_BINARY_DIR}/msvc DESTINATION lib OPTIONAL)
foreach(name IN ITEMS tavix tavix-c)
  configure_file(package/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION lib/pkgconfig)
endforeach()

set(package_folder lib/cmake/Tavix)
install(EXPORT TavixTargets NAMESPACE Tavix:: DESTINATION ${package_folder})
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/package/TavixConfig.cmake.in ${PROJECT_BINARY_DIR}/TavixConfig.cmake
  INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/TavixConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(
  FILES ${PROJECT_BINARY_DIR}/TavixConfig.cmake ${PROJECT_BINARY_DIR}/TavixConfigVersion.cmake
  DESTINATION ${package_folder})
