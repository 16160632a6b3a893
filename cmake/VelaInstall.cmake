# `cmake --install`: the library, its header, the `vela` tool and its man page,
# the demo-voice script, the jar (see java/), a CMake package giving
# vela::vela, vela.pc for pkg-config, and the Python module.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(VELA_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/vela)
set(VELA_INSTALL_JAVADIR ${CMAKE_INSTALL_DATADIR}/java)

install(TARGETS vela_library EXPORT velaTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS vela RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# The library's SONAME is libvela.so.${PROJECT_VERSION_MAJOR}; the unversioned
# libvela.so link is for building hosts (libvela-dev).

# vela(1), made from `vela --help` by help2man: the two cannot drift apart.
find_program(VELA_HELP2MAN help2man REQUIRED)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/vela.1
  COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8
          ${VELA_HELP2MAN} --no-info --locale=C.UTF-8
          --name "speak numbers, amounts, dates and times as voice-prompt names"
          --include ${PROJECT_SOURCE_DIR}/tools/vela.h2m
          --output ${PROJECT_BINARY_DIR}/vela.1 $<TARGET_FILE:vela>
  DEPENDS vela ${PROJECT_SOURCE_DIR}/tools/vela.h2m
  COMMENT "Making vela.1 from vela --help")
add_custom_target(vela_man ALL DEPENDS ${PROJECT_BINARY_DIR}/vela.1)
install(FILES ${PROJECT_BINARY_DIR}/vela.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(PROGRAMS ${PROJECT_SOURCE_DIR}/scripts/demo-voice.sh DESTINATION ${CMAKE_INSTALL_DATADIR}/vela)
install(FILES ${PROJECT_SOURCE_DIR}/include/vela/vela.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vela)

install(EXPORT velaTargets NAMESPACE vela:: DESTINATION ${VELA_INSTALL_CMAKEDIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/velaConfig.cmake.in
  ${PROJECT_BINARY_DIR}/velaConfig.cmake
  INSTALL_DESTINATION ${VELA_INSTALL_CMAKEDIR}
  PATH_VARS CMAKE_INSTALL_INCLUDEDIR)
# Before 1.0 a minor release may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/velaConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/velaConfig.cmake ${PROJECT_BINARY_DIR}/velaConfigVersion.cmake
  DESTINATION ${VELA_INSTALL_CMAKEDIR})

# The Python module goes where Debian's python3 looks for a prefix's modules
# (found without PYTHONPATH for /usr and /usr/local), with a note of where the
# library lies relative to it.
set(VELA_INSTALL_PYTHONDIR lib/python3/dist-packages CACHE STRING
  "Where `cmake --install` puts the Python module, relative to the prefix")
install(FILES ${PROJECT_SOURCE_DIR}/python/vela/__init__.py DESTINATION ${VELA_INSTALL_PYTHONDIR}/vela)
file(RELATIVE_PATH VELA_PYTHON_TO_LIBRARY /prefix/${VELA_INSTALL_PYTHONDIR}/vela
  /prefix/${CMAKE_INSTALL_LIBDIR}/libvela.so.${PROJECT_VERSION_MAJOR})
file(WRITE ${PROJECT_BINARY_DIR}/python/_installed.py
  "# Written by `cmake --install`: the library, relative to this package.\nLIBRARY = \"${VELA_PYTHON_TO_LIBRARY}\"\n")
install(FILES ${PROJECT_BINARY_DIR}/python/_installed.py DESTINATION ${VELA_INSTALL_PYTHONDIR}/vela)

# vela.pc finds its prefix from its own place, so an installed tree can move
# (and `cmake --install --prefix` works whatever prefix was configured).
file(RELATIVE_PATH VELA_PC_RELATIVE_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" VELA_PC_RELATIVE_PREFIX "${VELA_PC_RELATIVE_PREFIX}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/vela.pc.in ${PROJECT_BINARY_DIR}/vela.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vela.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The install test: installs this build into a prefix under the build tree and
# builds and runs a C consumer (pkg-config) and a CMake consumer (find_package).
if(VELA_BUILD_TESTS)
  set(_vela_consumer_flags "")
  if(VELA_SANITIZE)
    # The installed library needs the sanitizer runtimes in its consumers too.
    set(_vela_consumer_flags "-fsanitize=address,undefined")
  endif()
  set(_vela_jvm_check "")
  if(TARGET vela_jvm_tests)
    get_target_property(_vela_jvm_check vela_jvm_tests JAR_FILE)
  endif()
  add_test(NAME install.consumers
    COMMAND bash ${PROJECT_SOURCE_DIR}/tests/install/install_test.sh
      ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR}/tests/install ${CMAKE_INSTALL_LIBDIR}
      ${CMAKE_C_COMPILER} ${CMAKE_CXX_COMPILER} "${_vela_consumer_flags}" "${_vela_jvm_check}")
  set_tests_properties(install.consumers PROPERTIES TIMEOUT 120)
endif()
