# The Debian package: `cpack -G DEB` in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orna)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "ORNA developers")
set(CPACK_PACKAGE_CONTACT "ORNA developers <orna@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer for recordings of an aircraft's engine monitoring unit")
set(CPACK_PACKAGE_DESCRIPTION
"ORNA reads the SD card of an aircraft's engine monitoring unit and shows
what the engine did: every recorded value at every moment of the flight,
what was exceeded, when, and what everything else did around that moment.

It draws curves like an oscilloscope and hides no peak at any zoom, shows a
table of the values, lists exceeded limits, warning lamps and faults, and
exports the flight path as KML, the values as CSV and excerpts as
recordings. An XML profile says how the CAN messages are read.

The command orna-cli does the same without a window; orna-demo makes a
demo flight.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Loaded by name at run time, so no library dependency asks for them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6sql6-sqlite)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS libqt6sql6-psql)
if(ORNA_GUI)
    string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS ", libqt6svg6")
endif()
include(CPack)
