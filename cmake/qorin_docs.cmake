# The target `docs`: reference and guide as HTML in docs/html of the build directory, where Doxygen, its theme and Python
# are installed.
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
  return()
endif()

# What the public headers tell: what the gate of their documentation reads, and the site has besides pages and a theme.
set(QORIN_DOXYFILE ${PROJECT_BINARY_DIR}/Doxyfile)
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${QORIN_DOXYFILE} @ONLY)

find_package(Python3 3.9 QUIET COMPONENTS Interpreter)
find_path(QORIN_THEME doxygen-awesome.css PATHS /usr/share/doxygen-awesome-css /usr/local/share/doxygen-awesome-css)
mark_as_advanced(QORIN_THEME)
if(NOT Python3_Interpreter_FOUND OR NOT QORIN_THEME)
  message(STATUS "Without the target docs: no Python 3, or no doxygen-awesome-css")
  return()
endif()
set(QORIN_PAGES ${PROJECT_BINARY_DIR}/docs/pages)
configure_file(${PROJECT_SOURCE_DIR}/docs/site/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
add_custom_target(docs
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${PROJECT_BINARY_DIR}/docs/html
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/docs/site/make_pages ${PROJECT_SOURCE_DIR} ${QORIN_PAGES}
  COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/docs/site/make_search ${QORIN_PAGES} ${PROJECT_BINARY_DIR}/docs/html
  COMMAND ${CMAKE_COMMAND} -E echo "guide and reference: ${PROJECT_BINARY_DIR}/docs/html/index.html"
  VERBATIM)
if(QORIN_INSTALL)
  # Only where it was made: it is no part of `all`.
  install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation OPTIONAL)
endif()
