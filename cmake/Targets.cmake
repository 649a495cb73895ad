# The project's own ways of declaring a library, a program and a test. Every target gets the same warnings.

function(melvark_target_options target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
  if(MELVARK_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(MELVARK_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${MELVARK_SANITIZE} -fno-sanitize-recover=undefined
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${MELVARK_SANITIZE})
  endif()
  if(MELVARK_COVERAGE)
    target_compile_options(${target} PRIVATE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(${target} PRIVATE -fprofile-instr-generate)
  endif()
  if(MELVARK_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# A library of standard C++ that does not see Qt: melvark_plain_library(name [SHARED] sources...)
function(melvark_plain_library target)
  add_library(${target} ${ARGN})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  melvark_target_options(${target})
endfunction()

# A library on Qt: melvark_qt_library(name [SHARED] sources...)
function(melvark_qt_library target)
  add_library(${target} ${ARGN})
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  target_compile_definitions(${target} PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  target_link_libraries(${target} PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets)
  melvark_target_options(${target})
endfunction()

# What every test says of itself, for it and for its label of ctest:
# DISPLAY: needs a window manager; tests/run-on-display starts a virtual display with one. Label "display".
# DATABASE: starts a database server. Label "database".
# GUI: drives forms or programs on Qt's off-screen platform. Label "gui".
# None of the three has the label "fast".
# LONG: takes more than ten seconds; has the label "long" besides. What has it not and needs neither display nor server
#   runs in ./test --fast.
macro(melvark_parse_test)
  cmake_parse_arguments(ARG "DISPLAY;DATABASE;GUI;LONG" "PARTS;TIMEOUT" "SOURCES;LIBRARIES;COMMAND" ${ARGN})
  set(labels fast)
  foreach(kind GUI DATABASE DISPLAY)
    if(ARG_${kind})
      string(TOLOWER ${kind} labels)
    endif()
  endforeach()
  set(runs_fast OFF)
  if(ARG_LONG)
    list(APPEND labels long)
  elseif(labels MATCHES "^(fast|gui)$")
    set(runs_fast ON)
  endif()
endmacro()

# The properties of a test that melvark_parse_test has read.
function(melvark_set_test name)
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  set(environment "LC_ALL=C.UTF-8")
  if(ARG_GUI)
    list(APPEND environment "QT_QPA_PLATFORM=offscreen")
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${environment}" LABELS "${labels}")
  if(ARG_DISPLAY)
    # Keys and focus go their way through other processes; nothing else competes with them for the machine.
    set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
  endif()
endfunction()

# A test that is a command: melvark_command_test(name COMMAND words... [DISPLAY] [DATABASE] [GUI] [LONG]
# [TIMEOUT seconds])
function(melvark_command_test name)
  melvark_parse_test(${ARGN})
  if(ARG_DISPLAY)
    list(PREPEND ARG_COMMAND ${PROJECT_SOURCE_DIR}/tests/run-on-display)
  endif()
  add_test(NAME ${name} COMMAND ${ARG_COMMAND})
  melvark_set_test(${name})
endfunction()

# One test program: melvark_test(name SOURCES files... LIBRARIES targets... [DISPLAY] [DATABASE] [GUI] [LONG]
# [PARTS n] [TIMEOUT seconds]). One with GUI or DISPLAY has a main of its own from tests/support (GuiMain.cpp).
# PARTS: one with DISPLAY runs in so many parts at once, each on a display of its own.
# The target tests_without_display builds all that need no display, tests_fast what ./test --fast runs.
function(melvark_test target)
  melvark_parse_test(${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${target} PRIVATE ${ARG_LIBRARIES})
  melvark_target_options(${target})
  if(ARG_GUI OR ARG_DISPLAY)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
    target_link_libraries(${target} PRIVATE melvark_gui_test_main)
  else()
    target_link_libraries(${target} PRIVATE GTest::gmock GTest::gtest GTest::gtest_main)
  endif()
  if(ARG_PARTS)
    add_test(NAME ${target} COMMAND ${PROJECT_SOURCE_DIR}/tests/run-on-displays ${ARG_PARTS} $<TARGET_FILE:${target}>)
  elseif(ARG_DISPLAY)
    add_test(NAME ${target} COMMAND ${PROJECT_SOURCE_DIR}/tests/run-on-display $<TARGET_FILE:${target}>)
  else()
    add_test(NAME ${target} COMMAND ${target})
    add_dependencies(tests_without_display ${target})
  endif()
  if(runs_fast)
    add_dependencies(tests_fast ${target})
  endif()
  melvark_set_test(${target})
endfunction()
