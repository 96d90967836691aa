# What a desktop, a shell and a firewall find of the program once it is installed.
#
# Everything goes below the prefix; where that is /usr, the configuration goes to /etc.

set(made ${CMAKE_BINARY_DIR}/packaging)
foreach(kind desktop metainfo.xml)
  configure_file(packaging/nimb-chat.${kind}.in ${made}/${NIMB_APPLICATION_ID}.${kind} @ONLY)
endforeach()
foreach(page nimb-chat nimb-chatctl)
  configure_file(packaging/${page}.1.in ${made}/${page}.1 @ONLY)
endforeach()
install(FILES ${made}/${NIMB_APPLICATION_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${made}/${NIMB_APPLICATION_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${made}/nimb-chat.1 ${made}/nimb-chatctl.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

install(FILES packaging/completion/nimb-chatctl.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME nimb-chatctl)
install(FILES packaging/completion/_nimb-chatctl DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)

# firewalld reads its services below /usr/lib alone, whatever the libraries' folder is called.
install(FILES packaging/firewall/nimb-chat.xml DESTINATION lib/firewalld/services)
# The prefix may be another than that of the configuration: a package has its own.
install(CODE "set(profile \"${PROJECT_SOURCE_DIR}/packaging/firewall/nimb-chat.ufw\")")
install(CODE [[
  set(configuration ${CMAKE_INSTALL_PREFIX}/etc)
  if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(configuration /etc)
  endif()
  file(INSTALL ${profile} DESTINATION ${configuration}/ufw/applications.d RENAME nimb-chat)
]])

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES resources/pictures/nimb-chat.svg DESTINATION ${icons}/scalable/apps RENAME ${NIMB_APPLICATION_ID}.svg)
install(FILES packaging/nimb-chat-symbolic.svg DESTINATION ${icons}/symbolic/apps
  RENAME ${NIMB_APPLICATION_ID}-symbolic.svg)
foreach(size 16 22 24 32 48 64 128 256 512)
  set(icon ${made}/icon-${size}.png)
  add_custom_command(OUTPUT ${icon}
    COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${icon} ${PROJECT_SOURCE_DIR}/resources/pictures/nimb-chat.svg
    DEPENDS resources/pictures/nimb-chat.svg VERBATIM)
  list(APPEND rendered_icons ${icon})
  install(FILES ${icon} DESTINATION ${icons}/${size}x${size}/apps RENAME ${NIMB_APPLICATION_ID}.png)
endforeach()
add_custom_target(icons ALL DEPENDS ${rendered_icons})
