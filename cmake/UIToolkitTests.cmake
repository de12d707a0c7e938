# Helpers for the tests. Every test runs without a display unless it says otherwise.

# Sets what all tests need to find the modules of this build, and gives the test its labels.
function(uitoolkit_set_test_environment test)
    cmake_parse_arguments(arg "" "" "LABELS" ${ARGN})
    set_tests_properties(${test} PROPERTIES
        LABELS "${arg_LABELS}"
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QML_IMPORT_PATH=${UITOOLKIT_QML_DIR};QT_FATAL_CRITICALS=1;LC_ALL=C.UTF-8;QML_DISABLE_DISK_CACHE=1"
    )
endfunction()

# Adds a Qt Test program named after its one source file.
function(uitoolkit_add_native_test source)
    get_filename_component(name "${source}" NAME_WE)
    qt_add_executable(${name} ${source})
    target_compile_definitions(${name} PRIVATE
        UITOOLKIT_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
        UITOOLKIT_QML_DIR="${UITOOLKIT_QML_DIR}")
    target_link_libraries(${name} PRIVATE uitoolkitdata korvuui Qt6::Test Qt6::QuickPrivate uitoolkit_options)
    add_dependencies(${name} uitoolkitqml korvu uielements)
    add_test(NAME ${name} COMMAND ${name})
    uitoolkit_set_test_environment(${name} LABELS native)
endfunction()
