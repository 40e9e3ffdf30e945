# The platform of a test set's development kit, under the names of the stand-ins: the headers in
# include/ and all folders below, and those of the three libraries that lib/ has. The host's own
# executable must supply the symbols of the others.

set(kit_include_dirs "${WIFIONDIVO_PLATFORM_ROOT}/include")
file(GLOB_RECURSE kit_entries LIST_DIRECTORIES true "${WIFIONDIVO_PLATFORM_ROOT}/include/*")
foreach(entry IN LISTS kit_entries)
    if(IS_DIRECTORY "${entry}")
        list(APPEND kit_include_dirs "${entry}")
    endif()
endforeach()

set(kit_whole ON)
foreach(library toolkit halmanager swupdate)
    add_library(${library} INTERFACE)
    target_include_directories(${library} SYSTEM INTERFACE ${kit_include_dirs})
    find_library(WIFIONDIVO_KIT_${library} ${library}
        PATHS "${WIFIONDIVO_PLATFORM_ROOT}/lib" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    if(WIFIONDIVO_KIT_${library})
        target_link_libraries(${library} INTERFACE "${WIFIONDIVO_KIT_${library}}")
    else()
        message(STATUS "The kit has no library ${library}: its symbols are left to the host")
        set(kit_whole OFF)
    endif()
endforeach()
target_link_libraries(toolkit INTERFACE wifiondivo_qt_widgets)
set(WIFIONDIVO_PLATFORM_WHOLE ${kit_whole} PARENT_SCOPE)
