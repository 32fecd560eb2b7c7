# Generates the manual page and the completions of keltavlo-tool from its table of commands.
set(toolManual "${CMAKE_BINARY_DIR}/generated/manual")
set(manualTemplate "${CMAKE_SOURCE_DIR}/docs/keltavlo-tool.1.in")

add_executable(make_tool_manual dev/generators/MakeToolManual.cpp dev/generators/ShellCompletions.cpp)
target_link_libraries(make_tool_manual PRIVATE layer_tool project_options)
add_custom_command(
    OUTPUT "${toolManual}/keltavlo-tool.1"
    BYPRODUCTS "${toolManual}/keltavlo-tool.bash" "${toolManual}/_keltavlo-tool" "${toolManual}/keltavlo-tool.fish"
    COMMAND make_tool_manual "${manualTemplate}" "${toolManual}"
    DEPENDS make_tool_manual "${manualTemplate}"
    COMMENT "Generating the manual page and the completions of keltavlo-tool")
add_custom_target(tool_manual ALL DEPENDS "${toolManual}/keltavlo-tool.1")
