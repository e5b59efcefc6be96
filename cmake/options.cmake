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

# Releases are hardened, and do not tell where they were built: two builds of one source are the same.
set(WIREPANE_RELEASE $<AND:$<CXX_COMPILER_ID:GNU,Clang>,$<CONFIG:Release,RelWithDebInfo>>)
target_compile_options(wirepane_options INTERFACE
    "$<${WIREPANE_RELEASE}:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.;-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>")
if(CMAKE_SYSTEM_NAME STREQUAL Linux AND NOT WIREPANE_SANITIZE)
    target_compile_options(wirepane_options INTERFACE
        "$<${WIREPANE_RELEASE}:-fstack-protector-strong;-fstack-clash-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    target_link_options(wirepane_options INTERFACE "$<${WIREPANE_RELEASE}:LINKER:-z,relro;LINKER:-z,now>")
endif()

option(WIREPANE_PRECOMPILE "Precompile the headers that nearly every source includes" ON)

# wirepane_precompiled_headers(NAME LINK library HEADERS...): for all that are built with what this library brings, and
# maybe more. A target that uses them needs the same options; one that differs fails to compile.
set(WIREPANE_NO_SOURCE ${CMAKE_BINARY_DIR}/precompiled_headers.cpp)
file(CONFIGURE OUTPUT ${WIREPANE_NO_SOURCE} CONTENT "// Only its precompiled headers count.\n")
function(wirepane_precompiled_headers name)
    cmake_parse_arguments(HEADERS "" "LINK" "" ${ARGN})
    if(WIREPANE_PRECOMPILE)
        add_library(${name} OBJECT ${WIREPANE_NO_SOURCE})
        target_link_libraries(${name} PRIVATE wirepane_options ${HEADERS_LINK})
        target_precompile_headers(${name} PRIVATE ${HEADERS_UNPARSED_ARGUMENTS})
        set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    endif()
endfunction()
function(wirepane_precompile target headers)
    if(WIREPANE_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${headers})
    endif()
endfunction()

set(WIREPANE_CORE_HEADERS
    <QByteArray> <QDateTime> <QHash> <QJsonObject> <QObject> <QString> <QStringList> <QVariant>
    <algorithm> <array> <chrono> <cstdint> <functional> <map> <memory> <optional> <set> <utility> <variant> <vector>)
set(WIREPANE_WIDGET_HEADERS
    ${WIREPANE_CORE_HEADERS}
    <QApplication> <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QPointer> <QPushButton> <QTableView>
    <QTimer> <QWidget>)
wirepane_precompiled_headers(wirepane_core_headers LINK Qt6::Core ${WIREPANE_CORE_HEADERS})
wirepane_precompiled_headers(wirepane_widget_headers LINK Qt6::Widgets ${WIREPANE_WIDGET_HEADERS})

# The version in the names of the shared libraries: while it is 0.x, each minor version is an interface of its own.
set(WIREPANE_ABI ${PROJECT_VERSION_MAJOR})
if(WIREPANE_ABI EQUAL 0)
    set(WIREPANE_ABI ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endif()

set(WIREPANE_MODULE_FOLDER lib/wirepane-${WIREPANE_ABI})

# wirepane_room(NAME [SHARED] [WIDGETS] SOURCES... LINK libraries...)
# One library per room (a shared one only for the host contract). WIDGETS: among its libraries are Qt's widgets.
function(wirepane_room name)
    cmake_parse_arguments(ROOM "SHARED;WIDGETS" "" "SOURCES;LINK" ${ARGN})
    if(ROOM_SHARED)
        add_library(${name} SHARED ${ROOM_SOURCES})
        set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${WIREPANE_ABI})
    else()
        add_library(${name} STATIC ${ROOM_SOURCES})
    endif()
    target_include_directories(${name} INTERFACE $<INSTALL_INTERFACE:include/wirepane>)
    target_compile_features(${name} INTERFACE cxx_std_20)
    target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:wirepane_options> ${ROOM_LINK})
    if(ROOM_WIDGETS)
        wirepane_precompile(${name} wirepane_widget_headers)
    else()
        wirepane_precompile(${name} wirepane_core_headers)
    endif()
endfunction()

# wirepane_test_fonts(NAME FAMILY FILES): what FONTCONFIG_FILE names so that tests see these fonts alone, FAMILY first.
function(wirepane_test_fonts name WIREPANE_TEST_FONT WIREPANE_TEST_FONT_FILES)
    configure_file(${CMAKE_SOURCE_DIR}/tests/fonts.conf.in ${CMAKE_BINARY_DIR}/tests/${name}_fonts.conf @ONLY)
endfunction()
wirepane_test_fonts(usual "DejaVu Sans" "/usr/share/fonts/truetype/dejavu/*")
wirepane_test_fonts(large "Noto Sans Mono" "/usr/share/fonts/truetype/noto/NotoSansMono-*")

# wirepane_test(NAME [WIDGETS] SOURCES... LINK libraries...)
# One test program, a test of its own in CTest, run on the offscreen platform. One of WIDGETS is run again with a
# font that is taller and wider than the usual one.
function(wirepane_test name)
    cmake_parse_arguments(TEST "WIDGETS" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE wirepane_options wirepane_test_support ${TEST_LINK})
    wirepane_precompile(${name} wirepane_test_headers)
    wirepane_add_test(${name} ${name} usual "DejaVu Sans")
    if(TEST_WIDGETS)
        wirepane_add_test(${name}_large_font ${name} large "Noto Sans Mono")
    endif()
endfunction()

# The program fails where its default font is another one.
function(wirepane_add_test test program fonts family)
    add_test(NAME ${test} COMMAND ${program})
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;FONTCONFIG_FILE=${CMAKE_BINARY_DIR}/tests/${fonts}_fonts.conf;WIREPANE_TEST_FONT=${family};LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp;TSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/races.supp;WIREPANE_TEST_NEWS=${CMAKE_SOURCE_DIR}/../shared/news"
        TIMEOUT 600)
endfunction()

# wirepane_install_compressed(FILE FOLDER COMPONENT): as gzip does it, without name and time; as it is, where gzip is not.
find_program(WIREPANE_GZIP gzip)
function(wirepane_install_compressed file folder component)
    get_filename_component(name ${file} NAME)
    get_filename_component(file ${file} ABSOLUTE)
    if(WIREPANE_GZIP)
        set(compressed ${CMAKE_CURRENT_BINARY_DIR}/compressed/${name}.gz)
        file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/compressed)
        execute_process(COMMAND ${WIREPANE_GZIP} -9nc ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
        set(file ${compressed})
    endif()
    install(FILES ${file} DESTINATION ${folder} COMPONENT ${component})
endfunction()
