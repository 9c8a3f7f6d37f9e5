# Renders the drawings of res/art: art/ is linked into the program, Icons/ goes beside it.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

file(GLOB_RECURSE artDrawings CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/res/art/*.svg)
set(ARTWORK_STAMP ${CMAKE_BINARY_DIR}/art/stamp)
add_custom_command(OUTPUT ${ARTWORK_STAMP}
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/artwork.py ${CMAKE_BINARY_DIR}
    COMMAND ${CMAKE_COMMAND} -E touch ${ARTWORK_STAMP}
    DEPENDS ${CMAKE_SOURCE_DIR}/tools/artwork.py ${artDrawings}
    COMMENT "Rendering the artwork"
    VERBATIM)
