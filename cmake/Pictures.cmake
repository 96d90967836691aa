# Renders the pictures of the program while it is built, so that it needs no SVG library and no plugin that reads one.
#
# nimb_add_pictures(<target>): each resources/pictures/<name>.svg is in the target as :/pictures/<name>-<pixels>.png, each
# masks/<name>.svg, of whose pixels only the alpha counts, as :/pictures/masks/<name>-<pixels>.png. The target's sources
# get the sizes as NIMB_PICTURE_SIZES. Whoever asks for them has to call Q_INIT_RESOURCE(pictures).

# What 16, 22, 24, 32, 48 and 64 logical pixels are at scales of 1, 1.25, 1.5, 1.75, 2, 2.5 and 3, and what window
# managers and trays ask for besides.
set(NIMB_PICTURE_SIZES 16 20 22 24 28 30 32 33 36 40 42 44 48 56 60 64 66 72 80 84 96 112 120 128 144 160 192 256)

find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(FATAL_ERROR "rsvg-convert renders the pictures and is missing: Debian's package librsvg2-bin, Fedora's "
    "librsvg2-tools, Arch's librsvg")
endif()

function(nimb_add_pictures target)
  set(source ${PROJECT_SOURCE_DIR}/resources/pictures)
  set(rendered ${CMAKE_CURRENT_BINARY_DIR}/pictures)
  file(GLOB_RECURSE drawings CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*.svg)
  set(list "<RCC><qresource prefix=\"/pictures\">\n")
  foreach(drawing IN LISTS drawings)
    string(REGEX REPLACE "\\.svg$" "" name ${drawing})
    set(files)
    foreach(size IN LISTS NIMB_PICTURE_SIZES)
      list(APPEND files ${rendered}/${name}-${size}.png)
      string(APPEND list "<file>${name}-${size}.png</file>\n")
    endforeach()
    add_custom_command(OUTPUT ${files}
      COMMAND ${CMAKE_COMMAND} -DRSVG_CONVERT=${RSVG_CONVERT} -DDRAWING=${source}/${drawing} -DOUTPUT=${rendered}/${name}
        "-DSIZES=${NIMB_PICTURE_SIZES}" -P ${PROJECT_SOURCE_DIR}/cmake/RenderPicture.cmake
      DEPENDS ${source}/${drawing} ${PROJECT_SOURCE_DIR}/cmake/RenderPicture.cmake
      COMMENT "Rendering ${drawing}" VERBATIM)
    list(APPEND all ${files})
  endforeach()
  string(APPEND list "</qresource></RCC>\n")
  file(CONFIGURE OUTPUT ${rendered}/pictures.qrc CONTENT "${list}" @ONLY)
  # By hand: the automatic way looks into the list for files that are there before anything is built.
  set(code ${CMAKE_CURRENT_BINARY_DIR}/qrc_pictures.cpp)
  add_custom_command(OUTPUT ${code}
    COMMAND Qt6::rcc --name pictures --no-compress --output ${code} ${rendered}/pictures.qrc
    DEPENDS ${rendered}/pictures.qrc ${all}
    COMMENT "Packing the pictures" VERBATIM)
  set_source_files_properties(${code} PROPERTIES SKIP_AUTOMOC ON SKIP_PRECOMPILE_HEADERS ON
    SKIP_UNITY_BUILD_INCLUSION ON)
  target_sources(${target} PRIVATE ${code})
  list(JOIN NIMB_PICTURE_SIZES , sizes)
  target_compile_definitions(${target} PRIVATE NIMB_PICTURE_SIZES=${sizes})
endfunction()
