# Builds for i386 with this machine's compiler, against Debian's libraries in build/i386-libraries, and
# runs what it has built under qemu-i386: for a machine whose kernel runs no 32-bit programs.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
cmake_path(SET root NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../build/i386-libraries")
set(CMAKE_SYSROOT "${root}")
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
set(CMAKE_CXX_FLAGS_INIT -m32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${root}")
set(ENV{PKG_CONFIG_LIBDIR} "${root}/usr/lib/i386-linux-gnu/pkgconfig:${root}/usr/share/pkgconfig")
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-i386 -L "${root}"
    -E "LD_LIBRARY_PATH=${root}/lib/i386-linux-gnu:${root}/usr/lib/i386-linux-gnu"
    -E "QT_PLUGIN_PATH=${root}/usr/lib/i386-linux-gnu/qt5/plugins")
