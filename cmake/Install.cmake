# What a customer gets: the library, its headers, and the ways to find it. The control's own headers lie in
# include/zeb17, those that they include in folders below it, one a layer.
set(folders support toolkit)
set(headers_support support/zeb01 support/zeb02 support/zeb06 support/zeb12 support/zeb13 support/zeb15)
set(headers_toolkit toolkit/base toolkit/window)
if(NOT WIN32)
    list(APPEND folders winapi)
    set(headers_winapi winapi/include)
endif()

set(include_dir "${CMAKE_INSTALL_INCLUDEDIR}/zeb17")
set(config_dir "${CMAKE_INSTALL_LIBDIR}/cmake/zeb17")
install(DIRECTORY zeb17/datemodel/ zeb17/settings/ zeb17/calendarwnd/ cmake/export/
    DESTINATION "${include_dir}" COMPONENT development FILES_MATCHING PATTERN "*.h"
    REGEX "/(CalendarTexts|DateTexts|LogLine|MonthBlock|SeenPieces)\\.h$" EXCLUDE)
install(FILES bindings/c/zeb17.h DESTINATION "${include_dir}" COMPONENT development)
install(FILES bindings/python/zeb17.py DESTINATION "${CMAKE_INSTALL_DATADIR}/zeb17" COMPONENT development)
target_include_directories(zeb17 PUBLIC "$<INSTALL_INTERFACE:${include_dir}>")
set(ZEB17_PC_CFLAGS "-I\${includedir}/zeb17")
foreach(folder IN LISTS folders)
    list(TRANSFORM headers_${folder} APPEND "/")
    install(DIRECTORY ${headers_${folder}}
        DESTINATION "${include_dir}/${folder}" COMPONENT development FILES_MATCHING PATTERN "*.h"
        REGEX "/(DatePattern|FileFault|FileLink|FontSelection|WideText|HandleMap|ThreadState|WndProc)\\.h$" EXCLUDE)
    target_include_directories(zeb17 PUBLIC "$<INSTALL_INTERFACE:${include_dir}/${folder}>")
    string(APPEND ZEB17_PC_CFLAGS " -I\${includedir}/zeb17/${folder}")
endforeach()

install(TARGETS zeb17 EXPORT zeb17
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)
install(EXPORT zeb17 NAMESPACE zeb17:: FILE zeb17Targets.cmake DESTINATION "${config_dir}" COMPONENT development)

if(NOT WIN32)
    install(FILES bindings/qt/Zeb17CalendarWidget.h bindings/qt/Zeb17SpecialDate.h
        DESTINATION "${include_dir}/qt" COMPONENT development)
    target_include_directories(zeb17_qt_hosts INTERFACE "$<INSTALL_INTERFACE:${include_dir}/qt>")
    install(TARGETS zeb17_qt_hosts EXPORT zeb17Qt)
    install(EXPORT zeb17Qt NAMESPACE zeb17:: FILE zeb17QtTargets.cmake
        DESTINATION "${config_dir}" COMPONENT development)
endif()

install(FILES CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT development)
install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT development
    FILES_MATCHING PATTERN "*.md" PATTERN images EXCLUDE)
install(FILES demo/minimal/c.c demo/minimal/python.py demo/minimal/qt.cpp demo/minimal/toolkit.cpp
    DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples" COMPONENT development)

include(CMakePackageConfigHelpers)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/zeb17ConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES cmake/package/zeb17Config.cmake cmake/MenuResource.cmake
    "${PROJECT_BINARY_DIR}/package/zeb17ConfigVersion.cmake"
    DESTINATION "${config_dir}" COMPONENT development)

if(WIN32)
    # The compiler's runtime goes along, and the licences under which it may.
    install(FILES ${ZEB17_RUNTIME_DLLS} DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime)
    foreach(licence gcc-mingw-w64-base/copyright=gcc-runtime mingw-w64-common/copyright=mingw-w64
            ../common-licenses/GPL-3=GPL-3)
        string(REGEX MATCH "(.*)=(.*)" licence "${licence}")
        if(EXISTS "/usr/share/doc/${CMAKE_MATCH_1}")
            install(FILES "/usr/share/doc/${CMAKE_MATCH_1}" RENAME "${CMAKE_MATCH_2}.txt"
                DESTINATION "${CMAKE_INSTALL_DOCDIR}/licences" COMPONENT runtime)
        else()
            message(WARNING "/usr/share/doc/${CMAKE_MATCH_1} is missing: what is installed lacks a licence of the compiler's runtime.")
        endif()
    endforeach()
    install(FILES bindings/c/zeb17.def "${PROJECT_BINARY_DIR}/bindings/c/zeb17.lib"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
    if(TARGET zeb17_desk)
        install(TARGETS zeb17_desk RUNTIME COMPONENT demo)
    endif()
else()
    set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    file(RELATIVE_PATH ZEB17_PC_PREFIX "/${pc_dir}" /)
    string(REGEX REPLACE "/$" "" ZEB17_PC_PREFIX "${ZEB17_PC_PREFIX}")
    foreach(name zeb17 zeb17-qt)
        configure_file(cmake/package/${name}.pc.in "${PROJECT_BINARY_DIR}/package/${name}.pc" @ONLY)
        install(FILES "${PROJECT_BINARY_DIR}/package/${name}.pc" DESTINATION "${pc_dir}" COMPONENT development)
    endforeach()
endif()
