# generate_fakes(OUT_VAR include_folder): writes the test doubles of the host interfaces below include_folder at build
# time, as tests/support/FakeHost.h and so on, and gives their sources in OUT_VAR.
function(generate_fakes out_var include_folder)
  set(interfaces ${CMAKE_SOURCE_DIR}/livecontrol/interface)
  set(generator ${CMAKE_SOURCE_DIR}/cmake/generate_fakes.py)
  set(folder ${include_folder}/tests/support)
  file(GLOB headers CONFIGURE_DEPENDS ${interfaces}/*.h)
  foreach(name FakeHost FakeDocument operations)
    list(APPEND outputs ${folder}/${name}.h ${folder}/${name}.cpp)
  endforeach()
  add_custom_command(
    OUTPUT ${outputs}
    COMMAND ${Python3_EXECUTABLE} ${generator} ${interfaces} ${folder}
    DEPENDS ${generator} ${headers}
    COMMENT "Writing the test doubles of the host interfaces"
    VERBATIM)
  set(${out_var} ${outputs} PARENT_SCOPE)
endfunction()
