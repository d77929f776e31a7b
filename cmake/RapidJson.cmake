# SPDX-License-Identifier: MIT
# RapidJSON is headers only: this system's serve a cross build too, but not what lies beside them.
find_path(RAPIDJSON_INCLUDE_DIR rapidjson/reader.h REQUIRED NO_CMAKE_FIND_ROOT_PATH)
add_library(kovra_rapidjson INTERFACE)
if(CMAKE_CROSSCOMPILING)
    set(from_host "${CMAKE_BINARY_DIR}/include/from-host")
    file(MAKE_DIRECTORY "${from_host}")
    file(CREATE_LINK "${RAPIDJSON_INCLUDE_DIR}/rapidjson" "${from_host}/rapidjson" SYMBOLIC)
    target_include_directories(kovra_rapidjson SYSTEM INTERFACE "${from_host}")
else()
    target_include_directories(kovra_rapidjson SYSTEM INTERFACE "${RAPIDJSON_INCLUDE_DIR}")
endif()
