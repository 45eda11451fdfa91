# No program tells where it was built, so that two builds of one source give the same bytes wherever they stand.
# Of two that fit, the compiler takes the one that was given last: the build folder may stand in that of the sources.
add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.;-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>")
