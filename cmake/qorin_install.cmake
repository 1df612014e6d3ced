# What `cmake --install` lays down. Component `runtime` is what an application runs with, `development` what it is built
# with; `tools` are the programs, with what they need beyond the library; `documentation`, `examples` and `python` are what
# they say. Nothing of it knows where it lies, so that the whole may be moved.
include(CMakePackageConfigHelpers)

set(qorin_kinematics_directory ${CMAKE_INSTALL_LIBDIR}/qorin/kinematics)
set(qorin_package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/qorin_api_rpc_client)
set(qorin_pkgconfig_directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(qorin_data_directory ${CMAKE_INSTALL_DATADIR}/qorin_api_rpc_client)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${qorin_pkgconfig_directory}
           OUTPUT_VARIABLE qorin_prefix_of_pkgconfig)

install(TARGETS qorin_api_rpc_client EXPORT qorin_api_rpc_client
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(TARGETS qorin_kinematics_arm LIBRARY DESTINATION ${qorin_kinematics_directory} COMPONENT runtime)
foreach(program qorin_cbox_sim qorin)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  endif()
endforeach()
if(TARGET qorin)
  install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/qorin_log DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endif()
# The module's place in the sample: fixed in a system, and from where the installation lies otherwise.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(qorin_place_of_module)
  set(qorin_kinematics_path /usr/${qorin_kinematics_directory})
else()
  set(qorin_place_of_module ", when $SAVRENT_V3 is the directory into which the library is installed")
  set(qorin_kinematics_path ./${qorin_kinematics_directory})
endif()
configure_file(cmake/config.ini.in ${PROJECT_BINARY_DIR}/share/config.ini @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/share/config.ini DESTINATION ${qorin_data_directory} COMPONENT runtime)

install(DIRECTORY include/qorin DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
        FILES_MATCHING PATTERN "*.h")
install(DIRECTORY savrent/cc/math DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/savrent/cc COMPONENT development
        FILES_MATCHING PATTERN "*.h")
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT examples)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg" PATTERN site EXCLUDE PATTERN man EXCLUDE)

configure_package_config_file(cmake/qorin_api_rpc_client-config.cmake.in
                              ${PROJECT_BINARY_DIR}/share/qorin_api_rpc_client-config.cmake
                              INSTALL_DESTINATION ${qorin_package_directory}
                              PATH_VARS qorin_kinematics_directory qorin_data_directory)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/share/qorin_api_rpc_client-config-version.cmake
                                 COMPATIBILITY SameMajorVersion)
configure_file(cmake/qorin_api_rpc_client.pc.in ${PROJECT_BINARY_DIR}/share/qorin_api_rpc_client.pc @ONLY)
install(EXPORT qorin_api_rpc_client NAMESPACE qorin:: FILE qorin_api_rpc_client-targets.cmake
        DESTINATION ${qorin_package_directory} COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/share/qorin_api_rpc_client-config.cmake
              ${PROJECT_BINARY_DIR}/share/qorin_api_rpc_client-config-version.cmake
        DESTINATION ${qorin_package_directory} COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/share/qorin_api_rpc_client.pc DESTINATION ${qorin_pkgconfig_directory}
        COMPONENT development)
