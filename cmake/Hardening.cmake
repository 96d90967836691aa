# What the compiler and the linker can do so that a fault in reading a datagram stays a crash and becomes nothing worse.
# Called in a folder, for all that is compiled there from then on. Not while debugging, where it is in the way, nor under
# sanitizers, which see more.
function(nimb_harden)
  if(CMAKE_BUILD_TYPE STREQUAL "Debug" OR NIMB_SANITIZE OR NIMB_FUZZ OR NIMB_COVERAGE OR MSVC)
    return()
  endif()
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  include(CheckLinkerFlag)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON PARENT_SCOPE)
  # A distribution may have set a lower level for everything.
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
  set(flags -fstack-protector-strong)
  # For Windows the linker gives random places, and no code where data is, unasked. What these checks call is a library
  # of the compiler's there, linked in so that no other DLL has to be shipped.
  if(MINGW)
    target_link_libraries(nimb_build INTERFACE -l:libssp.a)
  else()
    list(APPEND flags -fstack-clash-protection -fcf-protection)
  endif()
  foreach(flag ${flags})
    string(MAKE_C_IDENTIFIER "NIMB_HAS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      add_compile_options(${flag})
    endif()
  endforeach()
  check_linker_flag(CXX -Wl,-z,relro,-z,now NIMB_HAS_RELRO)
  if(NIMB_HAS_RELRO)
    add_link_options(-Wl,-z,relro,-z,now)
  endif()
endfunction()
