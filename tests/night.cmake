tamsel_test(night/test_TamselSolarTimes.cpp LIBS tamsel_night)
tamsel_test(night/test_SunTimes.cpp LIBS tamsel_night)

tamsel_test(night/test_LocationRequest.cpp BUS LIBS tamsel_night)
target_compile_definitions(test_LocationRequest PRIVATE TAMSEL_TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
tamsel_script_test(night_sun_snapshot night/sun_snapshot.sh HOME LABELS host
    ARGS $<TARGET_FILE:tamsel-clock> ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/pelko-location)
