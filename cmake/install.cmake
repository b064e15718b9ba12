# What `cmake --install` lays out, and `cpack` puts into a ZIP:
#   bin/            the DLLs and the sample host
#   lib/            their import libraries, the start-up library of framework-style hosts
#   lib/cmake/Tavix the package: find_package(Tavix CONFIG), target Tavix::tavix
#   lib/msvc        import libraries for Visual C++
#   include/        tavix/tavix.h, tavix/tavix_c.h and the headers of the DLLs around them
#   share/doc/tavix the documents
#   share/tavix     the declarations and samples in other languages
include(CMakePackageConfigHelpers)

set(exported)
foreach(library IN ITEMS framework framework_winmain rovcond tdialog tavix tavix_c)
  if(TARGET ${library})
    list(APPEND exported ${library})
  endif()
endforeach()
install(TARGETS ${exported} EXPORT TavixTargets
  RUNTIME DESTINATION bin
  ARCHIVE DESTINATION lib)
if(TARGET fieldhost)
  install(TARGETS fieldhost RUNTIME DESTINATION bin)
endif()

# The 32-bit DLLs share the compiler's runtime and need it beside them.
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
  foreach(runtime IN ITEMS libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(
      COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
      OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE "${found}")
      message(FATAL_ERROR "The compiler does not know where its ${runtime} is.")
    endif()
    install(FILES ${found} DESTINATION bin)
  endforeach()
endif()

foreach(headers IN ITEMS include platform/framework/include platform/rovcond/include
                         platform/tdialog/include)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${headers}/ DESTINATION include
    FILES_MATCHING PATTERN "*.h")
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/LICENSE
  DESTINATION share/doc/tavix)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION share/doc/tavix OPTIONAL)

install(DIRECTORY ${PROJECT_BINARY_DIR}/msvc DESTINATION lib OPTIONAL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/bindings ${PROJECT_SOURCE_DIR}/samples
  DESTINATION share/tavix
  FILES_MATCHING PATTERN "*.cs" PATTERN "*.py" PATTERN "*.go" PATTERN "go.mod" PATTERN "*.pas"
    PATTERN "*.js" PATTERN "*.c" PATTERN "*.cpp" PATTERN "README.md"
    PATTERN "minimal/CMakeLists.txt"
    PATTERN "bindings/c" EXCLUDE PATTERN "writers" EXCLUDE PATTERN "make_bindings.py" EXCLUDE
    PATTERN "description.py" EXCLUDE PATTERN "__pycache__" EXCLUDE)

set(package_folder lib/cmake/Tavix)
install(EXPORT TavixTargets NAMESPACE Tavix:: DESTINATION ${package_folder})
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/TavixConfig.cmake.in ${PROJECT_BINARY_DIR}/TavixConfig.cmake
  INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/TavixConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(
  FILES ${PROJECT_BINARY_DIR}/TavixConfig.cmake ${PROJECT_BINARY_DIR}/TavixConfigVersion.cmake
  DESTINATION ${package_folder})

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "tavix-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR}")
include(CPack)
