# Run by cpack when everything lies where it will be packed: presses what Debian wants pressed, and gives all files the
# date of the source.
set(documents ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/nimb-chat)
if(CPACK_GENERATOR STREQUAL "DEB")
  file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
  file(GLOB pressed ${documents}/changelog ${documents}/changelog.Debian ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/man1/*.1)
  execute_process(COMMAND gzip --best --no-name ${pressed} COMMAND_ERROR_IS_FATAL ANY)
else()
  # Debian's generator keeps the debugging symbols apart by itself.
  execute_process(COMMAND strip ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/nimb-chat ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/nimb-chatctl
    COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${documents}/changelog.Debian)
  file(REMOVE_RECURSE ${CPACK_TEMPORARY_DIRECTORY}/usr/share/lintian)
endif()
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
