# bundle_script(OUTPUT file.js ENTRY main.js SOURCES ...): joins ES modules to one script that the pages' engine runs.
# The engine knows no modules and little beyond ES2015; the bundler lowers the syntax, not missing library methods.
find_program(ESBUILD esbuild PATHS ${CMAKE_SOURCE_DIR}/node_modules/.bin NO_DEFAULT_PATH REQUIRED)

# bundle_style(OUTPUT file.css ENTRY main.css SOURCES ...): the same of style sheets that the entry imports.
function(bundle_style)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUTPUT;ENTRY" "SOURCES")
  list(TRANSFORM arg_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  add_custom_command(
    OUTPUT ${arg_OUTPUT}
    COMMAND ${ESBUILD} ${CMAKE_CURRENT_SOURCE_DIR}/${arg_ENTRY} --bundle --target=safari10 --charset=utf8
            --log-level=warning --outfile=${arg_OUTPUT}
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${arg_ENTRY} ${arg_SOURCES}
    COMMENT "Bundling ${arg_ENTRY}"
    VERBATIM)
endfunction()

function(bundle_script)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUTPUT;ENTRY" "SOURCES")
  list(TRANSFORM arg_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  add_custom_command(
    OUTPUT ${arg_OUTPUT}
    COMMAND ${ESBUILD} ${CMAKE_CURRENT_SOURCE_DIR}/${arg_ENTRY} --bundle --format=iife --target=es2015 --charset=utf8
            --log-level=warning --outfile=${arg_OUTPUT}
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${arg_ENTRY} ${arg_SOURCES}
    COMMENT "Bundling ${arg_ENTRY}"
    VERBATIM)
endfunction()
