# Read by cpack for each kind of package: the system's own takes what is installed, the archive the
# folder to carry about.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(kind installed)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(kind portable)
  set(CPACK_PACKAGING_INSTALL_PREFIX "")
  set(CPACK_PACKAGE_FILE_NAME "tumbledeep-${CPACK_PACKAGE_VERSION}-portable")
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 tree)
set(CPACK_INSTALL_CMAKE_PROJECTS "${tree};tumbledeep;${kind};/")
