# Read by cpack for each kind of package. The same sources give the same bytes: files carry the time
# of the commit, or that of SOURCE_DATE_EPOCH.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND git -C ${CMAKE_CURRENT_LIST_DIR} log -1 --format=%ct
    OUTPUT_VARIABLE seconds OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT seconds)
    set(seconds 315619200)  # 1980-01-02, about the first day that a ZIP can hold
  endif()
  set(ENV{SOURCE_DATE_EPOCH} ${seconds})
endif()
set(ENV{TZ} UTC0)  # a ZIP holds local times
