# Warnings, hardening, sanitizers and include paths that every target of this project has.
add_library(qorin_flags INTERFACE)
target_compile_options(qorin_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -fno-semantic-interposition)
if(QORIN_WARNINGS_AS_ERRORS)
  target_compile_options(qorin_flags INTERFACE -Werror)
endif()
if(QORIN_SANITIZE)
  list(JOIN QORIN_SANITIZE "," qorin_sanitizers)
  # A sanitizer's report must fail the run, so undefined behaviour does not merely print.
  target_compile_options(qorin_flags INTERFACE -fsanitize=${qorin_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # The instrumentation makes g++ 12 see uninitialised reads in its own library's std::function.
  target_compile_options(qorin_flags INTERFACE -Wno-maybe-uninitialized)
  target_link_options(qorin_flags INTERFACE -fsanitize=${qorin_sanitizers})
endif()
# Sources that are compiled as one see each other's private names.
if(CMAKE_UNITY_BUILD)
  target_compile_options(qorin_flags INTERFACE -Wno-shadow $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-subobject-linkage>)
endif()
# Records and numbers are those of x86-64 on every machine: a char has a sign, and a product is rounded ahead of a sum.
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  target_compile_options(qorin_flags INTERFACE -fsigned-char -ffp-contract=off)
endif()
target_include_directories(qorin_flags INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)

option(QORIN_HARDENING "Guard stack, calls and tables of addresses at run time" ON)
if(QORIN_HARDENING AND NOT QORIN_SANITIZE) # a sanitizer sees more
  # What the optimiser makes cheap, and a debugger is better without. Some compilers define the last by themselves.
  set(qorin_guards -fstack-protector-strong)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    list(APPEND qorin_guards -fcf-protection)
  endif()
  list(APPEND qorin_guards -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  target_compile_options(qorin_flags INTERFACE "$<$<NOT:$<CONFIG:Debug>>:${qorin_guards}>")
  target_link_options(qorin_flags INTERFACE LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
endif()

# The same bytes from whatever directory: names of files are told from the top of the source, whether they reach the
# compiler as absolute ones or, from a compiler cache, as seen from the build directory; those in the build directory are
# told from there. The last that fits holds. How the compiler was called differs with a cache, and is not told. A debugger
# wants the true names.
file(RELATIVE_PATH qorin_source_from_build ${CMAKE_BINARY_DIR} ${PROJECT_SOURCE_DIR})
set(qorin_prefix_maps -gno-record-gcc-switches -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
if(qorin_source_from_build)
  string(REGEX REPLACE "/$" "" qorin_source_from_build ${qorin_source_from_build})
  list(APPEND qorin_prefix_maps -ffile-prefix-map=${qorin_source_from_build}=.)
endif()
list(APPEND qorin_prefix_maps -ffile-prefix-map=${CMAKE_BINARY_DIR}=./build -ffile-prefix-map=${CMAKE_BINARY_DIR}/=)
target_compile_options(qorin_flags INTERFACE "$<$<NOT:$<CONFIG:Debug>>:${qorin_prefix_maps}>")

# For what does each thing once: most of its building time would go into optimising.
function(qorin_build_fast target)
  target_compile_options(${target} PRIVATE "$<$<OR:$<NOT:$<CONFIG:Debug>>,$<BOOL:${QORIN_SANITIZE}>>:-O0;-U_FORTIFY_SOURCE>")
endfunction()
