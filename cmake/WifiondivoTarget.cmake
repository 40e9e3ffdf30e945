# What every target of this project has in common, and where its files go.

# In the build tree the files lie as they are installed: bin/, lib/wifiondivo/, share/. The libraries
# are this project's own and have no versions, so none of them lies where other programs look.
set(WIFIONDIVO_INSTALL_LIB_DIR "${CMAKE_INSTALL_LIBDIR}/wifiondivo")
set(WIFIONDIVO_BIN_DIR "${PROJECT_BINARY_DIR}/bin")
set(WIFIONDIVO_LIB_DIR "${PROJECT_BINARY_DIR}/lib/wifiondivo")
set(WIFIONDIVO_SHARE_DIR "${PROJECT_BINARY_DIR}/share/wifiondivo")

if(WIFIONDIVO_HARDEN)
    include(CheckPIESupported)
    check_pie_supported()
    include(CheckCXXCompilerFlag)
    check_cxx_compiler_flag(-fcf-protection WIFIONDIVO_HAS_CF_PROTECTION)
endif()

# wifiondivo_target(NAME STANDARD): warnings, hardening, string ABI, sanitizers, output folders and the
# language standard.
function(wifiondivo_target name standard)
    set_target_properties(${name} PROPERTIES
        CXX_STANDARD ${standard}
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        POSITION_INDEPENDENT_CODE ON
        RUNTIME_OUTPUT_DIRECTORY "${WIFIONDIVO_BIN_DIR}"
        LIBRARY_OUTPUT_DIRECTORY "${WIFIONDIVO_LIB_DIR}"
    )
    target_compile_options(${name} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
        -Wformat=2 -Wundef -Wconversion $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>
        $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond> $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
    if(WIFIONDIVO_HARDEN)
        target_compile_options(${name} PRIVATE
            -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
            $<$<BOOL:${WIFIONDIVO_HAS_CF_PROTECTION}>:-fcf-protection>)
        target_link_options(${name} PRIVATE -Wl,-z,relro,-z,now)
    endif()
    if(WIFIONDIVO_DEVICE)
        target_compile_options(${name} PRIVATE
            -include "${PROJECT_SOURCE_DIR}/source/device/libc_device.h")
    endif()
    if(WIFIONDIVO_OLD_ABI)
        target_compile_definitions(${name} PUBLIC _GLIBCXX_USE_CXX11_ABI=0)
    endif()
    if(WIFIONDIVO_WERROR)
        target_compile_options(${name} PRIVATE -Werror)
    endif()
    if(WIFIONDIVO_SANITIZE)
        set(sanitizers -fsanitize=${WIFIONDIVO_SANITIZE} -fno-omit-frame-pointer)
        if(WIFIONDIVO_SANITIZE MATCHES undefined)
            list(APPEND sanitizers -fno-sanitize-recover=undefined)
        endif()
        target_compile_options(${name} PRIVATE ${sanitizers})
        target_link_options(${name} PRIVATE ${sanitizers})
    endif()
endfunction()

# wifiondivo_prune(FOLDER FILE...): removes from a folder of the build the files that are not listed,
# whose sources were deleted.
function(wifiondivo_prune folder)
    file(GLOB files "${folder}/*")
    list(REMOVE_ITEM files ${ARGN})
    foreach(file IN LISTS files)
        file(REMOVE "${file}")
    endforeach()
endfunction()
