# Installs the libraries with their headers, the CMake package VelmarMetaInfo, pkg-config files and the
# documents for users. The platform and the command have install rules of their own.

include(CMakePackageConfigHelpers)

install(TARGETS VelmarMetaInfo VelmarTesting
  EXPORT VelmarMetaInfoTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

if(VELMAR_C)
  install(TARGETS velmar_c
    EXPORT VelmarMetaInfoTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
  install(FILES bindings/c/velmar.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
endif()

set(VELMAR_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VelmarMetaInfo)
install(EXPORT VelmarMetaInfoTargets NAMESPACE Velmar:: DESTINATION ${VELMAR_PACKAGE_DIR}
  COMPONENT development)
configure_package_config_file(cmake/VelmarMetaInfoConfig.cmake.in VelmarMetaInfoConfig.cmake
  INSTALL_DESTINATION ${VELMAR_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelmarMetaInfoConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/VelmarMetaInfoConfig.cmake
  ${PROJECT_BINARY_DIR}/VelmarMetaInfoConfigVersion.cmake
  DESTINATION ${VELMAR_PACKAGE_DIR} COMPONENT development)

# The package file finds the prefix from its own place, so an installed tree may be moved.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(VELMAR_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
  set(VELMAR_PC_LIBDIR ${CMAKE_INSTALL_LIBDIR})
else()
  file(RELATIVE_PATH VELMAR_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
  set(VELMAR_PC_PREFIX "\${pcfiledir}/${VELMAR_PC_PREFIX}")
  string(REGEX REPLACE "/$" "" VELMAR_PC_PREFIX "${VELMAR_PC_PREFIX}")
  set(VELMAR_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(VELMAR_PC_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})
else()
  set(VELMAR_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
if(VELMAR_LIBRARY_TYPE STREQUAL "STATIC")
  set(VELMAR_PC_DEFINES "-DVELMAR_STATIC ")
endif()
configure_file(cmake/VelmarMetaInfo.pc.in VelmarMetaInfo.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/VelmarMetaInfo.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(VELMAR_C)
  configure_file(cmake/velmar.pc.in velmar.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/velmar.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endif()

# The Python module, where Debian's Python finds it if the prefix is /usr; and the script that gdb loads
# with the library, by the path of its file.
set(VELMAR_PYTHON_DIR lib/python3/dist-packages CACHE PATH "where the Python module is installed")
if(VELMAR_C AND VELMAR_LIBRARY_TYPE STREQUAL "SHARED")
  install(DIRECTORY bindings/python/velmar DESTINATION ${VELMAR_PYTHON_DIR} COMPONENT python
    FILES_MATCHING PATTERN "*.py" PATTERN py.typed PATTERN __pycache__ EXCLUDE)
  # The prefix is known when it is installed.
  set(VELMAR_GDB_DIR "\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
  if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(VELMAR_GDB_DIR ${CMAKE_INSTALL_LIBDIR})
  endif()
  install(FILES bindings/gdb/velmar-gdb.py
    DESTINATION "${CMAKE_INSTALL_DATADIR}/gdb/auto-load${VELMAR_GDB_DIR}"
    RENAME $<TARGET_FILE_NAME:VelmarMetaInfo>-gdb.py COMPONENT runtime)
endif()

# Documents for users, and the samples that their examples name.
set(VELMAR_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/velmar)
install(FILES README.md CHANGELOG.md DESTINATION ${VELMAR_DOC_DIR} COMPONENT documents)
install(DIRECTORY docs samples DESTINATION ${VELMAR_DOC_DIR} COMPONENT documents)
install(DIRECTORY examples/agent DESTINATION ${VELMAR_DOC_DIR}/examples COMPONENT documents)
install(FILES examples/catch-misuse.cpp DESTINATION ${VELMAR_DOC_DIR}/examples COMPONENT documents)

# Removes what the last installation from this build folder wrote.
if(PROJECT_IS_TOP_LEVEL)
  configure_file(cmake/uninstall.cmake.in uninstall.cmake @ONLY)
  add_custom_target(uninstall
    COMMAND ${CMAKE_COMMAND} -P ${PROJECT_BINARY_DIR}/uninstall.cmake VERBATIM)
endif()
