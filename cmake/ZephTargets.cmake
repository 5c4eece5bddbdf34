# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# One way to declare a room, a test program, a benchmark and a fuzz target, so that flags, moc, uic
# and precompiled headers are said once.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Precompiled headers make ccache careful; the sloppiness says that they are looked after by CMake.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

add_library(zeph_flags INTERFACE)
target_compile_definitions(zeph_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(zeph_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_link_libraries(zeph_flags INTERFACE tl::expected)
if(MSVC)
    message(FATAL_ERROR "Build with GCC, clang or MinGW-w64")
endif()
target_compile_options(zeph_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zeph_flags INTERFACE -fpch-preprocess)
endif()
if(ZEPH_SANITIZE)
    add_compile_options(-fsanitize=${ZEPH_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZEPH_SANITIZE})
endif()
if(ZEPH_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# zeph_room(NAME [GUI] [PCH_OWNER] SOURCES_IN folder... LINK libs...)
# A room's library: every .cpp directly in the folders. GUI rooms use Widgets, the others Qt Core only.
function(zeph_room name)
    cmake_parse_arguments(ARG "GUI" "" "SOURCES_IN;LINK" ${ARGN})
    set(sources)
    foreach(folder ${ARG_SOURCES_IN})
        file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
             ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.ui)
        list(APPEND sources ${found})
    endforeach()
    if(NOT sources MATCHES "\\.cpp")
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE zeph_flags Qt6::Core ${ARG_LINK})
        return()
    endif()
    add_library(${name} STATIC ${sources})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PUBLIC zeph_flags Qt6::Core ${ARG_LINK})
    if(ARG_GUI)
        set_target_properties(${name} PROPERTIES AUTOUIC ON)
        target_link_libraries(${name} PUBLIC Qt6::Gui Qt6::Widgets Qt6::PrintSupport Qt6::Network Qt6::Svg)
    endif()
    zeph_pch(${name} ${ARG_GUI})
endfunction()

# The Qt headers are most of a compile's time: one precompiled header for Core-only targets and one
# for the others, built by the first target of each kind and used again by the rest. They hold what
# most sources use and no more, since each compile reads the whole precompiled header.
set(zeph_pch_core <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QObject> <QString> <QStringList>
    <algorithm> <array> <functional> <memory> <optional> <span> <variant> <vector> <tl/expected.hpp>)
set(zeph_pch_gui <QAction> <QCheckBox> <QComboBox> <QDialog> <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow>
    <QMenu> <QPainter> <QPlainTextEdit> <QPointer> <QPushButton> <QTextBlock> <QTextCursor> <QTextDocument> <QTextEdit>
    <QTimer> <QWidget>)

function(zeph_pch name gui)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        return()
    endif()
    if(gui)
        set(owner_property ZEPH_PCH_GUI)
        set(headers ${zeph_pch_core} ${zeph_pch_gui})
    else()
        set(owner_property ZEPH_PCH_CORE)
        set(headers ${zeph_pch_core})
    endif()
    get_property(owner GLOBAL PROPERTY ${owner_property})
    if(owner)
        target_precompile_headers(${name} REUSE_FROM ${owner})
    else()
        target_precompile_headers(${name} PRIVATE ${headers})
        set_property(GLOBAL PROPERTY ${owner_property} ${name})
    endif()
endfunction()

# zeph_test_pch(OWNER headers...): the precompiled header that a kind of test program shares.
function(zeph_test_pch owner)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_precompile_headers(${owner} PRIVATE
            ${zeph_pch_core} ${ARGN} <gmock/gmock.h>)
    endif()
endfunction()

# What the system that runs the tests puts before a path of the one that builds them: under Wine a drive.
set(ZEPH_TEST_DRIVE "" CACHE STRING "Drive on which test programs see the sources and the build")

# zeph_test(NAME [GUI] FOLDERS folder... LINK libs... [SLOW suite] [PROPERTIES properties of each test])
# One test program a room: every .cpp directly in the folders, each TEST a test of ctest. The tests
# of the slow suite have the label "slow", and time for their long form.
function(zeph_test name)
    cmake_parse_arguments(ARG "GUI" "SLOW" "FOLDERS;LINK;PROPERTIES" ${ARGN})
    list(TRANSFORM ARG_FOLDERS REPLACE "(.+)" "${CMAKE_CURRENT_SOURCE_DIR}/\\1/*.cpp")
    file(GLOB sources CONFIGURE_DEPENDS ${ARG_FOLDERS})
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    # Most of a test's compile time goes into headers and templates that its neighbours need too.
    set_target_properties(${name} PROPERTIES AUTOMOC ON UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
    # A fixture in an unnamed namespace is no danger in a source that nobody includes twice.
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_compile_definitions(${name} PRIVATE ZEPH_SOURCE_DIR="${ZEPH_TEST_DRIVE}${CMAKE_SOURCE_DIR}")
    if(ARG_GUI)
        target_link_libraries(${name} PRIVATE zeph_test_gui ${ARG_LINK})
        target_precompile_headers(${name} REUSE_FROM zeph_test_gui)
    else()
        target_link_libraries(${name} PRIVATE zeph_test_core ${ARG_LINK})
        target_precompile_headers(${name} REUSE_FROM zeph_test_core)
    endif()
    set(daily "*")
    if(ARG_SLOW)
        set(daily "-${ARG_SLOW}.*")
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX "${name}/"
            TEST_FILTER "${ARG_SLOW}.*" TEST_LIST ${name}_slow_tests
            DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 900 LABELS slow ${ARG_PROPERTIES})
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX "${name}/" TEST_FILTER "${daily}"
        DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ${ARG_PROPERTIES})
endfunction()

# zeph_fuzz(NAME LINK libs...): the target of NAME.cpp with the seed corpus in corpus/NAME.
function(zeph_fuzz name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(fuzz_${name} ${name}.cpp)
    target_link_libraries(fuzz_${name} PRIVATE zeph_flags Qt6::Core ${ARG_LINK} -fsanitize=fuzzer)
endfunction()

# zeph_bench(NAME LINK libs...): the benchmarks of NAME.cpp.
function(zeph_bench name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(bench_${name} ${name}.cpp)
    target_include_directories(bench_${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_compile_definitions(bench_${name} PRIVATE ZEPH_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(bench_${name} PRIVATE zeph_flags benchmark::benchmark ${ARG_LINK})
endfunction()
