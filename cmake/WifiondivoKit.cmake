# The platform of a test set's development kit, under the names that the stand-ins have: the headers
# in include/ and its folders, and those of the libraries that lib/ has. What a kit has no library
# for is in the host's own executable.

file(GLOB kit_include_dirs LIST_DIRECTORIES true "${WIFIONDIVO_PLATFORM_ROOT}/include/*")
list(FILTER kit_include_dirs EXCLUDE REGEX "\\.h(pp)?$")
list(PREPEND kit_include_dirs "${WIFIONDIVO_PLATFORM_ROOT}/include")

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
