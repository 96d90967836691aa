# One interface target carries the warnings and the instrumentation of the whole build.
add_library(nimb_build INTERFACE)
# Errors where we know what the compiler says, so that a newer one still builds what was written before it: GCC of
# Debian 12 and 13, and clang of Debian 12.
set(NIMB_WARNINGS_ARE_ERRORS OFF)
if(NIMB_WERROR AND "${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION}" MATCHES "^(GNU 1[24]|Clang 14)\\.")
  set(NIMB_WARNINGS_ARE_ERRORS ON)
endif()
if(MSVC)
  target_compile_options(nimb_build INTERFACE /W4 /utf-8)
else()
  target_compile_options(nimb_build INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast
    $<$<BOOL:${NIMB_WARNINGS_ARE_ERRORS}>:-Werror>)
  # GCC 12 sees overlapping copies in the concatenation of a literal and a std::string, where there are none (GCC bug
  # 105651, mended in 13).
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(nimb_build INTERFACE -Wno-restrict)
  endif()
endif()
if(NIMB_SANITIZE)
  target_compile_options(nimb_build INTERFACE -fsanitize=${NIMB_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(nimb_build INTERFACE -fsanitize=${NIMB_SANITIZE})
  if(NIMB_SANITIZE MATCHES "undefined")
    target_compile_options(nimb_build INTERFACE -fno-sanitize-recover=undefined)
  endif()
endif()
if(NIMB_COVERAGE)
  target_compile_options(nimb_build INTERFACE --coverage)
  target_link_options(nimb_build INTERFACE --coverage)
endif()
target_compile_definitions(nimb_build INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_JAVA_STYLE_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
