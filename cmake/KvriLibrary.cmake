# One kernel source, one shared library per processor level. The wide ones lie beneath the baseline under the same file
# name, where the dynamic loader looks first on processors that run them.

set(KVRI_SONAME kvriu8-8.2)
file(GLOB KVRI_SOURCES CONFIGURE_DEPENDS
  core/*.cpp datamove/*.cpp pointops/*.cpp filters/*.cpp geometry/*.cpp stats/*.cpp transforms/*.cpp)
file(GLOB KVRI_HEADERS CONFIGURE_DEPENDS include/kvri/*.h)

# What the headers declare is what the library exports: a declared name without a body fails the link.
set(KVRI_EXPORT_MAP ${CMAKE_BINARY_DIR}/kvri.map)
add_custom_command(OUTPUT ${KVRI_EXPORT_MAP}
  COMMAND ${CMAKE_COMMAND} -D OUTPUT=${KVRI_EXPORT_MAP} -D "HEADERS=${KVRI_HEADERS}"
          -P ${PROJECT_SOURCE_DIR}/cmake/ExportMap.cmake
  DEPENDS ${KVRI_HEADERS} cmake/ExportMap.cmake VERBATIM)
add_custom_target(kvri_export_map DEPENDS ${KVRI_EXPORT_MAP})

function(kvri_add_library target level)
  add_library(${target} SHARED ${KVRI_SOURCES})
  add_dependencies(${target} kvri_export_map)
  target_compile_options(${target} PRIVATE ${ARGN} $<$<CONFIG:Release>:-O3> -ffp-contract=off -fno-exceptions -fno-rtti
    -Wno-uninitialized -Wno-maybe-uninitialized)  # the compiler's own vector headers trip these
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR} INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(${target} PRIVATE kvrcore)
  target_link_options(${target} PRIVATE -Wl,-z,defs -Wl,--no-undefined-version -Wl,--gc-sections
    -Wl,--version-script=${KVRI_EXPORT_MAP})
  # The wide copies find libkvrcore.so two folders up.
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${KVRI_SONAME} LINK_DEPENDS ${KVRI_EXPORT_MAP}
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN:$ORIGIN/../..")
  if(NOT level STREQUAL base)
    set_target_properties(${target} PROPERTIES
      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/glibc-hwcaps/${level})
  else()
    add_custom_command(TARGET ${target} POST_BUILD
      COMMAND ${CMAKE_COMMAND} -E create_symlink $<TARGET_FILE_NAME:${target}> libkvri.so
      WORKING_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
  endif()
endfunction()

# The loader's code must run on processors that lack the kernels' instructions.
set_source_files_properties(core/load.cpp PROPERTIES COMPILE_OPTIONS "-march=x86-64;-O2")
