# `cpack` makes a ZIP of the layout in cmake/install.cmake and, with makensis, an installer:
# package/make_packages.cmake.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${PROJECT_SOURCE_DIR}/package/make_packages.cmake)
set(CPACK_PACKAGE_VENDOR "The Tavix authors")
set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_FILE_NAME tavix-${PROJECT_VERSION}-${CPACK_SYSTEM_NAME})
include(CPack)
