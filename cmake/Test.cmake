include(GoogleTest)
find_package(GTest REQUIRED)

# zy_test(NAME target  [USES rooms...]  SOURCES files...  [PROPERTIES test properties...])
#
# A test program whose every case is a test of its own for CTest, so that a name in the summary is a sentence about
# behaviour and no case can lean on another.
function(zy_test)
  cmake_parse_arguments(TEST "" "NAME" "USES;SOURCES;PROPERTIES" ${ARGN})
  add_executable(${TEST_NAME} ${TEST_SOURCES})
  target_link_libraries(${TEST_NAME} PRIVATE ${TEST_USES} zy_warnings GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${TEST_NAME} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ${TEST_PROPERTIES})
endfunction()
