# The Debian package of the installation: `cmake --build build --target package` (or
# scripts/paquete) writes build/trevalo_VERSION_ARCH.deb with what `cmake --install` installs,
# under /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trevalo)
set(CPACK_PACKAGE_VENDOR "Korvel Software")
set(CPACK_PACKAGE_CONTACT "Korvel Software <soporte@korvelsoftware.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "análisis y diseño de vigas continuas")
set(CPACK_PACKAGE_DESCRIPTION "Programa de escritorio para el análisis y el diseño de vigas \
continuas de concreto armado y de acero, con su herramienta de órdenes trevalo-calc.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://korvelsoftware.com/trevalo)
# The libraries the programs link are found by dpkg-shlibdeps. What the programs load at run
# time without linking it cannot be seen there and is named here: Qt's platform plugins (the
# windows), the SQLite plugin of Qt SQL (the help engine's index), Qt's Spanish
# translations, and the fonts the drawings name.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qt6-qpa-plugins, libqt6sql6-sqlite, qt6-translations-l10n, fonts-liberation, fonts-dejavu-core")
include(CPack)
