# Renders one drawing: cmake -DRSVG_CONVERT=PROGRAM -DDRAWING=FILE -DOUTPUT=PREFIX -DSIZES="16;24" -P RenderPicture.cmake
# writes PREFIX-16.png and PREFIX-24.png.
get_filename_component(folder ${OUTPUT} DIRECTORY)
file(MAKE_DIRECTORY ${folder})
foreach(size IN LISTS SIZES)
  execute_process(COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${OUTPUT}-${size}.png ${DRAWING}
    RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${DRAWING} was not rendered: ${status}")
  endif()
endforeach()
