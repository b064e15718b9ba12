# Run by cpack when the package is laid out: makes the installer from package/installer.nsi.
set(stage ${CPACK_TEMPORARY_DIRECTORY})
set(work ${CPACK_TOPLEVEL_DIRECTORY}/installer)
set(output ${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}-setup.exe)

file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE ${stage} ${stage}/*)
set(install)
set(remove)
set(bytes 0)
foreach(entry IN LISTS entries)
  string(REPLACE / \\ windows ${entry})
  if(IS_DIRECTORY ${stage}/${entry})
    # Folders from the inside out.
    string(PREPEND remove_folders "  RMDir \"$INSTDIR\\${windows}\"\n")
  else()
    cmake_path(GET entry PARENT_PATH folder)
    string(REPLACE / \\ folder "${folder}")
    string(APPEND install
      "  SetOutPath \"$INSTDIR\\${folder}\"\n  File \"${stage}/${entry}\"\n")
    string(APPEND remove "  Delete \"$INSTDIR\\${windows}\"\n")
    file(SIZE ${stage}/${entry} size)
    math(EXPR bytes "${bytes} + ${size}")
  endif()
endforeach()
math(EXPR kilobytes "${bytes} / 1024")
file(WRITE ${work}/FILES.nsh
  "!define KILOBYTES ${kilobytes}\n"
  "!macro InstallFiles\n${install}!macroend\n"
  "!macro RemoveFiles\n${remove}${remove_folders}!macroend\n")

find_program(makensis makensis REQUIRED)
execute_process(
  COMMAND ${makensis} -V2 -WX -INPUTCHARSET UTF8 -NOCD
    -DVERSION=${CPACK_PACKAGE_VERSION} -DARCHITECTURE=${CPACK_SYSTEM_NAME}
    -DSTAGE=${stage} -DOUTPUT=${output} ${CMAKE_CURRENT_LIST_DIR}/installer.nsi
  WORKING_DIRECTORY ${work}
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${output})
