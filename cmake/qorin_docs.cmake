# The target `docs`: reference and guide as HTML in docs/html of the build directory, where Doxygen is installed.
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
  return()
endif()

set(QORIN_DOXYFILE ${PROJECT_BINARY_DIR}/Doxyfile)
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${QORIN_DOXYFILE} @ONLY)
add_custom_target(docs
  COMMAND Doxygen::doxygen ${QORIN_DOXYFILE}
  COMMAND ${CMAKE_COMMAND} -E echo "reference: ${PROJECT_BINARY_DIR}/docs/html/index.html"
  VERBATIM)
