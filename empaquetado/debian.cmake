# The Debian package: cmake --preset release && cmake --build --preset release && cpack --preset release
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${CALVENTO_CONTACTO})
set(CPACK_PACKAGE_HOMEPAGE_URL ${CALVENTO_SITIO})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_GENERATOR DEB)
# into /usr whatever prefix the tree was configured for
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(CALVENTO_QT)
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Hydraulic design of chutes and drops of irrigation canals
Calvento dimensions the structures that take the energy out of the water along
a canal: chutes, inclined and vertical drops, with their control section,
transitions and stilling basin. Its interface is Spanish, its units metric.
calvento-lote calculates project files without a window.")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-translations-l10n, qt6-wayland")
else()
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Hydraulic design of chutes and drops on the terminal
calvento-lote calculates project files of Calvento, for machines without a
screen: chutes, inclined and vertical drops of irrigation canals with their
stilling basins, as text or JSON, and CAD drawings as DXF.")
  set(CPACK_DEBIAN_PACKAGE_CONFLICTS calvento)
  set(CPACK_DEBIAN_PACKAGE_REPLACES calvento)
endif()
