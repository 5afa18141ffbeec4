# Installs the library with its headers, the CMake package VelmarMetaInfo and a pkg-config file, and
# the command if it is built. The platform has install rules of its own.

include(CMakePackageConfigHelpers)

install(TARGETS VelmarMetaInfo
  EXPORT VelmarMetaInfoTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(VELMAR_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VelmarMetaInfo)
install(EXPORT VelmarMetaInfoTargets NAMESPACE Velmar:: DESTINATION ${VELMAR_PACKAGE_DIR})
file(WRITE ${PROJECT_BINARY_DIR}/VelmarMetaInfoConfig.cmake
  "include(\"\${CMAKE_CURRENT_LIST_DIR}/VelmarMetaInfoTargets.cmake\")\n")
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelmarMetaInfoConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/VelmarMetaInfoConfig.cmake
  ${PROJECT_BINARY_DIR}/VelmarMetaInfoConfigVersion.cmake
  DESTINATION ${VELMAR_PACKAGE_DIR})

configure_file(cmake/VelmarMetaInfo.pc.in VelmarMetaInfo.pc @ONLY)
# Documents for users, and the samples that their examples name.
set(VELMAR_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/velmar)
install(FILES README.md docs/recipes.md DESTINATION ${VELMAR_DOC_DIR})
install(DIRECTORY docs/schema samples DESTINATION ${VELMAR_DOC_DIR})
install(FILES ${PROJECT_BINARY_DIR}/VelmarMetaInfo.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
