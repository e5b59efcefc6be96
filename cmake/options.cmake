# What every target of the project is built with: warnings as errors, strict Qt, the chosen sanitizers.
add_library(wirepane_options INTERFACE)
target_include_directories(wirepane_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_features(wirepane_options INTERFACE cxx_std_20)
# -Wmaybe-uninitialized: GCC 12 at -O2 sees it in every vector that is made from an initializer list.
target_compile_options(wirepane_options INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
    -Wno-sign-conversion -Wimplicit-fallthrough
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
target_compile_definitions(wirepane_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_CONTEXTLESS_CONNECT
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_STRICT_ITERATORS)
if(WIREPANE_SANITIZE)
    target_compile_options(wirepane_options INTERFACE
        -fsanitize=${WIREPANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(wirepane_options INTERFACE -fsanitize=${WIREPANE_SANITIZE})
endif()

option(WIREPANE_PRECOMPILE "Precompile the headers that nearly every source includes" ON)
function(wirepane_precompile target)
    if(WIREPANE_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# wirepane_room(NAME [SHARED] SOURCES... LINK libraries...)
# One library per room (a shared one only for the host contract).
function(wirepane_room name)
    cmake_parse_arguments(ROOM "SHARED" "" "SOURCES;LINK" ${ARGN})
    if(ROOM_SHARED)
        add_library(${name} SHARED ${ROOM_SOURCES})
        set_target_properties(${name} PROPERTIES
            WINDOWS_EXPORT_ALL_SYMBOLS ON VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    else()
        add_library(${name} STATIC ${ROOM_SOURCES})
    endif()
    target_include_directories(${name} INTERFACE $<INSTALL_INTERFACE:include/wirepane>)
    target_compile_features(${name} INTERFACE cxx_std_20)
    target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:wirepane_options> ${ROOM_LINK})
    wirepane_precompile(${name} <QString> <QStringList> <QHash> <QVariant> <functional> <memory> <vector>)
endfunction()

# wirepane_test(NAME SOURCES... LINK libraries...)
# One test program, a test of its own in CTest, run on the offscreen platform.
function(wirepane_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE wirepane_options wirepane_test_support ${TEST_LINK})
    if(WIREPANE_PRECOMPILE)
        target_precompile_headers(${name} REUSE_FROM wirepane_test_support)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp;WIREPANE_TEST_NEWS=${CMAKE_SOURCE_DIR}/../shared/news"
        TIMEOUT 600)
endfunction()
