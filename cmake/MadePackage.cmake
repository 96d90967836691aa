# Run by cpack when the packages are made. Their files with debugging symbols bear the hour at which they were packed, so
# they are packed once more with the date of the source.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  if(package MATCHES "\\.ddeb$" AND DEFINED ENV{SOURCE_DATE_EPOCH})
    set(unpacked ${package}.unpacked)
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND dpkg-deb --root-owner-group --threads-max=1 --build ${unpacked} ${package}
      OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${unpacked})
  endif()
endforeach()
