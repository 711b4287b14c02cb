# Flags that every target of ours shares. Third-party code is not compiled here.
set(CMAKE_CXX_FLAGS_DEV "-O1 -g1" CACHE STRING "Flags of the development build" FORCE)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# QtWebKit's and Qt's headers are system headers, so their warnings don't count.
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS
                        QT_NO_MESSAGELOGCONTEXT) # log lines bear no file and line
if(LIVECONTROL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The Qt headers that nearly every file needs, compiled once a target.
function(use_qt_pch target)
  target_precompile_headers(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/qt_pch.h)
endfunction()
