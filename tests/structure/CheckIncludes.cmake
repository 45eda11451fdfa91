cmake_minimum_required(VERSION 3.25)

# Fails when a file of an inner room includes anything but its rooms' headers and the standard library, or when any file
# reaches into another folder by "..".
set(inner basics platform controls shell/low shell/high rules ini security units dbase platform/memory)
set(standard
  algorithm array bit charconv chrono cmath compare concepts cstddef cstdint cstdlib cstring deque exception functional
  initializer_list iosfwd iostream iterator limits map memory numeric optional ostream queue ranges set span sstream
  stdexcept string string_view system_error tuple type_traits unordered_map unordered_set utility variant vector)

set(files_seen 0)
set(wrong "")
foreach(room IN LISTS inner)
  file(GLOB files ${ROOT}/${room}/*.h ${ROOT}/${room}/*.cpp)
  foreach(file IN LISTS files)
    math(EXPR files_seen "${files_seen} + 1")
    file(STRINGS ${file} includes REGEX "^#include")
    foreach(include IN LISTS includes)
      if(include MATCHES "<([^>]*)>" AND NOT CMAKE_MATCH_1 IN_LIST standard)
        string(APPEND wrong "${file}: ${include}\n")
      elseif(include MATCHES "\"\\.\\.")
        string(APPEND wrong "${file}: ${include}\n")
      endif()
    endforeach()
  endforeach()
endforeach()

if(files_seen LESS 50)
  message(FATAL_ERROR "Only ${files_seen} files of inner rooms were found; the list of rooms must be wrong.")
endif()
if(wrong)
  message(FATAL_ERROR "Includes that an inner room must not have:\n${wrong}")
endif()
message(STATUS "${files_seen} files looked at")
