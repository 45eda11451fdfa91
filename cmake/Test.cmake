include(GoogleTest)
if(WIN32)
  # Debian has it as source only for this target.
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
else()
  find_package(GTest REQUIRED)
endif()
if(CMAKE_CROSSCOMPILING)
  # The emulator is for the tests: a build alone does not start it.
  set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
endif()

# All test programs that need no display: what the program does, without its windows.
add_custom_target(model_tests)

# zy_test(NAME target [CASES_APART] [NEEDS_DISPLAY] [USES rooms...]  SOURCES files...  [ENVIRONMENT variable=value...])
#
# A test program whose every case is a test of its own for CTest, so that a name in the summary is a sentence about
# behaviour and no case can lean on another. Where programs run in an emulator that takes its time to start, the
# program is one test as a whole, unless CASES_APART says that a process can run no more than one case. The tests of a
# program that NEEDS_DISPLAY share its keyboard and mouse and so run one at a time; all others have the label "model".
function(zy_test)
  cmake_parse_arguments(TEST "CASES_APART;NEEDS_DISPLAY" "NAME" "USES;SOURCES;ENVIRONMENT" ${ARGN})
  add_executable(${TEST_NAME} ${TEST_SOURCES})
  target_link_libraries(${TEST_NAME} PRIVATE ${TEST_USES} zy_warnings GTest::gmock GTest::gtest_main)
  # Compiling the tests takes much longer than running them: what they test is optimised, they are not.
  target_compile_options(${TEST_NAME} PRIVATE -O0 -g1)
  if(TEST_NEEDS_DISPLAY)
    set(properties RESOURCE_LOCK display)
  else()
    set(properties LABELS model)
    add_dependencies(model_tests ${TEST_NAME})
  endif()
  if(CMAKE_CROSSCOMPILING AND NOT TEST_CASES_APART)
    add_test(NAME ${TEST_NAME} COMMAND ${TEST_NAME})
    set_tests_properties(${TEST_NAME} PROPERTIES TIMEOUT 600 ${properties} ENVIRONMENT "${TEST_ENVIRONMENT}")
  else()
    gtest_discover_tests(${TEST_NAME} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ${properties})
    zy_set_environment(${TEST_NAME} "${TEST_ENVIRONMENT}")
  endif()
endfunction()

# Gives every discovered case of a test program its environment. As one of the properties that are handed to the
# discovery, only the first of several variables would arrive.
function(zy_set_environment program environment)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${program}_environment.cmake)
  # A program that is not built yet has no list of its cases.
  file(WRITE ${script} "if(${program}_TESTS)
  set_tests_properties(\${${program}_TESTS} PROPERTIES ENVIRONMENT \"${environment}\")
endif()
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${script})
endfunction()
