# Installs the build, then configures, builds and runs an application that uses the installed package.
# Called as: cmake -DBUILD_DIR=... -DSOURCE_DIR=... -P consumer.cmake
set(work "${BUILD_DIR}/Tests/Install/work")
file(REMOVE_RECURSE "${work}")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(REPLACE ";" " " command "${ARGN}")
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
    if(output MATCHES "[Ww]arning|qrc:/|file://")
        message(FATAL_ERROR "${command} gave a warning:\n${output}")
    endif()
endfunction()

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${work}/prefix")
run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}/Consumer" -B "${work}/build" -G Ninja
    "-DCMAKE_PREFIX_PATH=${work}/prefix")
run("${CMAKE_COMMAND}" --build "${work}/build")
run("${work}/build/consumer")
