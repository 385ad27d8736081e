# veldra_add_test(NAME SOURCES a.cpp ... LIBS lib ... [LABELS label] [TIMEOUT s] [CONCURRENCY])
# A GoogleTest executable registered with CTest. CONCURRENCY marks it for the
# second run under the thread sanitizer that scripts/test does. TIMEOUT caps
# each of its tests, for tests whose failure may be a hang.
include(GoogleTest)
function(veldra_add_test name)
  cmake_parse_arguments(T "CONCURRENCY" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest_main GTest::gmock Threads::Threads)
  # The rigs and tables that several test folders share.
  target_include_directories(${name} PRIVATE ${VELDRA_SOURCE_DIR}/tests/support)
  target_compile_definitions(${name} PRIVATE
    VELDRA_SOURCE_DIR="${VELDRA_SOURCE_DIR}" VELDRA_DATA_DIR="${VELDRA_DATA_DIR}"
    VELDRA_BIN_DIR="${CMAKE_BINARY_DIR}/bin" VELDRA_LIB_DIR="${CMAKE_BINARY_DIR}/lib")
  # One label per test: gtest_discover_tests writes the value unquoted, so a
  # list would turn into stray properties.
  set(label unit)
  if(T_LABELS)
    set(label ${T_LABELS})
  endif()
  if(T_CONCURRENCY)
    set(label concurrency)
    set_property(GLOBAL APPEND PROPERTY VELDRA_TSAN_TARGETS ${name})
  endif()
  set(timeout)
  if(T_TIMEOUT)
    set(timeout TIMEOUT ${T_TIMEOUT})
  endif()
  gtest_discover_tests(${name} PROPERTIES LABELS ${label} ${timeout} DISCOVERY_TIMEOUT 120)
endfunction()
