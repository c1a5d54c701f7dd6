# The Debian package, as CPack makes it: songsweep_1.1_amd64.deb, and beside it the symbols for a debugger.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME songsweep)
set(CPACK_PACKAGE_CONTACT "The Songsweep developers <developers@songsweep.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://songsweep.example/)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "pulseaudio-utils, qt6-translations-l10n, shared-mime-info, xdg-user-dirs, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS qt6-wayland)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "find the songs that a music library holds twice")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Songsweep finds the duplicate tracks of an iTunes or Music library, or of a
folder of music, lets you mark the copies that you can do without, and
removes them: from the library, from every playlist, and, if you ask for
it, their files to the Trash.

It keeps a backup of the library, and brings back what it deleted. All of
it can be had in a window and on the command line.")
include(CPack)
