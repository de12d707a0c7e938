# What `cmake --install` lays down: the host's library with its headers, the QML modules, and a CMake package.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/UIToolkitQml")
set(include_dir "${CMAKE_INSTALL_INCLUDEDIR}/korvuui")

set_target_properties(korvuui PROPERTIES INSTALL_RPATH "$ORIGIN")
target_include_directories(korvuui INTERFACE $<INSTALL_INTERFACE:${include_dir}>)
install(TARGETS korvuui EXPORT UIToolkitQmlTargets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT UIToolkitQmlTargets NAMESPACE UIToolkitQml:: DESTINATION "${package_dir}")

file(GLOB host_headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/Host/Native/*/*.h")
install(FILES ${host_headers} "${PROJECT_BINARY_DIR}/Host/Native/korvuui_export.h" DESTINATION "${include_dir}")

# A module's folder holds the plugin, if it has one, and what the tools read.
foreach(module IN ITEMS korvu:Korvu uielements:UiElements uitoolkitqml:UIToolkitQml)
    string(REPLACE ":" ";" module "${module}")
    list(GET module 0 target)
    list(GET module 1 uri)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/../..")
    install(TARGETS ${target} LIBRARY DESTINATION "${UITOOLKIT_INSTALL_QML_DIR}/${uri}")
endforeach()
install(DIRECTORY "${UITOOLKIT_QML_DIR}/" DESTINATION "${UITOOLKIT_INSTALL_QML_DIR}"
    FILES_MATCHING
    PATTERN qmldir
    PATTERN "*.qmltypes"
    PATTERN "*.qml"
    PATTERN "*.js"
    PATTERN Gallery EXCLUDE)

configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/UIToolkitQmlConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/UIToolkitQmlConfig.cmake"
    INSTALL_DESTINATION "${package_dir}"
    PATH_VARS UITOOLKIT_INSTALL_QML_DIR)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/UIToolkitQmlConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/UIToolkitQmlConfig.cmake"
    "${PROJECT_BINARY_DIR}/UIToolkitQmlConfigVersion.cmake"
    DESTINATION "${package_dir}")
