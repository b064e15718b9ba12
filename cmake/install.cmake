# What `cmake --install` lays out, and `cpack` puts into a ZIP:
#   bin/            the DLLs and the sample host
#   lib/            their import libraries, the start-up library of framework-style hosts
#   lib/cmake/Tavix the package: find_package(Tavix CONFIG), target Tavix::tavix
#   include/        tavix/tavix.h and the headers of the DLLs around it
#   share/doc/tavix the documents
include(CMakePackageConfigHelpers)

set(exported)
foreach(library IN ITEMS framework framework_winmain rovcond tdialog tavix)
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
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION share/doc/tavix)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION share/doc/tavix OPTIONAL)

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
