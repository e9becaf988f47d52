# SPDX-License-Identifier: MIT
# What an editor's developer and an administrator get: headers, a CMake package, a pkg-config file, the manual page, the
# completion of shells, what file managers know of lessons, and a package for Debian. The plug-in and the command install
# themselves.
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

# The prefix is known when it is installed.
set(PKGCONFIG_PREFIX "@CMAKE_INSTALL_PREFIX@")
configure_file(cmake/zqtransformation.pc.in ${CMAKE_BINARY_DIR}/zqtransformation.pc.in @ONLY)
install(CODE "configure_file(${CMAKE_BINARY_DIR}/zqtransformation.pc.in ${CMAKE_BINARY_DIR}/zqtransformation.pc @ONLY)")
install(FILES ${CMAKE_BINARY_DIR}/zqtransformation.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# gzip_file(SOURCE NAME): the file as Debian wants manuals and changelogs, the same bytes each time.
find_program(GZIP gzip REQUIRED)
function(gzip_file source name)
    add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/${name}
        COMMAND ${GZIP} -9 -n -c ${CMAKE_SOURCE_DIR}/${source} > ${CMAKE_BINARY_DIR}/${name}
        DEPENDS ${source} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY GZIPPED_FILES ${CMAKE_BINARY_DIR}/${name})
endfunction()

set(DOC_FOLDER ${CMAKE_INSTALL_DATADIR}/doc/lessonconv)
gzip_file(packaging/debian/changelog changelog.gz)
install(FILES ${CMAKE_BINARY_DIR}/changelog.gz packaging/debian/copyright README.md DESTINATION ${DOC_FOLDER})
install(DIRECTORY docs DESTINATION ${DOC_FOLDER} FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN generator EXCLUDE)
if(BUILD_HOST)
    gzip_file(docs/lessonconv.1 lessonconv.1.gz)
    install(FILES ${CMAKE_BINARY_DIR}/lessonconv.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES ${CMAKE_BINARY_DIR}/completions/lessonconv.bash RENAME lessonconv
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES ${CMAKE_BINARY_DIR}/completions/lessonconv.zsh RENAME _lessonconv
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
    install(FILES ${CMAKE_BINARY_DIR}/completions/lessonconv.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

    # What file managers know of lessons: their types, icons, thumbnails, how they are shown and converted.
    set(desktop packaging/desktop)
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${desktop}/lessonconv.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES ${desktop}/lessonconv-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME lessonconv.xml)
    install(FILES ${desktop}/lessonconv.thumbnailer DESTINATION ${CMAKE_INSTALL_DATADIR}/thumbnailers)
    install(FILES ${desktop}/lessonconv-servicemenu.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/kio/servicemenus
        RENAME lessonconv.desktop PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    install(FILES ${desktop}/org.lessonconv.lessonconv.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    install(FILES ${desktop}/icons/lessonconv.svg DESTINATION ${icons}/scalable/apps)
    install(FILES ${desktop}/icons/lessonconv-symbolic.svg DESTINATION ${icons}/symbolic/apps)
    install(FILES ${desktop}/icons/application-x-zqtx-lesson.svg ${desktop}/icons/application-x-iwb-lesson.svg
        DESTINATION ${icons}/scalable/mimetypes)
endif()
get_property(gzipped GLOBAL PROPERTY GZIPPED_FILES)
add_custom_target(gzipped ALL DEPENDS ${gzipped})
if(BUILD_HOST)
    add_dependencies(lessonconv gzipped) # so that what ./run builds can be installed
endif()

# What is packed is what ./run builds, not the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY TRUE)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lessonconv)
set(CPACK_PACKAGE_CONTACT "The maintainers of lessonconv <maintainers@lessonconv.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "converter for lessons of interactive whiteboards")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Converts lessons between the formats of a lesson editor (JSON, ZQTX, raw XML)
and the public IWB format for interactive whiteboards, shows them as web
pages, PDF documents and pictures, and names what the other format can't
hold. Whole archives are converted with one command.
.
The plug-in for lesson editors that does the conversions is in the package,
with its headers and a CMake package.")
# Installed below a folder of its own, so that what is written at installation names the prefix of the machine.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-liberation, fonts-noto-cjk, qt5-image-formats-plugins, bash-completion, xdg-utils, shared-mime-info")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "firefox-esr | chromium | www-browser")
include(CPack)
