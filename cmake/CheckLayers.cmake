# cmake -DROOT=... [-DTABLE=...] -P CheckLayers.cmake: checks every #include below ROOT/src against the layer table (the
# project's own, or the file TABLE). No file on the left may include a header of the windowing libraries. Prints each
# violation and then fails. A table with a cycle, or with a left row that uses a right one, fails too.
cmake_minimum_required(VERSION 3.25)
if(NOT DEFINED TABLE)
    set(TABLE "${CMAKE_CURRENT_LIST_DIR}/LayerTable.cmake")
endif()
include("${TABLE}")

set(rightColumn "(^|/)ui$")
# A left layer links only Qt6::Core, so the compiler does not find most of these headers there. Two cases compile
# anyway: a left header that only the right column includes, and a spelling with the library's folder.
string(CONCAT windowHeaders "^(Qt(Gui|Widgets|OpenGL|OpenGLWidgets|PrintSupport|Svg)(/.*)?|(GL|EGL|X11)/.*"
    "|Q[A-Za-z]*(Application|Widget|Window|Dialog|Action|Menu|Bar|Button|Box|Label|View|Layout|Painter|Clipboard|Cursor"
    "|Image|Pixmap|Bitmap|Icon|Color|Font|Palette|Pen|Brush|KeyEvent|MouseEvent))$")
# Headers of Qt Core whose names look like windows.
set(coreHeaders QCoreApplication QStringView QByteArrayView QLatin1StringView)

foreach(row IN LISTS LAYERS)
    string(REGEX MATCH "^([^ :]+) *:(.*)$" matched "${row}")
    set(folder "${CMAKE_MATCH_1}")
    separate_arguments(uses UNIX_COMMAND "${CMAKE_MATCH_2}")
    if(folder IN_LIST folders)
        message(FATAL_ERROR "layer table: ${folder} has two rows")
    endif()
    # A row comes after the rows it uses, so their closures are complete; this also refuses cycles.
    set(allowed_${folder} "${folder}")
    foreach(used IN LISTS uses)
        if(NOT used IN_LIST folders)
            message(FATAL_ERROR "layer table: ${folder} uses ${used}, which is not above it")
        endif()
        if(used MATCHES "${rightColumn}" AND NOT folder MATCHES "${rightColumn}")
            message(FATAL_ERROR "layer table: ${folder} on the left uses ${used} on the right")
        endif()
        list(APPEND allowed_${folder} ${allowed_${used}})
    endforeach()
    list(REMOVE_DUPLICATES allowed_${folder})
    list(APPEND folders "${folder}")
endforeach()

set(violations 0)
macro(violation text)
    message(STATUS "forbidden include: ${text}")
    math(EXPR violations "${violations} + 1")
endmacro()

# A header in quotes is the project's own, relative to src/, or output of the meta-object compiler.
macro(check_own file folder header)
    get_filename_component(target "${header}" DIRECTORY)
    if(NOT target IN_LIST folders AND NOT "${header}" MATCHES "^[^/]+[.]moc$")
        violation("${file} includes \"${header}\", which is in no layer")
    elseif(target IN_LIST folders AND NOT target IN_LIST allowed_${folder})
        violation("${file} uses ${target}")
    endif()
endmacro()

macro(check_foreign file folder header)
    if("${header}" MATCHES "${windowHeaders}" AND NOT "${header}" IN_LIST coreHeaders
       AND NOT "${folder}" MATCHES "${rightColumn}")
        violation("${file} uses <${header}> on the left")
    endif()
endmacro()

file(GLOB_RECURSE files RELATIVE "${ROOT}/src" "${ROOT}/src/*.h" "${ROOT}/src/*.cpp" "${ROOT}/src/*.inc")
foreach(file IN LISTS files)
    get_filename_component(folder "${file}" DIRECTORY)
    if(NOT folder IN_LIST folders)
        violation("${file} is in no layer")
        continue()
    endif()
    file(STRINGS "${ROOT}/src/${file}" lines REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS lines)
        if(NOT line MATCHES "include[ \t]*([\"<])([^\">]+)[\">]")
            violation("${file} has an include that cannot be parsed: ${line}")
            continue()
        endif()
        set(mark "${CMAKE_MATCH_1}")
        set(header "${CMAKE_MATCH_2}")
        get_filename_component(target "${header}" DIRECTORY)
        if(mark STREQUAL "\"" OR target IN_LIST folders)
            check_own("${file}" "${folder}" "${header}")
        else()
            check_foreign("${file}" "${folder}" "${header}")
        endif()
    endforeach()
endforeach()

list(LENGTH files count)
if(violations GREATER 0)
    message(FATAL_ERROR "${violations} forbidden includes in ${count} files")
endif()
message(STATUS "layers: ${count} files, no forbidden include")
