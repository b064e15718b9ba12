# The target `test_zip`: all test programs, what they read and what runs them, as a ZIP for a real
# Windows machine; see tests/README.md. Files that tests read have the places that they have in the
# project.
if(NOT TAVIX_WINDOW_TESTS OR NOT CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
  return()
endif()

get_property(programs GLOBAL PROPERTY TAVIX_TEST_PROGRAMS)
get_property(guide_programs GLOBAL PROPERTY TAVIX_GUIDE_PROGRAMS)
list(APPEND programs ${guide_programs}
  test_runner second_program framework_test_host framework_test_host_unicode fieldhost
  sample_framework sample_c
  exception_relay framework framework_test_extension guard_heap rovcond tavix tavix_c tdialog)

set(lines)
foreach(program IN LISTS programs)
  list(APPEND lines "bin/$<TARGET_FILE_NAME:${program}>\t$<TARGET_FILE:${program}>")
endforeach()
set(depends ${programs})
if(TARGET sample_go)
  list(APPEND lines "bin/sample_go.exe\t${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/sample_go.exe")
  list(APPEND depends sample_go)
endif()
list(APPEND lines "run_tests.cmd\t${PROJECT_SOURCE_DIR}/tests/runner/run_tests.cmd")

# Folders are listed when the ZIP is made.
get_target_property(pictures tavix_button_pictures FOLDER_OF_PICTURES)
foreach(place IN ITEMS ${PROJECT_SOURCE_DIR}/tests/cases/*.txt ${PROJECT_SOURCE_DIR}/host/README.md
                       ${PROJECT_SOURCE_DIR}/docs/guide/pictures/*.png
                       ${PROJECT_SOURCE_DIR}/host/resources/sample/site.* ${pictures}/*.rc
                       ${pictures}/*.bmp)
  list(APPEND lines "*\t${place}")
endforeach()

list(JOIN lines "\n" lines)
set(contents ${PROJECT_BINARY_DIR}/test-package.txt)
file(GENERATE OUTPUT ${contents} CONTENT "${lines}\n")
set(package tavix-tests-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR})
add_custom_target(test_zip
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/make_test_zip.py
    ${contents} ${PROJECT_BINARY_DIR}/${package}.zip
  DEPENDS ${depends}
  COMMENT "Making ${package}.zip"
  VERBATIM)
