# Run by cpack when the packages are made. That of the debugging symbols bears the hour at which it was packed, and in its
# list of sums the folder, so it is packed once more.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  if(package MATCHES "\\.ddeb$" AND DEFINED ENV{SOURCE_DATE_EPOCH})
    set(unpacked ${package}.unpacked)
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${unpacked}/DEBIAN/md5sums sums)
    string(REGEX REPLACE "  [^\n]*-dbgsym/" "  " sums "${sums}")
    file(WRITE ${unpacked}/DEBIAN/md5sums "${sums}")
    execute_process(COMMAND dpkg-deb --root-owner-group --threads-max=1 --build ${unpacked} ${package}
      OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${unpacked})
  endif()
endforeach()
