# Run by cpack when the package is laid out: makes the ZIP, and with makensis the installer. The same
# layout gives the same bytes: files are taken in the order of their names and carry the time of the
# commit, or that of SOURCE_DATE_EPOCH.
set(stage ${CPACK_TEMPORARY_DIRECTORY})
set(work ${CPACK_TOPLEVEL_DIRECTORY}/work)
set(package ${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME})

set(ENV{TZ} UTC0)  # a ZIP holds local times
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND git -C ${CMAKE_CURRENT_LIST_DIR} log -1 --format=%ct
    OUTPUT_VARIABLE seconds OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT seconds)
    set(seconds 315619200)  # 1980-01-02: a ZIP holds no time before that year
  endif()
  set(ENV{SOURCE_DATE_EPOCH} ${seconds})
endif()

# The ZIP has one folder at its root.
cmake_path(GET stage PARENT_PATH above)
file(GLOB_RECURSE files RELATIVE ${above} ${stage}/*)
list(JOIN files "\n" lines)
file(WRITE ${work}/files.txt "${lines}\n")
execute_process(
  COMMAND ${CMAKE_COMMAND} -E tar cf ${package}.zip --format=zip --files-from=${work}/files.txt
  WORKING_DIRECTORY ${above}
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${package}.zip)

find_program(makensis makensis)
if(NOT makensis)
  message(STATUS "No makensis, no installer (scripts/setup.sh test)")
  return()
endif()

set(install_files)
set(remove_files)
set(remove_folders)
set(bytes 0)
file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE ${stage} ${stage}/*)
foreach(entry IN LISTS entries)
  string(REPLACE / \\ windows ${entry})
  if(IS_DIRECTORY ${stage}/${entry})
    # From the inside out.
    string(PREPEND remove_folders "  RMDir \"$INSTDIR\\${windows}\"\n")
  else()
    cmake_path(GET entry PARENT_PATH folder)
    string(REPLACE / \\ folder "${folder}")
    string(APPEND install_files
      "  SetOutPath \"$INSTDIR\\${folder}\"\n  File \"${stage}/${entry}\"\n")
    string(APPEND remove_files "  Delete \"$INSTDIR\\${windows}\"\n")
    file(SIZE ${stage}/${entry} size)
    math(EXPR bytes "${bytes} + ${size}")
  endif()
endforeach()
math(EXPR kilobytes "${bytes} / 1024")
file(WRITE ${work}/files.nsh
  "!define KILOBYTES ${kilobytes}\n"
  "!macro InstallFiles\n${install_files}!macroend\n"
  "!macro RemoveFiles\n${remove_files}${remove_folders}!macroend\n")
execute_process(
  COMMAND ${makensis} -V2 -WX -INPUTCHARSET UTF8 -NOCD
    -DVERSION=${CPACK_PACKAGE_VERSION} -DARCHITECTURE=${CPACK_SYSTEM_NAME}
    -DSTAGE=${stage} -DOUTPUT=${package}-setup.exe ${CMAKE_CURRENT_LIST_DIR}/installer.nsi
  WORKING_DIRECTORY ${work}
  COMMAND_ERROR_IS_FATAL ANY)
list(APPEND CPACK_EXTERNAL_BUILT_PACKAGES ${package}-setup.exe)
