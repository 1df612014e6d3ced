# Manual pages beside that of `qorin`, which its own options make: of the simulated control box, of the name under which
# reading logs was a program of its own, and, from the table of functions, section 3.
set(QORIN_MANUAL ${PROJECT_BINARY_DIR}/man)
configure_file(${PROJECT_SOURCE_DIR}/docs/man/qorin_cbox_sim.1.in ${QORIN_MANUAL}/qorin_cbox_sim.1 @ONLY)
file(CONFIGURE OUTPUT ${QORIN_MANUAL}/qorin_log.1 CONTENT ".so man1/qorin.1\n")
if(QORIN_FUNCTION_TABLE)
  set(make_manual ${PROJECT_SOURCE_DIR}/docs/man/make_manual)
  add_custom_command(OUTPUT ${QORIN_MANUAL}/qorin_system.3
    COMMAND Python3::Interpreter ${make_manual} ${QORIN_FUNCTION_TABLE} ${PROJECT_SOURCE_DIR}/include/qorin
            ${PROJECT_VERSION} ${QORIN_MANUAL}
    DEPENDS ${QORIN_FUNCTION_TABLE} ${make_manual}
    COMMENT "Making the manual pages of the functions" VERBATIM)
  add_custom_target(manual_pages ALL DEPENDS ${QORIN_MANUAL}/qorin_system.3)
  add_dependencies(manual_pages function_table)
endif()

if(QORIN_INSTALL)
  set(pages ${CMAKE_INSTALL_MANDIR})
  if(QORIN_BUILD_SIMULATOR)
    install(FILES ${QORIN_MANUAL}/qorin_cbox_sim.1 DESTINATION ${pages}/man1 COMPONENT tools)
  endif()
  if(QORIN_BUILD_TOOLS)
    install(FILES ${QORIN_MANUAL}/qorin_log.1 DESTINATION ${pages}/man1 COMPONENT tools)
  endif()
  if(QORIN_FUNCTION_TABLE)
    install(DIRECTORY ${QORIN_MANUAL}/ DESTINATION ${pages}/man3 COMPONENT documentation FILES_MATCHING PATTERN "*.3")
  endif()
endif()
