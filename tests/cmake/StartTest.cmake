# Without a display, the program prints one sentence and ends with exit code 1.
# cmake -DPROGRAM=<keltavlo> -P StartTest.cmake
cmake_minimum_required(VERSION 3.25)
foreach(variable DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM QT_QPA_PLATFORM_PLUGIN_PATH)
    unset(ENV{${variable}})
endforeach()
foreach(display "" ":4095")
    set(ENV{DISPLAY} "${display}")
    execute_process(COMMAND "${PROGRAM}" RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 1 OR NOT output MATCHES "^keltavlo: No window can be opened[^\n]*${display}[^\n]*\\.\n$")
        message(SEND_ERROR "DISPLAY=${display}: exit code ${result}, and:\n${output}")
    endif()
endforeach()
