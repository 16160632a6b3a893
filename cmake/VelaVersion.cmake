# The version is set in one place: the VELA_VERSION_MAJOR/_MINOR/_PATCH macros
# of include/vela/vela.h. This reads them into VELA_VERSION for project().
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/../include/vela/vela.h _vela_version_lines
  REGEX "^#define VELA_VERSION_(MAJOR|MINOR|PATCH) +[0-9]+")
set(VELA_VERSION "")
foreach(_part MAJOR MINOR PATCH)
  if(NOT _vela_version_lines MATCHES "VELA_VERSION_${_part} +([0-9]+)")
    message(FATAL_ERROR "include/vela/vela.h does not define VELA_VERSION_${_part}")
  endif()
  list(APPEND VELA_VERSION ${CMAKE_MATCH_1})
endforeach()
list(JOIN VELA_VERSION "." VELA_VERSION)
