# The install tree: library, public headers, error catalogue, CMake package and pkg-config file.
include(cmake/PublicHeaders.cmake)

set(ZEB_INSTALL_SHAREDIR ${CMAKE_INSTALL_DATADIR}/ZEBReportDocument)
set(ZEB_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZEBReportDocument)

install(TARGETS ZEBReportDocument EXPORT ZEBReportDocumentTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})

zeb_collect_public_headers(public_headers ${PROJECT_SOURCE_DIR}/src ZEBReportDocument.h)
foreach(header IN LISTS public_headers)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES src/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ZEBReportDocument/${folder})
endforeach()

install(DIRECTORY share/ DESTINATION ${ZEB_INSTALL_SHAREDIR} FILES_MATCHING PATTERN "*.xml")

install(EXPORT ZEBReportDocumentTargets
  NAMESPACE ZEBReportDocument::
  DESTINATION ${ZEB_INSTALL_CMAKEDIR})
configure_package_config_file(cmake/ZEBReportDocumentConfig.cmake.in
  ${PROJECT_BINARY_DIR}/ZEBReportDocumentConfig.cmake
  INSTALL_DESTINATION ${ZEB_INSTALL_CMAKEDIR}
  PATH_VARS ZEB_INSTALL_SHAREDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZEBReportDocumentConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/ZEBReportDocumentConfig.cmake
  ${PROJECT_BINARY_DIR}/ZEBReportDocumentConfigVersion.cmake
  DESTINATION ${ZEB_INSTALL_CMAKEDIR})

# The pkg-config file finds its folder itself, so that an install tree can be moved.
set(ZEB_PC_CFLAGS "")
if(NOT BUILD_SHARED_LIBS)
  set(ZEB_PC_CFLAGS " -DZEB_STATIC")
endif()
file(RELATIVE_PATH ZEB_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file(cmake/ZEBReportDocument.pc.in ${PROJECT_BINARY_DIR}/ZEBReportDocument.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ZEBReportDocument.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
