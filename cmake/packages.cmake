# What `cpack` makes of the layout in cmake/install.cmake, in the folder it is started in: a ZIP, and
# with makensis an installer.
find_program(TAVIX_MAKENSIS makensis)
set(CPACK_GENERATOR ZIP)
if(TAVIX_MAKENSIS)
  list(APPEND CPACK_GENERATOR External)
  set(CPACK_EXTERNAL_ENABLE_STAGING ON)
  set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${PROJECT_SOURCE_DIR}/package/installer.cmake)
endif()
set(CPACK_PACKAGE_VENDOR "The Tavix authors")
set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_FILE_NAME tavix-${PROJECT_VERSION}-${CPACK_SYSTEM_NAME})
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/package/cpack_options.cmake)
include(CPack)
