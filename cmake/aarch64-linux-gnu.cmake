# Toolchain file: builds for 64-bit ARM with Debian's cross compiler, and runs what is built, tests too, in an emulator.
# QORIN_TARGET_ROOT is a directory with the libraries of that machine, laid out as its own root; scripts/cross_test fills
# one.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QORIN_TARGET_ROOT)
set(CMAKE_SYSROOT ${QORIN_TARGET_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${QORIN_TARGET_ROOT})
