# How every part of the house is compiled, and how a room becomes a library and gets its tests.

add_library(zifferon_warnings INTERFACE)
option(ZIFFERON_WARNINGS_ARE_ERRORS "As for all who work on it; a newer compiler may warn of more" OFF)
target_compile_options(
  zifferon_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                              $<$<BOOL:${ZIFFERON_WARNINGS_ARE_ERRORS}>:-Werror>)

# zifferon_room(core zifferon_platform): the library zifferon_core of all sources in the current folder,
# which may include the rooms named after it, and no others.
function(zifferon_room name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(zifferon_${name} STATIC ${sources})
  target_include_directories(zifferon_${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(zifferon_${name} PUBLIC ${ARGN} PRIVATE zifferon_warnings)
endfunction()

# zifferon_room_tests(shell zifferon_headless): the program shell_tests of tests/shell/*.cpp with the room and
# the libraries named after it, and one CTest test for each of its cases.
function(zifferon_room_tests name)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${name}/*.cpp)
  add_executable(${name}_tests ${sources})
  target_link_libraries(${name}_tests PRIVATE zifferon_${name} ${ARGN} zifferon_warnings GTest::gtest_main)
  target_compile_definitions(${name}_tests PRIVATE ZIFFERON_TESTS_DIR="${PROJECT_SOURCE_DIR}/tests")
  gtest_discover_tests(${name}_tests TEST_PREFIX ${name}/ DISCOVERY_MODE PRE_TEST)
endfunction()
