# Warnings, sanitizers and include paths that every target of this project has.
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
target_include_directories(qorin_flags INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
