find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

add_library(tavoli_options INTERFACE)
target_include_directories(tavoli_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(tavoli_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                                -Wno-sign-conversion -Werror)
target_compile_definitions(tavoli_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                    QT_NO_KEYWORDS)
if(TAVOLI_SANITIZE)
  target_compile_options(tavoli_options INTERFACE -fsanitize=address,undefined
                                                  -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavoli_options INTERFACE -fsanitize=address,undefined)
endif()

set(TAVOLI_CORE_HEADERS <QDateTime> <QFile> <QString> <QStringList> <functional> <memory> <optional>
                        <vector>)
set(TAVOLI_SCREEN_HEADERS <QLabel> <QLayout> <QMainWindow> <QMenuBar> <QMessageBox> <QPushButton>
                          <QtCore> <QtGui>)

# tavoli_room(<name> USES <room>...): the library of a room's rules, made of the sources in the
# room's folder, and, where it has a folder `screens`, a second library of its windows. USES is the
# list of rooms that the room may include; `./dev lint` holds every #include against it.
function(tavoli_room name)
  cmake_parse_arguments(ROOM "" "" "USES;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(sources)
    set(scope PUBLIC)
    add_library(tavoli_${name} STATIC ${sources})
    target_precompile_headers(tavoli_${name} PRIVATE ${TAVOLI_CORE_HEADERS})
  else()
    # A room that has windows but no rules yet.
    set(scope INTERFACE)
    add_library(tavoli_${name} INTERFACE)
  endif()
  target_link_libraries(tavoli_${name} ${scope} tavoli_options Qt6::Core ${ROOM_LIBRARIES})

  file(GLOB screens CONFIGURE_DEPENDS screens/*.cpp screens/*.h)
  if(screens)
    add_library(tavoli_${name}_screens STATIC ${screens})
    # The sources are named to moc's step too: it would not notice one that came in by the glob.
    set_target_properties(tavoli_${name}_screens PROPERTIES AUTOMOC ON AUTORCC ON
                                                            AUTOGEN_TARGET_DEPENDS "${screens}")
    target_link_libraries(tavoli_${name}_screens PUBLIC tavoli_${name} Qt6::Widgets Qt6::Svg
                                                        Qt6::SvgWidgets)
    target_precompile_headers(tavoli_${name}_screens PRIVATE ${TAVOLI_SCREEN_HEADERS})
  endif()

  foreach(used IN LISTS ROOM_USES)
    target_link_libraries(tavoli_${name} ${scope} tavoli_${used})
    if(screens AND TARGET tavoli_${used}_screens)
      target_link_libraries(tavoli_${name}_screens PUBLIC tavoli_${used}_screens)
    endif()
  endforeach()
endfunction()
