# Plants faults in copies of a tiny tree and expects the layer check to name each; the clean tree passes.
# cmake -DCHECK=<CheckLayers.cmake> -DSCRATCH=<folder to work in> -P CheckLayersTest.cmake
cmake_minimum_required(VERSION 3.25)
set(tiny "low : " "high : low" "low/ui : low" "high/ui : high low/ui")

# plant(FILE TEXT ...): writes the clean tree again, then these files.
function(plant)
    file(REMOVE_RECURSE "${SCRATCH}")
    file(WRITE "${SCRATCH}/src/low/Low.h" "#include <QString>\n#include <QStringView>\n#include <vector>\n")
    file(WRITE "${SCRATCH}/src/high/High.cpp"
        "#include \"low/Low.h\"\n#include <QCoreApplication>\n#include \"High.moc\"\n")
    file(WRITE "${SCRATCH}/src/low/ui/View.h" "#include \"low/Low.h\"\n#include <QWidget>\n")
    file(WRITE "${SCRATCH}/src/high/ui/Frame.h" "#include \"low/ui/View.h\"\n#include \"low/Low.h\"\n")
    while(ARGV)
        list(POP_FRONT ARGV name text)
        file(WRITE "${SCRATCH}/src/${name}" "${text}\n")
    endwhile()
endfunction()

# expect(ANSWER): runs the check with the table in `rows`. Its output must contain ANSWER, and the check must pass only
# if ANSWER ends in "no forbidden include".
function(expect answer)
    file(WRITE "${SCRATCH}/Table.cmake" "set(LAYERS \"${rows}\")\n")
    execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${SCRATCH} -DTABLE=${SCRATCH}/Table.cmake -P ${CHECK}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(FIND "${output}" "${answer}" position)
    if(position EQUAL -1)
        message(SEND_ERROR "expected \"${answer}\", got:\n${output}")
    endif()
    string(COMPARE EQUAL "${result}" 0 passed)
    string(REGEX MATCH "no forbidden include$" shouldPass "${answer}")
    if(passed AND NOT shouldPass OR shouldPass AND NOT passed)
        message(SEND_ERROR "exit code ${result} beside \"${answer}\"")
    endif()
endfunction()

set(rows "${tiny}")
plant()
expect("4 files, no forbidden include")

plant(low/Up.h "#include \"high/High.h\"")
expect("low/Up.h uses high")
plant(low/Angled.h "  #  include <high/High.h>")
expect("low/Angled.h uses high")
plant(high/Right.cpp "#include \"low/ui/View.h\"")
expect("high/Right.cpp uses low/ui")
plant(low/ui/Sideways.h "#include \"high/ui/Frame.h\"")
expect("low/ui/Sideways.h uses high/ui")
plant(low/Relative.h "#include \"../high/High.h\"")
expect("which is in no layer")
plant(low/Beside.h "#include \"Low.h\"")
expect("which is in no layer")
plant(stray/Stray.h "#pragma once")
expect("stray/Stray.h is in no layer")
foreach(header QWidget QtGui/QImage QtWidgets QGuiApplication QPainter GL/gl.h)
    plant(low/Window.h "#include <${header}>")
    expect("low/Window.h uses <${header}> on the left")
endforeach()

plant(low/A.h "#include \"low/B.h\"" low/B.cpp "#include \"low/C.h\"" low/B.h "" low/C.cpp "#include \"low/A.h\""
    low/C.h "#include \"low/End.h\"" low/End.h "" low/Start.cpp "#include \"low/A.h\"")
expect("forbidden include: low/A, low/B, low/C include each other in a circle")

plant()
set(rows "low : high" "high : low")
expect("low uses high, which is not above it")
set(rows "low : " "low/ui : low" "high : low/ui")
expect("high on the left uses low/ui on the right")
set(rows "${tiny}" "low : ")
expect("low has two rows")

# A number of the resources that the framework writes out: comments, other numbers and other folders may have it.
set(rows ${tiny} "framework : low" "res : framework")
set(ids "enum { IDS_ZOOM = 1110, IDS_LAST }\nconstexpr unsigned IDR_MENU = 128 // shown")
plant(res/Ids.h "${ids}" framework/Frame.h "// as 1110\n{11100, x1110, 1.128, 0x128}" low/Low.cpp "f(1110)")
expect("7 files, no forbidden include")
foreach(line "{7,1110}" "f(128U)" "constexpr unsigned id = 1110")
    plant(res/Ids.h "${ids}" framework/Frame.h "${line}")
    expect("framework/Frame.h writes out")
endforeach()
plant(res/Ids.h "${ids}" framework/Frame.h "f(3, 128)")
expect("framework/Frame.h writes out 128, which is IDR_MENU of res")
