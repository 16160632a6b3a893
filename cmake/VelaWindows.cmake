# The Windows DLL, cross-built with mingw-w64 (toolchain files beside this one).
# Boost and the JNI are header-only here, so the build machine's Debian headers
# serve: only the boost/ directory and the JDK's jni.h are put on the include
# path (never the whole /usr/include), and jni.h finds the project's own
# Windows jni_md.h instead of the Linux one.

# Boost::headers: a directory holding nothing but a link to the build machine's boost/.
find_path(VELA_BOOST_ROOT boost/version.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(NOT VELA_BOOST_ROOT)
  message(FATAL_ERROR "vela: Boost headers not found (Debian package libboost1.81-dev)")
endif()
file(STRINGS ${VELA_BOOST_ROOT}/boost/version.hpp _vela_boost_version REGEX "define BOOST_VERSION ")
string(REGEX MATCH "[0-9]+" _vela_boost_version "${_vela_boost_version}")
if(_vela_boost_version LESS 108100)
  message(FATAL_ERROR "vela: Boost ${_vela_boost_version} found, 1.81 or later needed")
endif()
set(_vela_boost_shim ${PROJECT_BINARY_DIR}/boost-headers)
file(MAKE_DIRECTORY ${_vela_boost_shim})
file(CREATE_LINK ${VELA_BOOST_ROOT}/boost ${_vela_boost_shim}/boost SYMBOLIC)
add_library(Boost::headers INTERFACE IMPORTED)
# Boost.Regex classifies bytes with the C++ locale traits, as on Linux, so the
# classic locale the rules imbue decides the classes, never the Windows user
# locale (the default of Boost.Regex on Windows, though not with gcc).
set_target_properties(Boost::headers PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES ${_vela_boost_shim}
  INTERFACE_COMPILE_DEFINITIONS BOOST_REGEX_USE_CPP_LOCALE)

# JNI::JNI: the JDK's platform-independent jni.h and our Windows jni_md.h.
if(DEFINED ENV{JAVA_HOME})
  set(_vela_jdk_hint $ENV{JAVA_HOME}/include)
else()
  find_program(_vela_javac javac NO_CMAKE_FIND_ROOT_PATH)
  if(_vela_javac)
    get_filename_component(_vela_javac "${_vela_javac}" REALPATH)
    get_filename_component(_vela_jdk_hint "${_vela_javac}/../../include" ABSOLUTE)
  endif()
endif()
find_path(VELA_JNI_INCLUDE jni.h PATHS ${_vela_jdk_hint} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(NOT VELA_JNI_INCLUDE)
  message(FATAL_ERROR "vela: jni.h not found (Debian package openjdk-17-jdk-headless)")
endif()
add_library(JNI::JNI INTERFACE IMPORTED)
set_target_properties(JNI::JNI PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES "${CMAKE_CURRENT_LIST_DIR}/windows;${VELA_JNI_INCLUDE}")

# Called once the library target exists: vela.dll with undecorated exports (the
# JNI entry is stdcall on i686: --kill-at drops its @20), the C++ runtime and
# winpthread linked in, libvela.dll.a as import library; and the test hosts.
function(vela_windows_dll target)
  target_link_libraries(vela_objects PUBLIC JNI::JNI)
  target_compile_definitions(vela_objects PRIVATE VELA_BUILDING_DLL)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME vela PREFIX "" IMPORT_PREFIX "lib" IMPORT_SUFFIX ".dll.a")
  target_link_options(${target} PRIVATE -static -Wl,--kill-at -Wl,--no-undefined)

  include(GNUInstallDirs)
  install(TARGETS ${target}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/include/vela/vela.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vela)

  # Loads the DLL by file name and runs the request table (tests/windows).
  add_executable(vela_windows_host ${PROJECT_SOURCE_DIR}/tests/windows/host.cpp)
  target_include_directories(vela_windows_host PRIVATE ${PROJECT_SOURCE_DIR}/tests ${PROJECT_SOURCE_DIR}/include)
  target_link_libraries(vela_windows_host PRIVATE JNI::JNI)
  target_link_options(vela_windows_host PRIVATE -static)
  # Links through the import library and the public header, as a C host would.
  add_executable(vela_windows_linked ${PROJECT_SOURCE_DIR}/tests/install/consumer.c)
  target_link_libraries(vela_windows_linked PRIVATE ${target})
  target_link_options(vela_windows_linked PRIVATE -static)
endfunction()
