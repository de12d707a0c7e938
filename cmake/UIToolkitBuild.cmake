# Settings that every target of this build shares, and the helpers that set up tests and QML modules.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_INCLUDE_CURRENT_DIR OFF)

# Every QML module of this build lies below this folder; it is the one import path that programs and tools need.
set(UITOOLKIT_QML_DIR "${CMAKE_BINARY_DIR}/qml")
# What only the tools see of the modules; they look here first.
set(UITOOLKIT_TOOLING_DIR "${CMAKE_BINARY_DIR}/tooling")
set(QT_QML_OUTPUT_DIRECTORY "${UITOOLKIT_QML_DIR}")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(UITOOLKIT_INSTALL_QML_DIR "${CMAKE_INSTALL_LIBDIR}/qml")

foreach(policy QTP0001 QTP0004)
    if(COMMAND qt_policy)
        qt_policy(GET ${policy} known)
        qt_policy(SET ${policy} NEW)
    endif()
endforeach()

if(UITOOLKIT_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

if(UITOOLKIT_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address)
endif()

# The warnings and definitions of our own C++; code that the Qt tools generate is built without them.
add_library(uitoolkit_options INTERFACE)
target_compile_options(uitoolkit_options INTERFACE -Wall -Wextra -Wpedantic $<$<BOOL:${UITOOLKIT_WERROR}>:-Werror>)
target_compile_definitions(uitoolkit_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)

# Adds a program. Its QML modules are shared libraries found by import path, so it is not scanned for plugins to link.
function(uitoolkit_add_executable target)
    qt_add_executable(${target} ${ARGN})
    set_target_properties(${target} PROPERTIES QT_QML_MODULE_NO_IMPORT_SCAN TRUE)
    target_link_libraries(${target} PRIVATE uitoolkit_options)
endfunction()
