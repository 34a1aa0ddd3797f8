# SPDX-License-Identifier: MIT
# The program's icon, version and manifest.
enable_language(RC)
find_program(ICOTOOL icotool REQUIRED)
set(icon ${CMAKE_CURRENT_BINARY_DIR}/vorlund.ico)
set(icons ${PROJECT_SOURCE_DIR}/assets/icons/vorlund-)
add_custom_command(OUTPUT ${icon}
  COMMAND ${ICOTOOL} --create --output=${icon} --raw=${icons}256.png
          ${icons}48.png ${icons}32.png ${icons}24.png ${icons}16.png
  DEPENDS ${icons}256.png ${icons}48.png ${icons}32.png ${icons}24.png ${icons}16.png)
configure_file(${CMAKE_CURRENT_LIST_DIR}/vorlund.rc.in vorlund.rc @ONLY)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/vorlund.rc PROPERTIES
  OBJECT_DEPENDS "${icon};${CMAKE_CURRENT_LIST_DIR}/vorlund.manifest")
target_sources(vorlund PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/vorlund.rc)
