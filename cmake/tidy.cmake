# The target `tidy`, which the preset of that name builds: clang-tidy on every source of the given
# libraries, side by side, again only where a source, a header or the list of checks changed.
# Tests are left out: the macros of GoogleTest are not ours to change.
find_program(TAVIX_CLANG_TIDY clang-tidy REQUIRED)

function(tavix_tidy)
  set(checked)
  foreach(library IN LISTS ARGN)
    get_target_property(folder ${library} SOURCE_DIR)
    get_target_property(sources ${library} SOURCES)
    foreach(source IN LISTS sources)
      cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder})
      cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
      set(stamp ${CMAKE_BINARY_DIR}/tidy/${name}.checked)
      cmake_path(GET stamp PARENT_PATH place)
      file(MAKE_DIRECTORY ${place})
      add_custom_command(
        OUTPUT ${stamp}
        COMMAND ${TAVIX_CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR}
          --extra-arg=-Xclang --extra-arg=-dependency-file
          --extra-arg=-Xclang --extra-arg=${stamp}.d --extra-arg=-Wp,-MT,${stamp} ${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${source} ${PROJECT_SOURCE_DIR}/.clang-tidy
        DEPFILE ${stamp}.d
        COMMENT "Checking ${name}"
        VERBATIM)
      list(APPEND checked ${stamp})
    endforeach()
  endforeach()
  add_custom_target(tidy DEPENDS ${checked})
endfunction()
