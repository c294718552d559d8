# zeb17_layer(<name> SOURCES <file>... [INCLUDES <dir>...] [USES <layer>...])
#
# One layer of the system: a static library that is later linked whole into the shared library, and
# as it is into the tests. A layer sees the headers of the layers it names under USES, and no others.
function(zeb17_layer name)
    cmake_parse_arguments(arg "" "" "SOURCES;INCLUDES;USES" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    if(NOT arg_INCLUDES)
        set(arg_INCLUDES .)
    endif()
    foreach(dir ${arg_INCLUDES})
        cmake_path(ABSOLUTE_PATH dir NORMALIZE)
        target_include_directories(${name} PUBLIC "${dir}")
    endforeach()
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/cmake/export")
    target_compile_definitions(${name} PUBLIC ZEB17_BUILDING)
    target_link_libraries(${name} PUBLIC ${arg_USES})
endfunction()

# zeb17_test(<name> SOURCES <file>... USES <layer>... [SCALES <number>...])
#
# One test program, registered with CTest as one test. Natively it runs without a display, and once more, without
# its long games, for each of SCALES, on a screen that has so many pixels for a logical one.
function(zeb17_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;SCALES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_USES} gtest gmock test_support)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    if(WIN32)
        return()
    endif()
    set(environment "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp")
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}")
    foreach(scale ${arg_SCALES})
        add_test(NAME ${name}_at_${scale} COMMAND ${name} --gtest_filter=-*Monkey*)
        set_tests_properties(${name}_at_${scale} PROPERTIES TIMEOUT 300
            ENVIRONMENT "${environment};QT_SCALE_FACTOR=${scale}")
    endforeach()
endfunction()
