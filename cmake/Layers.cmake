# zeb17_layer(<name> SOURCES <file>... [INCLUDES <dir>...] [USES <layer>...] [HIDDEN])
#
# One layer of the system: a static library that is later linked whole into the shared library, and
# as it is into the tests. A layer sees the headers of the layers it names under USES, and no others; they have to stand
# below it. Hosts see the headers of all layers that are not HIDDEN. The layer's target is zeb17_<name>, so that a host's
# project may have targets of the short names.
function(zeb17_layer name)
    cmake_parse_arguments(arg "HIDDEN" "" "SOURCES;INCLUDES;USES" ${ARGN})
    set(target zeb17_${name})
    _zeb17_targets(arg_USES)
    foreach(used ${arg_USES})
        if(NOT TARGET ${used})
            message(FATAL_ERROR "The layer ${name} uses ${used}, which does not stand below it.")
        endif()
    endforeach()
    add_library(${target} STATIC ${arg_SOURCES})
    if(NOT arg_INCLUDES)
        set(arg_INCLUDES .)
    endif()
    foreach(dir ${arg_INCLUDES})
        cmake_path(ABSOLUTE_PATH dir NORMALIZE)
        target_include_directories(${target} PUBLIC "${dir}")
    endforeach()
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/cmake/export")
    target_compile_definitions(${target} PUBLIC ZEB17_BUILDING)
    target_link_libraries(${target} PUBLIC ${arg_USES})
    set_property(GLOBAL APPEND PROPERTY ZEB17_LAYERS ${target})
    if(NOT arg_HIDDEN)
        set_property(GLOBAL APPEND PROPERTY ZEB17_SHOWN_LAYERS ${target})
    endif()
endfunction()

# The targets of the layers named in a list; what is no layer, such as Qt6::Widgets, stays.
macro(_zeb17_targets names)
    list(TRANSFORM ${names} PREPEND zeb17_ REGEX "^[^:]+$")
endmacro()

# zeb17_test(<name> SOURCES <file>... USES <layer>... [SCALES <number>...])
#
# One test program, registered with CTest as one test. Natively it runs without a display, and once more, without
# its long games, for each of SCALES, on a screen that has so many pixels for a logical one.
function(zeb17_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;SCALES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    _zeb17_targets(arg_USES)
    target_link_libraries(${name} PRIVATE ${arg_USES} gtest gmock test_support)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    if(WIN32)
        return()
    endif()
    set(environment "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks.supp")
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}")
    foreach(scale ${arg_SCALES})
        add_test(NAME ${name}_at_${scale} COMMAND ${name} --gtest_filter=-*Monkey*)
        set_tests_properties(${name}_at_${scale} PROPERTIES TIMEOUT 300
            ENVIRONMENT "${environment};QT_SCALE_FACTOR=${scale}")
    endforeach()
endfunction()
