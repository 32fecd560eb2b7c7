# Generates the source of the built-in files from the palette tables.
set(builtInSource "${CMAKE_BINARY_DIR}/generated/BuiltInFiles.cpp")
file(GLOB paletteTables CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/res/palettes/*.txt")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/generated")

add_executable(make_built_in_files dev/generators/MakeBuiltInFiles.cpp)
target_link_libraries(make_built_in_files PRIVATE project_options)
add_custom_command(
    OUTPUT "${builtInSource}"
    COMMAND make_built_in_files "${CMAKE_SOURCE_DIR}/src/res/palettes" "${builtInSource}"
    DEPENDS make_built_in_files ${paletteTables}
    COMMENT "Generating the built-in files")
target_sources(layer_app PRIVATE "${builtInSource}")
