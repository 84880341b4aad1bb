# vorlan_room(<name> SOURCES <files...> [LINKS <targets...>]) declares the static library of one folder of src/.
function(vorlan_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  add_library(vorlan_${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(vorlan_${name} PUBLIC vorlan_flags ${ROOM_LINKS})
endfunction()

# vorlan_test(<name> SOURCES <files...> [LINKS <targets...>]) declares one GoogleTest program.
function(vorlan_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  target_link_libraries(test_${name} PRIVATE vorlan_flags ${TEST_LINKS} GTest::gtest_main)
  target_include_directories(test_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  add_test(NAME ${name} COMMAND test_${name})
endfunction()

# vorlan_window_test(<name> SOURCES <file> [LINKS <targets...>]) declares one Qt Test program on the offscreen platform.
function(vorlan_window_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(test_${name} PRIVATE vorlan_flags ${TEST_LINKS} Qt6::Test)
  target_include_directories(test_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  add_test(NAME ${name} COMMAND test_${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# vorlan_approved(<name>) says that the test program compares texts with those of tests/approved.
function(vorlan_approved name)
  target_link_libraries(test_${name} PRIVATE vorlan_approved)
  set_tests_properties(${name} PROPERTIES LABELS approved)
endfunction()
