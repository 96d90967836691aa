# The emoji with their names in the languages of cmake/emoji_data.py, from what Unicode publishes and distributions have as
# packages. Where that is not found the program is built without a picker of emoji.
#
# nimb_add_emoji(<target> <source>): puts them into the target as :/emoji/*.txt and defines NIMB_EMOJI for the source that
# reads them, which has to call Q_INIT_RESOURCE(emoji).
option(NIMB_EMOJI "Offer emoji to choose from, where Unicode's data is found" ON)

set(NIMB_EMOJI_LANGUAGES en de fr es it pl)
if(NIMB_EMOJI)
  find_path(NIMB_CLDR_FOLDER annotations/en.xml
    PATHS /usr/share/unicode/cldr/common /usr/share/unicode/cldr /usr/local/share/unicode/cldr/common NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  find_file(NIMB_EMOJI_ORDER emoji-test.txt
    PATHS /usr/share/unicode/emoji /usr/share/unicode /usr/local/share/unicode/emoji NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  find_package(Python3 COMPONENTS Interpreter QUIET)
  set(NIMB_EMOJI_FOUND ON)
  if(NOT NIMB_CLDR_FOLDER OR NOT NIMB_EMOJI_ORDER OR NOT Python3_Interpreter_FOUND)
    set(NIMB_EMOJI_FOUND OFF)
  endif()
  foreach(language IN LISTS NIMB_EMOJI_LANGUAGES)
    foreach(part annotations annotationsDerived)
      list(APPEND NIMB_EMOJI_SOURCES ${NIMB_CLDR_FOLDER}/${part}/${language}.xml)
      if(NIMB_EMOJI_FOUND AND NOT EXISTS ${NIMB_CLDR_FOLDER}/${part}/${language}.xml)
        set(NIMB_EMOJI_FOUND OFF)
      endif()
    endforeach()
  endforeach()
endif()
if(NIMB_EMOJI_FOUND)
  message(STATUS "Emoji: found, ${NIMB_CLDR_FOLDER} and ${NIMB_EMOJI_ORDER}")
elseif(NIMB_EMOJI)
  message(STATUS "Emoji: not found, so none will be offered: Debian's packages unicode-cldr-core and unicode-data, Fedora's "
    "cldr-emoji-annotation and unicode-emoji, Arch's unicode-cldr-annotations and unicode-emoji, and Python")
else()
  message(STATUS "Emoji: switched off")
endif()

function(nimb_add_emoji target source)
  if(NOT NIMB_EMOJI_FOUND)
    return()
  endif()
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/emoji)
  set(list "<RCC><qresource prefix=\"/emoji\">\n")
  foreach(name order ${NIMB_EMOJI_LANGUAGES})
    list(APPEND files ${folder}/${name}.txt)
    string(APPEND list "<file>${name}.txt</file>\n")
  endforeach()
  string(APPEND list "</qresource></RCC>\n")
  set(script ${PROJECT_SOURCE_DIR}/cmake/emoji_data.py)
  add_custom_command(OUTPUT ${files}
    COMMAND Python3::Interpreter ${script} --annotations ${NIMB_CLDR_FOLDER} --order ${NIMB_EMOJI_ORDER} --output ${folder}
    DEPENDS ${script} ${NIMB_EMOJI_ORDER} ${NIMB_EMOJI_SOURCES}
    COMMENT "Reading the names of emoji" VERBATIM)
  file(CONFIGURE OUTPUT ${folder}/emoji.qrc CONTENT "${list}" @ONLY)
  # By hand, as the pictures are; with zlib, which every Qt can read.
  set(code ${CMAKE_CURRENT_BINARY_DIR}/qrc_emoji.cpp)
  add_custom_command(OUTPUT ${code}
    COMMAND Qt6::rcc --name emoji --compress-algo zlib --compress 9 --threshold 30 --output ${code} ${folder}/emoji.qrc
    DEPENDS ${folder}/emoji.qrc ${files}
    COMMENT "Packing the emoji" VERBATIM)
  set_source_files_properties(${code} PROPERTIES SKIP_AUTOMOC ON SKIP_PRECOMPILE_HEADERS ON
    SKIP_UNITY_BUILD_INCLUSION ON)
  target_sources(${target} PRIVATE ${code})
  set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS NIMB_EMOJI)
endfunction()
