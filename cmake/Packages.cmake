# The packages that cpack makes: tools/package says with which options they are built. The same source makes the same
# bytes wherever it lies, if SOURCE_DATE_EPOCH is set.
set(CPACK_PACKAGE_NAME nimb-chat)
set(CPACK_PACKAGE_VENDOR "The NIMB-Chat developers")
set(CPACK_PACKAGE_CONTACT "The NIMB-Chat developers <packages@nimb-chat.github.io>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "instant messenger for the local network that needs no server")
set(CPACK_PACKAGE_DESCRIPTION
"NIMB-Chat finds whoever else runs it on the same network and talks to them
directly: messages with live typing, conferences, files and folders of any
size, messages that wait for somebody who is away, and a history that can be
searched. There is no server and no account.
.
Nothing is encrypted: it is meant for a network that is trusted.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_SET_DESTDIR ON) # the profile of ufw goes to /etc
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/StagedPackage.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/MadePackage.cmake)

set(made ${CMAKE_BINARY_DIR}/packaging)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-color-emoji, qt6-translations-l10n, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "hunspell-dictionary, smbclient")
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/conffiles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE 1)
set(CPACK_RPM_PACKAGE_LICENSE MIT)
set(CPACK_RPM_PACKAGE_RELOCATABLE OFF)
set(CPACK_RPM_PACKAGE_GROUP Applications/Internet)
set(CPACK_RPM_PACKAGE_URL ${PROJECT_HOMEPAGE_URL})
set(CPACK_RPM_COMPRESSION_TYPE xz)
set(CPACK_RPM_USER_FILELIST "%config(noreplace) /etc/ufw/applications.d/nimb-chat")
set(CPACK_RPM_SPEC_MORE_DEFINE
"%define use_source_date_epoch_as_buildtime 1
%define clamp_mtime_to_source_date_epoch 1
%define _buildhost localhost
%define _build_id_links none
%define __os_install_post %{nil}")
# Folders of the system's, which this package does not own.
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
  /etc/ufw /etc/ufw/applications.d /usr/lib/firewalld /usr/lib/firewalld/services
  /usr/share/applications /usr/share/metainfo /usr/share/icons /usr/share/icons/hicolor
  /usr/share/bash-completion /usr/share/bash-completion/completions /usr/share/zsh /usr/share/zsh/site-functions
  /usr/share/lintian /usr/share/lintian/overrides)
foreach(size 16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256 512x512 scalable symbolic)
  list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
    /usr/share/icons/hicolor/${size} /usr/share/icons/hicolor/${size}/apps)
endforeach()

# What Debian's packages have in their folder of documents.
execute_process(COMMAND date --utc --rfc-email --date ${NIMB_RELEASE_DATE} OUTPUT_VARIABLE NIMB_RELEASE_RFC_DATE
  OUTPUT_STRIP_TRAILING_WHITESPACE)
file(READ ${PROJECT_SOURCE_DIR}/LICENSE NIMB_LICENSE)
string(REGEX REPLACE "^MIT License\n\n[^\n]*\n\n" "" NIMB_LICENSE "${NIMB_LICENSE}")
string(STRIP "${NIMB_LICENSE}" NIMB_LICENSE)
string(REGEX REPLACE "\n\n" "\n.\n" NIMB_LICENSE "${NIMB_LICENSE}")
string(REGEX REPLACE "\n" "\n " NIMB_LICENSE "${NIMB_LICENSE}")
configure_file(packaging/debian/copyright.in ${made}/copyright @ONLY)
configure_file(packaging/debian/changelog.in ${made}/changelog.Debian @ONLY)
install(FILES ${made}/copyright CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(EXISTS /etc/debian_version)
  install(FILES ${made}/changelog.Debian DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(FILES packaging/debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME nimb-chat)
endif()
include(CPack)
