# What Windows reads in a program beside its code: icon, version and manifest.
#
# nimb_describe_program(<target> <description>)

find_program(ICOTOOL icotool)
if(NOT ICOTOOL)
  message(FATAL_ERROR "icotool makes the icon and is missing: Debian's package icoutils")
endif()
enable_language(RC)

function(nimb_describe_program target NIMB_PROGRAM_DESCRIPTION)
  set(made ${CMAKE_BINARY_DIR}/packaging)
  set(NIMB_PROGRAM ${target})
  set(NIMB_ICON ${made}/nimb-chat.ico)
  set(NIMB_MANIFEST ${PROJECT_SOURCE_DIR}/packaging/windows/nimb-chat.exe.manifest)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${made}/${target}.rc @ONLY)
  set_source_files_properties(${made}/${target}.rc PROPERTIES OBJECT_DEPENDS "${NIMB_ICON};${NIMB_MANIFEST}")
  target_sources(${target} PRIVATE ${made}/${target}.rc)
  add_dependencies(${target} windows_icon)
endfunction()

set(icon ${CMAKE_BINARY_DIR}/packaging/nimb-chat.ico)
foreach(size 16 20 24 32 40 48 64 256)
  set(picture ${CMAKE_BINARY_DIR}/packaging/icon-${size}.png)
  add_custom_command(OUTPUT ${picture}
    COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture} ${PROJECT_SOURCE_DIR}/resources/pictures/nimb-chat.svg
    DEPENDS ${PROJECT_SOURCE_DIR}/resources/pictures/nimb-chat.svg VERBATIM)
  list(APPEND icon_pictures ${picture})
endforeach()
# Large ones as they are: nothing older than Windows Vista reads it.
list(GET icon_pictures -1 largest)
set(smaller ${icon_pictures})
list(POP_BACK smaller)
add_custom_command(OUTPUT ${icon} COMMAND ${ICOTOOL} --create --output ${icon} ${smaller} --raw=${largest}
  DEPENDS ${icon_pictures} VERBATIM)
add_custom_target(windows_icon DEPENDS ${icon})
