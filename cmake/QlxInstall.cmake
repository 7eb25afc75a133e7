# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# What "cmake --install" puts where: the library, its headers, the CMake package, the pkg-config file,
# and the link by which Qt Designer finds the library.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QLxControls)
install(TARGETS QLxControls EXPORT QLxControlsTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${QLX_PUBLIC_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/QLxControls)
install(EXPORT QLxControlsTargets NAMESPACE QLx:: DESTINATION ${package_dir})

configure_package_config_file(packaging/QLxControlsConfig.cmake.in
  ${PROJECT_BINARY_DIR}/packaging/QLxControlsConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/QLxControlsConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/packaging/QLxControlsConfig.cmake
              ${PROJECT_BINARY_DIR}/packaging/QLxControlsConfigVersion.cmake
        DESTINATION ${package_dir})

# The prefix is known for certain only when installing: "cmake --install" may be given another one.
# An absolute directory setting is kept as it is, a relative one follows the prefix.
foreach(kind LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}}")
    set(PC_${kind} "${CMAKE_INSTALL_${kind}}")
  else()
    set(PC_${kind} "\${prefix}/${CMAKE_INSTALL_${kind}}")
  endif()
endforeach()
set(PC_PREFIX "@PC_PREFIX@")
configure_file(packaging/QLxControls.pc.in ${PROJECT_BINARY_DIR}/packaging/QLxControls.pc.in @ONLY)
install(CODE "
  set(PC_PREFIX \"\${CMAKE_INSTALL_PREFIX}\")
  configure_file(\"${PROJECT_BINARY_DIR}/packaging/QLxControls.pc.in\"
                 \"${PROJECT_BINARY_DIR}/packaging/QLxControls.pc\" @ONLY)")
install(FILES ${PROJECT_BINARY_DIR}/packaging/QLxControls.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(plugin_dir "${CMAKE_INSTALL_LIBDIR}/qt5/plugins/designer")
else()
  set(plugin_dir "\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/qt5/plugins/designer")
endif()
install(CODE "
  set(plugin_dir \"\$ENV{DESTDIR}${plugin_dir}\")
  file(MAKE_DIRECTORY \"\${plugin_dir}\")
  file(CREATE_LINK ../../../libQLxControls.so \"\${plugin_dir}/libQLxControls.so\" SYMBOLIC)
  message(STATUS \"Installing: \${plugin_dir}/libQLxControls.so\")")
