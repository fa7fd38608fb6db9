# Installation: the libraries, the headers, and the packages by which CMake and pkg-config find them. All paths are
# relative to the installed files, so that the prefix may be moved.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kvri)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS kvri kvrcore EXPORT kvri-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(library ${KVRI_WIDE_LIBRARIES})
  string(REPLACE "kvri_" "x86-64-" level ${library})
  install(TARGETS ${library} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/${level})
endforeach()
install(FILES ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/libkvri.so DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)

install(EXPORT kvri-targets NAMESPACE kvri:: DESTINATION ${package_dir})
configure_package_config_file(cmake/kvri-config.cmake.in ${CMAKE_BINARY_DIR}/package/kvri-config.cmake
  INSTALL_DESTINATION ${package_dir})
# The file name of the library ends in major and minor version: another minor version is another library.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/kvri-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/package/kvri-config.cmake ${CMAKE_BINARY_DIR}/package/kvri-config-version.cmake
  DESTINATION ${package_dir})

file(RELATIVE_PATH KVRI_PREFIX_FROM_PKGCONFIG /${pkgconfig_dir} /)
configure_file(cmake/kvri.pc.in ${CMAKE_BINARY_DIR}/package/kvri.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/package/kvri.pc DESTINATION ${pkgconfig_dir})
