# The manual: docs/manual/*.md as plain web pages, made with cmark. Where that is not found the program is built without
# a manual, and its menu entry is grey.
#
# nimb_add_manual(<target>): makes the target nimb_manual, which <target> depends on. It puts the pages into the folder
# manual beside the program; they are installed among the documents.
option(NIMB_MANUAL "Make the manual, where cmark is found" ON)

set(NIMB_MANUAL_FOUND OFF)
if(NIMB_MANUAL)
  find_program(CMARK cmark)
endif()
if(NIMB_MANUAL AND CMARK)
  set(NIMB_MANUAL_FOUND ON)
  message(STATUS "Manual: made with ${CMARK}")
elseif(NIMB_MANUAL)
  message(STATUS "Manual: not made, for cmark is missing: Debian's, Fedora's and Arch's package cmark")
else()
  message(STATUS "Manual: switched off")
endif()

function(nimb_add_manual target)
  if(NOT NIMB_MANUAL_FOUND)
    return()
  endif()
  set(source ${PROJECT_SOURCE_DIR}/docs/manual)
  set(folder ${CMAKE_BINARY_DIR}/manual)
  set(script ${PROJECT_SOURCE_DIR}/cmake/ManualPage.cmake)
  set(template ${PROJECT_SOURCE_DIR}/cmake/manual_page.html.in)
  file(GLOB pages CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*.md)
  foreach(page IN LISTS pages)
    string(REGEX REPLACE "\\.md$" ".html" made ${page})
    add_custom_command(OUTPUT ${folder}/${made}
      COMMAND ${CMAKE_COMMAND} -DCMARK=${CMARK} -DPAGE=${source}/${page} -DTEMPLATE=${template}
        -DOUTPUT=${folder}/${made} -P ${script}
      DEPENDS ${source}/${page} ${template} ${script}
      COMMENT "Making the manual's page ${made}" VERBATIM)
    list(APPEND all ${folder}/${made})
  endforeach()
  file(GLOB others CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*.css ${source}/pictures/*.png)
  foreach(other IN LISTS others)
    add_custom_command(OUTPUT ${folder}/${other}
      COMMAND ${CMAKE_COMMAND} -E copy ${source}/${other} ${folder}/${other}
      DEPENDS ${source}/${other} VERBATIM)
    list(APPEND all ${folder}/${other})
  endforeach()
  add_custom_target(nimb_manual ALL DEPENDS ${all})
  add_dependencies(${target} nimb_manual)
  foreach(file IN LISTS all)
    file(RELATIVE_PATH name ${folder} ${file})
    get_filename_component(within manual/${name} DIRECTORY)
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DOCDIR}/${within})
  endforeach()
endfunction()
