# What "cmake --install" installs and "cpack -G DEB" packs. The programs contain the built-in files.
include(GNUInstallDirs)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # the tests and samples are not installed
set(packaging "${CMAKE_SOURCE_DIR}/packaging")
set(metainfo "${CMAKE_BINARY_DIR}/packaging/org.example.keltavlo.metainfo.xml")
configure_file("${packaging}/org.example.keltavlo.metainfo.xml.in" "${metainfo}" @ONLY)

set(service "${CMAKE_BINARY_DIR}/packaging/org.example.keltavlo.service")
configure_file("${packaging}/org.example.keltavlo.service.in" "${service}" @ONLY)

install(TARGETS keltavlo keltavlo-tool)
install(FILES docs/keltavlo.1 "${toolManual}/keltavlo-tool.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${toolManual}/keltavlo-tool.bash" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
    RENAME keltavlo-tool)
install(FILES "${toolManual}/_keltavlo-tool" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
install(FILES "${toolManual}/keltavlo-tool.fish" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/keltavlo" RENAME copyright)
install(FILES CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/keltavlo")
install(FILES "${packaging}/org.example.keltavlo.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${service}" DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services")
install(FILES "${packaging}/keltavlo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
install(FILES "${metainfo}" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
set(iconFolder "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${packaging}/icons/keltavlo.svg" DESTINATION "${iconFolder}/scalable/apps")
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES "${packaging}/icons/keltavlo-${size}.png" DESTINATION "${iconFolder}/${size}x${size}/apps"
        RENAME keltavlo.png)
endforeach()

string(TOLOWER "${KELTAVLO_STAGE}" stage)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME keltavlo)
set(CPACK_PACKAGE_CONTACT "KelTavlo developers <keltavlo@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "workshop for the textures of the Quake games")
set(CPACK_PACKAGE_DESCRIPTION "Opens the textures of Quake, Quake II, Hexen II and Half-Life from the disk or
out of PAK and WAD archives, and loose textures of Quake III Arena, tiles them
endlessly, edits them and what the games store beside the pixels, and saves them
in five formats. Shows Quake II models with the texture that you work on.")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_VERSION "${PROJECT_VERSION}~${stage}") # sorts before the release itself
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.example.org/keltavlo")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "shared-mime-info, hicolor-icon-theme")
include(CPack)
