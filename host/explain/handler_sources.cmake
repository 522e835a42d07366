# cmake -D OUTPUT=FILE -D OBJECTS=FILE -D NM=PROGRAM -D ROOT=FOLDER -P handler_sources.cmake: writes as a C++ source which
# source file of the library defines which handler. OBJECTS holds the library's object files, a line each, compiled from
# sources below the folder ROOT of the repository.
file(STRINGS ${OBJECTS} objects)
set(weak "")
set(strong "")
foreach(object IN LISTS objects)
  if(object STREQUAL "")
    continue()
  endif()
  string(REGEX REPLACE "^.*\\.dir/(\\./)?(.*)\\.(o|obj)$" "${ROOT}/\\2" source ${object})
  execute_process(COMMAND ${NM} -g --defined-only -P ${object}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")
  foreach(symbol IN LISTS symbols)
    if(NOT symbol MATCHES "^((__)?vmf_map_(man_)?(cont|leaf)_[A-Za-z0-9_]+) ([A-Za-z]) ")
      continue()
    endif()
    set(row "    {\"${CMAKE_MATCH_1}\", \"${source}\"},\n")
    if(CMAKE_MATCH_5 STREQUAL "W" OR CMAKE_MATCH_5 STREQUAL "V")
      string(APPEND weak "${row}")
    else()
      string(APPEND strong "${row}")
    endif()
  endforeach()
endforeach()
file(WRITE ${OUTPUT}.new "// Made from the library's objects by host/explain/handler_sources.cmake.
#include \"handler_sources.h\"

namespace explain {

static constexpr HandlerSource strong[] = {
${strong}};

static constexpr HandlerSource weak[] = {
${weak}};

std::span<const HandlerSource> strong_handlers() { return strong; }
std::span<const HandlerSource> weak_handlers() { return weak; }

}  // namespace explain
")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
file(TOUCH_NOCREATE ${OUTPUT})
