# The files that the program carries are made from the palette tables while it is built.
set(builtInSource "${CMAKE_BINARY_DIR}/generated/BuiltInFiles.cpp")
file(GLOB paletteTables CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/res/palettes/*.txt")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/generated")

add_executable(make_built_in_files dev/generators/MakeBuiltInFiles.cpp)
target_link_libraries(make_built_in_files PRIVATE project_options)
add_custom_command(
    OUTPUT "${builtInSource}"
    COMMAND make_built_in_files "${CMAKE_SOURCE_DIR}/src/res/palettes" "${builtInSource}"
    DEPENDS make_built_in_files ${paletteTables}
    COMMENT "Making the built-in files")
target_sources(layer_app PRIVATE "${builtInSource}")
