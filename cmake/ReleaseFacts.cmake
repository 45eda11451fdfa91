# What the packages tell of the program and of its maker, from the one place that each of these facts has: the version and its
# day from the top of the build, the maker from the header that the program itself reads.
function(zy_maker_fact variable constant)
  file(STRINGS ${CMAKE_SOURCE_DIR}/shell/low/Maker.h line REGEX " ${constant} = \"[^\"]+\";")
  if(NOT line MATCHES "\"([^\"]+)\"")
    message(FATAL_ERROR "shell/low/Maker.h has no ${constant}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

zy_maker_fact(ZY_MAKER kMakerName)
zy_maker_fact(ZY_SITE kMakerWebSite)
# Software centres take addresses of pages and pictures that are read without others listening.
string(REGEX REPLACE "^http:" "https:" ZY_SITE ${ZY_SITE})
zy_maker_fact(ZY_SUPPORT kMakerSupport)

string(SUBSTRING ${ZY_RELEASE_DATE} 0 4 ZY_RELEASE_YEAR)
# Midnight at the beginning of the day, as seconds and as mail writes it.
foreach(form ZY_RELEASE_TIME:+%s ZY_RELEASE_MAIL_DATE:-R)
  string(REPLACE ":" ";" form ${form})
  list(POP_FRONT form variable)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date --utc --date=${ZY_RELEASE_DATE} ${form}
    OUTPUT_VARIABLE ${variable} OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endforeach()
set(CPACK_ZY_RELEASE_TIME ${ZY_RELEASE_TIME})
