# Makes each row of the layer table a static library of the sources in its folder.
include(${CMAKE_CURRENT_LIST_DIR}/LayerTable.cmake)

function(layer_target folder out)
    string(REPLACE "/" "_" name "${folder}")
    set(${out} "layer_${name}" PARENT_SCOPE)
endfunction()

# CONFIGURE_DEPENDS adds a new file to its folder's layer at the next build.
function(add_layer folder uses)
    layer_target("${folder}" target)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp")
    list(FILTER sources EXCLUDE REGEX "/main[.]cpp$") # part of its program
    file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${folder}/*.h")
    add_library(${target} STATIC ${sources} ${headers})
    target_link_libraries(${target} PRIVATE project_options hardening)
    target_include_directories(${target} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${target} PUBLIC Qt6::Core)
    if(folder MATCHES "(^|/)ui$")
        target_link_libraries(${target} PUBLIC Qt6::Widgets)
    endif()
    foreach(used IN LISTS uses)
        layer_target("${used}" usedTarget)
        target_link_libraries(${target} PUBLIC ${usedTarget})
    endforeach()
endfunction()

foreach(row IN LISTS LAYERS)
    string(REGEX MATCH "^([^ :]+) *:(.*)$" matched "${row}")
    set(folder "${CMAKE_MATCH_1}")
    string(STRIP "${CMAKE_MATCH_2}" uses)
    separate_arguments(uses)
    add_layer("${folder}" "${uses}")
endforeach()
