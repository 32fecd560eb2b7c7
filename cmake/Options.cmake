# Compiler settings that every target of the project shares.
add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_20)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-qual -Wformat -Wformat-security
    -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>) # g++ 12 sees overlaps in std::string that cannot be
if(KELTAVLO_SANITIZE)
    # Global, so that the support libraries agree with the program on the containers' layout.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_definitions(_GLIBCXX_ASSERTIONS _GLIBCXX_SANITIZE_VECTOR=1)
    add_link_options(-fsanitize=address,undefined)
endif()
if(KELTAVLO_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-sanitize=vptr,function)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(-fsanitize=address,undefined)
endif()
find_program(CCACHE ccache)
if(CCACHE)
    # The sloppiness that precompiled headers need; nothing of ours uses __DATE__ or __TIME__.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE}")
endif()
