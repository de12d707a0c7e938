# Helpers for the tests. Every test runs without a display unless it says otherwise.

file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/Testing/runtime")
file(CHMOD "${CMAKE_BINARY_DIR}/Testing/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# Sets what all tests need to find the modules of this build, and gives the test its labels.
function(uitoolkit_set_test_environment test)
    cmake_parse_arguments(arg "" "" "LABELS" ${ARGN})
    set_tests_properties(${test} PROPERTIES
        LABELS "${arg_LABELS}"
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QML_IMPORT_PATH=${UITOOLKIT_QML_DIR};LC_ALL=C.UTF-8;XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/Testing/runtime"
    )
endfunction()

# Adds a Qt Test program named after its one source file.
function(uitoolkit_add_native_test source)
    get_filename_component(name "${source}" NAME_WE)
    uitoolkit_add_executable(${name} ${source})
    target_compile_definitions(${name} PRIVATE
        UITOOLKIT_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
        UITOOLKIT_QML_DIR="${UITOOLKIT_QML_DIR}")
    target_link_libraries(${name} PRIVATE uitoolkitdata korvuui Qt6::Test Qt6::QmlPrivate Qt6::QuickPrivate)
    add_dependencies(${name} uitoolkitqml korvu uielements)
    add_test(NAME ${name} COMMAND ${name})
    uitoolkit_set_test_environment(${name} LABELS native)
endfunction()

# Adds a Qt Test program that shows real windows: it runs on a virtual display with a window manager, and is skipped where
# there is none.
function(uitoolkit_add_window_test source)
    get_filename_component(name "${source}" NAME_WE)
    uitoolkit_add_executable(${name} ${source})
    target_link_libraries(${name} PRIVATE uitoolkitdata korvuui Qt6::Test Qt6::GuiPrivate Qt6::QuickPrivate)
    add_dependencies(${name} uitoolkitqml korvu uielements)
    add_test(NAME ${name} COMMAND "${CMAKE_SOURCE_DIR}/Tests/Windows/run.sh" $<TARGET_FILE:${name}>)
    uitoolkit_set_test_environment(${name} LABELS windows)
    set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 RESOURCE_LOCK display)
endfunction()
