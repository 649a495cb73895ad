# What an installed tree holds. The libraries are the program's own and lie with its module in a folder that bears its
# name; whoever builds on them finds them by the package configuration (component "development").

set(melvark_headers ${CMAKE_INSTALL_INCLUDEDIR}/melvark)
set(melvark_configuration ${CMAKE_INSTALL_LIBDIR}/cmake/Melvark)

set_target_properties(melvark-host melvark-dbcheck PROPERTIES INSTALL_RPATH "$ORIGIN/${program_to_libraries}")
set_target_properties(hostcontract hostwidgets MelvarkEditor PROPERTIES INSTALL_RPATH "$ORIGIN")

# A library's name carries the version of the contract, so that a host and a module of different ones cannot meet.
file(STRINGS host/Package.h contract REGEX "c_ContractVersion = [0-9]+;")
string(REGEX MATCH "[0-9]+" contract "${contract}")
set_target_properties(hostcontract hostwidgets PROPERTIES VERSION ${contract} SOVERSION ${contract})

include(CMakePackageConfigHelpers)

install(TARGETS melvark-host melvark-dbcheck RUNTIME COMPONENT program)
install(TARGETS MelvarkEditor LIBRARY DESTINATION ${melvark_libraries} COMPONENT program)
install(TARGETS hostcontract hostwidgets EXPORT Melvark LIBRARY DESTINATION ${melvark_libraries} COMPONENT program
  NAMELINK_COMPONENT development INCLUDES DESTINATION ${melvark_headers})
install(FILES packaging/desktop/melvark.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT program)
install(FILES packaging/desktop/melvark.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
  COMPONENT program)
install(FILES packaging/manual/melvark-host.1 packaging/manual/melvark-dbcheck.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
install(FILES docs/database.md docs/procedures.md docs/server.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/melvark COMPONENT program)

# What only the libraries themselves include; nobody else is promised anything of it.
set(melvark_inner_headers ContractTexts.h DecimalDigits.h FormTexts.h GridCellDelegate.h GridHeader.h StringGridModel.h)
list(TRANSFORM melvark_inner_headers REPLACE "(.+)" "PATTERN;\\1;EXCLUDE" OUTPUT_VARIABLE without_inner_headers)
install(DIRECTORY host/ DESTINATION ${melvark_headers}/host COMPONENT development FILES_MATCHING PATTERN "*.h"
  ${without_inner_headers})
install(EXPORT Melvark NAMESPACE Melvark:: DESTINATION ${melvark_configuration} COMPONENT development)
configure_package_config_file(cmake/MelvarkConfig.cmake.in ${PROJECT_BINARY_DIR}/MelvarkConfig.cmake
  INSTALL_DESTINATION ${melvark_configuration} PATH_VARS melvark_libraries)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/MelvarkConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/MelvarkConfig.cmake ${PROJECT_BINARY_DIR}/MelvarkConfigVersion.cmake
  DESTINATION ${melvark_configuration} COMPONENT development)
