# Compiler settings that all targets of the project share. The presets make warnings errors; other builds do not, so
# that a newer compiler cannot break them.
add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_20)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-qual -Wformat
    -Wformat-security -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>) # g++ 12 reports impossible overlaps in std::string
# What makes faults of the programs that users run harder to exploit. Release builds only: fortified functions need
# optimization, and the sanitizers check more.
add_library(hardening INTERFACE)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    target_compile_options(hardening INTERFACE
        -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong -fstack-clash-protection)
    target_link_options(hardening INTERFACE -pie LINKER:-z,relro,-z,now)
endif()
if(KELTAVLO_SANITIZE)
    # Global, so that all libraries agree on the layout of containers.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_definitions(_GLIBCXX_ASSERTIONS _GLIBCXX_SANITIZE_VECTOR=1)
    add_link_options(-fsanitize=address,undefined)
endif()
if(KELTAVLO_FUZZ)
    add_compile_options(
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-sanitize=vptr,function)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(-fsanitize=address,undefined)
endif()
if(KELTAVLO_COVERAGE)
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()
find_program(CCACHE ccache)
if(CCACHE)
    # Precompiled headers need this sloppiness; no source uses __DATE__ or __TIME__.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE}")
endif()
