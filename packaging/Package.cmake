# The Debian package, which `cpack` makes of what the install rules place.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wifiondivo)
set(CPACK_PACKAGE_CONTACT "wifiondivo developers <developers@wifiondivo.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# What Debian asks of a package and nobody of an installed tree.
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/debian-documents.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Wi-Fi analyser of a handheld test set, on a desk")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"The analyser shows the access points in reach as a list, as spectrum graphs
and as channel tables for 2.4 and 5 GHz, and saves reports in HTML and PDF.
It scans with any wireless adapter, or replays stored scans, texts of iw and
captured frames.
.
The package has the analyser, the application in which it runs, testset, and
the scan tool, wifi-scan.")
# The private libraries are found where they were built.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${WIFIONDIVO_LIB_DIR}")
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-wqy-microhei, qtwayland5, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libcap2-bin, network-manager")

include(CPack)
