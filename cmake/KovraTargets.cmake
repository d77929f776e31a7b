# SPDX-License-Identifier: MIT
# What every target of the project shares: warnings, sanitizers, Qt's stricter defaults.

add_library(kovra_options INTERFACE)
target_include_directories(kovra_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
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
endif()

# One object library per source folder: kovra_folder(<folder> <sources...>)
function(kovra_folder name)
    add_library(kovra_${name} OBJECT ${ARGN})
    target_link_libraries(kovra_${name} PUBLIC kovra_options
        Qt6::Core Qt6::Gui Qt6::Widgets Qt6::PrintSupport Qt6::Help)
endfunction()

# One test program per source folder: kovra_test(<name> <sources...>)
# Each class in it derives from QObject and is listed with KOVRA_TEST (tests/support/TestMain.h).
function(kovra_test name)
    add_executable(test_${name} ${ARGN})
    target_link_libraries(test_${name} PRIVATE kovra_core kovra_test_support Qt6::Test)
    # The crash handler would start a debugger on a failed precondition, over and over.
    add_test(NAME ${name} COMMAND test_${name} -nocrashhandler)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=")
endfunction()
