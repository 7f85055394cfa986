# The Debian package: `cpack -G DEB` in a build directory (scripts/package does it all).
# Its Depends come from the libraries the programs link (dpkg-shlibdeps), so they follow the
# Qt 6 runtime packages of the system it is built on.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarvik)
set(CPACK_PACKAGE_VENDOR "Brunfeld")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "program and calibrate VK2 coin validators over a serial port")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
    "Tarvik is the bench tool with which service technicians program and calibrate the coin\n"
    "validators of the VK2 family over a serial port: it reads a validator's configuration,\n"
    "edits it, writes or clones it, teaches channels new coins, recalibrates with reference\n"
    "tokens and keeps validators, coin profiles and value tables in dBase tables. The package\n"
    "holds the program (tarvik), its command line (tarvik-cli) and a virtual validator\n"
    "(tarvik-sim), with the user guide.")
set(CPACK_PACKAGE_CONTACT "Tarvik maintainers <tarvik@brunfeld.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The configuration sheet is drawn in DejaVu Sans, whatever fonts the system has besides.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
# The user guide's pictures, the manual page and the desktop entry sit in the usual places;
# /usr is the prefix the programs look for share/tarvik from.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
