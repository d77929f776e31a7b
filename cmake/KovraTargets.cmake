# SPDX-License-Identifier: MIT
# What every target of the project shares: warnings, sanitizers, Qt's stricter defaults.

add_library(kovra_options INTERFACE)
target_compile_definitions(kovra_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(NOT MSVC)
    target_compile_options(kovra_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    if(KOVRA_WERROR)
        target_compile_options(kovra_options INTERFACE -Werror)
    endif()
    if(KOVRA_SANITIZE)
        target_compile_options(kovra_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
        target_link_options(kovra_options INTERFACE -fsanitize=address,undefined)
    endif()
    if(KOVRA_FUZZ)
        target_compile_options(kovra_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
        target_link_options(kovra_options INTERFACE -fsanitize=address,undefined)
    endif()
endif()

# One library per folder of src/, which links and finds the headers of what it needs and of nothing else:
# kovra_folder(<folder> [NEEDS <lower folder>...] [QT <module besides Core>...] SOURCES <file>...)
function(kovra_folder name)
    cmake_parse_arguments(PARSE_ARGV 1 folder "" "" "NEEDS;QT;SOURCES")
    add_library(kovra_${name} STATIC ${folder_SOURCES})
    # An include names its folder. Each folder is found through a root of its own, so that a wrong include finds nothing.
    set(root "${CMAKE_BINARY_DIR}/include/${name}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/${name}" SYMBOLIC)
    target_include_directories(kovra_${name} PUBLIC "${root}")
    target_link_libraries(kovra_${name} PUBLIC kovra_options Qt6::Core)
    foreach(module IN LISTS folder_QT)
        target_link_libraries(kovra_${name} PUBLIC Qt6::${module})
    endforeach()
    foreach(lower IN LISTS folder_NEEDS)
        if(NOT TARGET kovra_${lower})
            message(FATAL_ERROR "src/${name} needs src/${lower}, which does not stand below it in src/CMakeLists.txt")
        endif()
        target_link_libraries(kovra_${name} PUBLIC kovra_${lower})
    endforeach()
endfunction()

# One test program per source folder: kovra_test(<name> <sources...>)
# Each class in it derives from QObject and is listed with KOVRA_TEST (tests/support/TestMain.h).
function(kovra_test name)
    add_executable(test_${name} ${ARGN})
    target_link_libraries(test_${name} PRIVATE kovra_core kovra_test_support Qt6::Test)
    if(WIN32 AND TARGET Qt6::QOffscreenIntegrationPlugin)
        qt_import_plugins(test_${name} INCLUDE Qt6::QOffscreenIntegrationPlugin)
    endif()
    # The crash handler would start a debugger on a failed precondition, over and over.
    add_test(NAME ${name} COMMAND test_${name} -nocrashhandler)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=")
endfunction()
