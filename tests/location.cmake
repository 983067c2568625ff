tamsel_test(location/test_Coordinates.cpp LIBS tamsel_location)
tamsel_test(location/test_ZoneCities.cpp LIBS tamsel_location)
tamsel_test(location/test_LocationWindow.cpp BUS LIBS tamsel_location)
target_compile_definitions(test_LocationWindow PRIVATE TAMSEL_TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
tamsel_script_test(location_command_line location/command_line.sh HOME BUS
    ARGS ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/pelko-location ${PROJECT_VERSION} LABELS host)
