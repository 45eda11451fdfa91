# zy_room(NAME target  PREFIX include-prefix  [HEADERS_OF folders...]  [USES rooms...]  SOURCES files...)
#
# A room is a static library whose headers are reached as "prefix/Header.h". Each header is linked, alone, into an
# include folder of the room's own, so that a file can include the rooms it links and nothing else: an include against
# the direction between the rooms does not compile. HEADERS_OF names folders whose headers are the room's too.
function(zy_room)
  cmake_parse_arguments(ROOM "" "NAME;PREFIX" "HEADERS_OF;USES;SOURCES" ${ARGN})
  set(include_root ${CMAKE_BINARY_DIR}/rooms/${ROOM_NAME})
  file(REMOVE_RECURSE ${include_root})
  file(MAKE_DIRECTORY ${include_root}/${ROOM_PREFIX})
  set(folders ${CMAKE_CURRENT_SOURCE_DIR} ${ROOM_HEADERS_OF})
  list(TRANSFORM folders APPEND /*.h)
  file(GLOB headers CONFIGURE_DEPENDS ${folders})
  foreach(header IN LISTS headers)
    get_filename_component(leaf ${header} NAME)
    file(CREATE_LINK ${header} ${include_root}/${ROOM_PREFIX}/${leaf} SYMBOLIC)
  endforeach()

  if(ROOM_SOURCES)
    add_library(${ROOM_NAME} STATIC ${ROOM_SOURCES})
    target_include_directories(${ROOM_NAME} PUBLIC ${include_root})
    target_link_libraries(${ROOM_NAME} PUBLIC ${ROOM_USES} PRIVATE zy_warnings)
  else()
    add_library(${ROOM_NAME} INTERFACE)
    target_include_directories(${ROOM_NAME} INTERFACE ${include_root})
    target_link_libraries(${ROOM_NAME} INTERFACE ${ROOM_USES})
  endif()
endfunction()
