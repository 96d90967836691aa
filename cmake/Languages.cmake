# The translations: resources/translations/*.ts as what the program reads, made with Qt's lrelease. Where that is not
# found the program is built in English alone.
#
# nimb_add_translations(<target>): makes the target nimb_translations, which <target> depends on. It puts the files into
# the folder translations beside the program; they are installed among its data.
option(NIMB_TRANSLATIONS "Build the translations, where Qt's lrelease is found" ON)

set(NIMB_TRANSLATIONS_FOUND OFF)
if(NIMB_TRANSLATIONS)
  set(tools_of_qt ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS})
  if(QT_HOST_PATH) # built for another system than this one
    list(APPEND tools_of_qt ${QT_HOST_PATH}/lib/qt6/bin)
  endif()
  find_program(LRELEASE NAMES lrelease lrelease-qt6 HINTS ${tools_of_qt} NO_DEFAULT_PATH)
  find_program(LRELEASE NAMES lrelease-qt6 lrelease6 lrelease)
  find_program(LUPDATE NAMES lupdate lupdate-qt6 HINTS ${tools_of_qt} NO_DEFAULT_PATH)
  find_program(LUPDATE NAMES lupdate-qt6 lupdate6 lupdate)
endif()
if(NIMB_TRANSLATIONS AND LRELEASE)
  set(NIMB_TRANSLATIONS_FOUND ON)
  message(STATUS "Translations: made with ${LRELEASE}")
elseif(NIMB_TRANSLATIONS)
  message(STATUS "Translations: not made, for lrelease is missing: Debian's package qt6-l10n-tools, Fedora's qt6-linguist, "
    "Arch's qt6-tools")
else()
  message(STATUS "Translations: switched off")
endif()

function(nimb_add_translations target)
  if(NOT NIMB_TRANSLATIONS_FOUND)
    return()
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/translations/*.ts)
  foreach(source IN LISTS sources)
    get_filename_component(name ${source} NAME_WE)
    set(made ${CMAKE_BINARY_DIR}/translations/${name}.qm)
    add_custom_command(OUTPUT ${made}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/translations
      COMMAND ${LRELEASE} -silent -removeidentical ${source} -qm ${made}
      DEPENDS ${source}
      COMMENT "Making the translation ${name}" VERBATIM)
    list(APPEND all ${made})
  endforeach()
  add_custom_target(nimb_translations ALL DEPENDS ${all})
  add_dependencies(${target} nimb_translations)
  install(FILES ${all} DESTINATION ${CMAKE_INSTALL_DATADIR}/nimb-chat/translations)
endfunction()
