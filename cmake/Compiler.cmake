# Language level, warnings, sanitizers and the compiler cache, for every target of the tree. All of it holds in this
# directory and below, so that a host that adds the tree to its own keeps its settings.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# The library lies beside the programs, on Windows as it must. A host may have a place of its own for both.
foreach(kind RUNTIME LIBRARY)
    if(NOT CMAKE_${kind}_OUTPUT_DIRECTORY)
        set(CMAKE_${kind}_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
    endif()
endforeach()

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    if(NOT CMAKE_BUILD_TYPE)
        set(CMAKE_BUILD_TYPE RelWithDebInfo)
    endif()
endif()

find_program(ZEB17_CCACHE ccache)
if(ZEB17_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 "${ZEB17_CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wpedantic)
if(ZEB17_WERROR)
    add_compile_options(-Werror)
endif()
if(ZEB17_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(ZEB17_SANITIZE_THREADS)
    add_compile_options(-fsanitize=thread)
    add_link_options(-fsanitize=thread)
endif()
if(ZEB17_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
    add_compile_definitions(_WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700)
    # The C++ runtime is shared, so that an exception may cross from the library to its host.
    foreach(runtime libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${runtime}.dll
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(NOT EXISTS "${path}")
            set(path "/usr/x86_64-w64-mingw32/lib/${runtime}.dll")
        endif()
        set(copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${runtime}.dll")
        list(APPEND ZEB17_RUNTIME_DLLS "${copy}")
        if("${path}" IS_NEWER_THAN "${copy}")
            file(MAKE_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
            # Their symbols for debuggers would be nine tenths of the archive.
            execute_process(COMMAND "${CMAKE_STRIP}" -o "${copy}" "${path}" COMMAND_ERROR_IS_FATAL ANY)
        endif()
    endforeach()
endif()
