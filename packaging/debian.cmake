# The Debian package: `cpack -G DEB` in the build folder of the release preset.
set(documents ${CMAKE_INSTALL_DOCDIR})
install(FILES debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz
        DESTINATION ${documents} COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        RENAME velmora COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmora)
set(CPACK_PACKAGE_CONTACT "The Velmora developers <developers@velmora.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://velmora.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "hide files and folders from the file manager")
set(CPACK_PACKAGE_DESCRIPTION
"Velmora keeps a list of files and folders of your choice and makes each of
them hidden from, or visible in, the file manager. Nothing is moved, renamed
or changed: names are listed in the .hidden file of their folder, which the
file managers of GNOME, KDE, Cinnamon, MATE, Xfce and LXQt follow.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# The program's files and Debian's own; not the licence file, which `copyright` stands for there.
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};velmora;Unspecified;/"
                                 "${PROJECT_BINARY_DIR};velmora;debian;/")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The plug-ins for the display and for the pictures are loaded, not linked. The latter have had a
# package of their own since Debian 13.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "hicolor-icon-theme, qt6-svg-plugins | libqt6svg6 (<< 6.7.2-5~), qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "shared-mime-info, xdg-utils, at-spi2-core, qt6-gtk-platformtheme, qt6-translations-l10n, qt6-wayland")
# File managers that need one of these to show the entry in their menus.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS
    "python3-nautilus, caja-actions, libfm-modules")
set(CPACK_DEBIAN_PACKAGE_ENHANCES "nautilus, dolphin, nemo, caja, thunar, pcmanfm-qt, pcmanfm")
include(CPack)
