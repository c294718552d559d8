# CPack: on Linux two Debian packages, on Windows one archive. scripts/package makes them.
set(CPACK_PACKAGE_VENDOR "zeb17")
set(ZEB17_MAINTAINER "The zeb17 developers <zeb17@localhost>" CACHE STRING "Who the packages say keeps them: Name <address>")
set(CPACK_PACKAGE_CONTACT "${ZEB17_MAINTAINER}")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "month-calendar control with special dates")
set(CPACK_STRIP_FILES ON)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME "zeb17-${PROJECT_VERSION}-windows-x86_64")
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libzeb17-${PROJECT_VERSION_MAJOR}")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS fonts-liberation)
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
        "A window control that shows a month with special dates, dots and tool tips,\nprints it and writes it as a web page.")

    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzeb17-dev)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
        "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION}), qt6-base-dev")
    set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
        "The headers of the month-calendar control zeb17, and what CMake and pkg-config\nneed to find it.")
    set(CPACK_COMPONENTS_ALL runtime development)

    # The loader learns of the library when the package comes and when it goes.
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/package/triggers")

    # Each package has a copyright file and a changelog in Debian's form, dated as the last commit.
    if(ZEB17_DEBIAN)
        execute_process(COMMAND git -C "${PROJECT_SOURCE_DIR}" log -1 --format=%cD
            OUTPUT_VARIABLE ZEB17_PACKAGE_DATE OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        set(package_dir "${PROJECT_BINARY_DIR}/package")
        configure_file(cmake/package/changelog.in "${package_dir}/changelog" @ONLY)
        execute_process(COMMAND gzip -9nf "${package_dir}/changelog" COMMAND_ERROR_IS_FATAL ANY)
        foreach(component RUNTIME DEVELOPMENT)
            string(TOLOWER "${component}" name)
            install(FILES cmake/package/copyright "${package_dir}/changelog.gz" COMPONENT ${name}
                DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME}")
        endforeach()
    endif()
endif()
include(CPack)
