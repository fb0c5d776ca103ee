# Read once for each kind of package: which of the two it is made of, and where that goes.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL debian)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
    set(CPACK_COMPONENTS_ALL portable)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_ARCHIVE_PORTABLE_FILE_NAME "mirelle-${CPACK_PACKAGE_VERSION}-linux-${CMAKE_HOST_SYSTEM_PROCESSOR}")
    if(CPACK_GENERATOR STREQUAL "ZIP")
        set(CPACK_ARCHIVE_PORTABLE_FILE_NAME "mirelle-${CPACK_PACKAGE_VERSION}-windows")
        set(CPACK_PACKAGE_FILE_NAME ${CPACK_ARCHIVE_PORTABLE_FILE_NAME}) # the folder in it
    endif()
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
