# What this machine cannot build or test is named twice: when the build is configured, and in CTest's
# summary, among the tests that did not run.

# zifferon_left_out("window program" "missing: qt6-base-dev")
function(zifferon_left_out what why)
  message(STATUS "Left out: ${what} (${why})")
  set(test "left out: ${what} (${why})")
  add_test(NAME ${test} COMMAND ${CMAKE_COMMAND} -E true)
  set_tests_properties(${test} PROPERTIES DISABLED TRUE)
endfunction()

# zifferon_look_for(ready "window tests" Xvfb=xvfb xdotool=xdotool): looks for programs, each told with its
# Debian package. Sets `ready` to whether all are there; if not, `what` is left out.
function(zifferon_look_for ready what)
  set(missing "")
  foreach(pair IN LISTS ARGN)
    string(REGEX MATCH "^(.*)=(.*)$" pair ${pair})
    set(package ${CMAKE_MATCH_2})
    unset(path)
    find_program(path ${CMAKE_MATCH_1} NO_CACHE)  # not remembered: it may be installed later
    if(NOT path)
      list(APPEND missing ${package})
    endif()
  endforeach()
  set(${ready} TRUE PARENT_SCOPE)
  if(missing)
    set(${ready} FALSE PARENT_SCOPE)
    list(REMOVE_DUPLICATES missing)
    list(JOIN missing ", " missing)
    zifferon_left_out(${what} "missing: ${missing}")
  endif()
endfunction()
