# What an editor's developer and an administrator get: headers, a CMake package, a pkg-config file, the manual page, the
# completion of bash, and a package for Debian. The plug-in and the command install themselves.
include(CMakePackageConfigHelpers)

set(PLUGIN_FOLDER ${CMAKE_INSTALL_LIBDIR}/qt5/plugins/zqtransformation)

set_target_properties(zqinterfaces PROPERTIES EXPORT_NAME Interfaces)
add_library(ZQTransformation::Interfaces ALIAS zqinterfaces)
install(TARGETS zqinterfaces EXPORT ZQTransformationTargets)
install(FILES interfaces/izqtransformation.h interfaces/iwbtextinfo.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zqtransformation)

set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/ZQTransformation)
install(EXPORT ZQTransformationTargets NAMESPACE ZQTransformation:: DESTINATION ${PACKAGE_FOLDER})
configure_package_config_file(cmake/ZQTransformationConfig.cmake.in
    ${CMAKE_BINARY_DIR}/ZQTransformationConfig.cmake
    INSTALL_DESTINATION ${PACKAGE_FOLDER} PATH_VARS PLUGIN_FOLDER)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZQTransformationConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/ZQTransformationConfig.cmake ${CMAKE_BINARY_DIR}/ZQTransformationConfigVersion.cmake
    DESTINATION ${PACKAGE_FOLDER})

# Installed to any prefix, it tells where it is.
file(RELATIVE_PATH PREFIX_FROM_PKGCONFIG /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/zqtransformation.pc.in ${CMAKE_BINARY_DIR}/zqtransformation.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zqtransformation.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(BUILD_HOST)
    install(FILES docs/lessonconv.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES packaging/lessonconv.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME lessonconv)
endif()
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.md" PATTERN "*.png"
    PATTERN generator EXCLUDE)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

# What is packed is what ./run builds, not the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY TRUE)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zqtransformation)
set(CPACK_PACKAGE_CONTACT "The maintainers of lessonconv <lessonconv@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS bash-completion)
include(CPack)
