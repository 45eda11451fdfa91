include(ReleaseFacts)

# zy_windows_program(target "what it is"): what the system reads in the file before it runs it - version, maker, purpose - and
# a file that is the same whenever it is linked.
function(zy_windows_program target description)
  set(file ${target}.exe)
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}-version.rc)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/version.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${resource})
  target_link_options(${target} PRIVATE -static -Wl,--no-insert-timestamp)
endfunction()
