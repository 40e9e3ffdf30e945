# Adds to the files of the package its copyright and changelog, and compresses the documents.

set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share")
set(documents "${share}/doc/${CPACK_PACKAGE_NAME}")
file(COPY "${CMAKE_CURRENT_LIST_DIR}/copyright" "${CMAKE_CURRENT_LIST_DIR}/changelog"
    DESTINATION "${documents}"
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
    DIRECTORY_PERMISSIONS ${CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
file(GLOB pages "${share}/man/man[1-8]/*.[1-8]")
execute_process(COMMAND gzip -9n ${pages} "${documents}/changelog" COMMAND_ERROR_IS_FATAL ANY)
