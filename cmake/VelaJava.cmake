# The JDK: javac and jar for the Java class, jni.h for the native entry.
find_package(Java 11 REQUIRED COMPONENTS Development Runtime)

# FindJNI does not search the versioned Debian JDK directories; without
# JAVA_HOME, take the JDK that the javac just found belongs to.
if(NOT JAVA_HOME AND NOT DEFINED ENV{JAVA_HOME})
  get_filename_component(_vela_javac "${Java_JAVAC_EXECUTABLE}" REALPATH)
  get_filename_component(_vela_jdk_bin "${_vela_javac}" DIRECTORY)
  get_filename_component(JAVA_HOME "${_vela_jdk_bin}" DIRECTORY)
endif()
# Only jni.h and the JVM (for the tests) are used: asking for no components would
# also demand AWT, which a headless JDK does not have.
find_package(JNI REQUIRED COMPONENTS JVM)

# Only the headers: the library is loaded by a JVM, it never links one.
target_link_libraries(vela_objects PUBLIC JNI::JNI)
