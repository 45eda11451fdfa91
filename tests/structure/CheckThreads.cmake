cmake_minimum_required(VERSION 3.25)

# Fails when a source of the program starts a thread or a timer. It has one thread, in which whatever happens is an event;
# what waits with a limit in time does so there.
set(names
  jthread std::thread std::async pthread_create CreateThread _beginthread wxThread g_thread_ g_task_run_in_thread
  wxTimer wxEVT_TIMER wx/timer.h SetTimer timer_create timerfd_create setitimer g_timeout_ StartOnce)

file(GLOB_RECURSE files
  ${ROOT}/app/*.* ${ROOT}/basics/*.* ${ROOT}/controls/*.* ${ROOT}/dbase/*.* ${ROOT}/desktop/*.* ${ROOT}/ini/*.*
  ${ROOT}/platform/*.* ${ROOT}/rules/*.* ${ROOT}/security/*.* ${ROOT}/shell/*.* ${ROOT}/tools/*.* ${ROOT}/units/*.*)
list(FILTER files INCLUDE REGEX "\\.(h|cpp)$")

set(wrong "")
foreach(file IN LISTS files)
  file(READ ${file} text)
  foreach(name IN LISTS names)
    string(FIND "${text}" "${name}" place)
    if(NOT place EQUAL -1)
      string(APPEND wrong "${file}: ${name}\n")
    endif()
  endforeach()
endforeach()

list(LENGTH files files_seen)
if(files_seen LESS 200)
  message(FATAL_ERROR "Only ${files_seen} sources were found; the list of folders must be wrong.")
endif()
if(wrong)
  message(FATAL_ERROR "Threads and timers that the program must not have:\n${wrong}")
endif()
message(STATUS "${files_seen} files looked at")
