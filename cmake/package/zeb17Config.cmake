# find_package(zeb17): the target zeb17::zeb17, and zeb17_menu_resource for a host's own menus.
include("${CMAKE_CURRENT_LIST_DIR}/zeb17Targets.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/MenuResource.cmake")
