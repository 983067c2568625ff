tamsel_test(night/test_TamselSolarTimes.cpp LIBS tamsel_night)
tamsel_test(night/test_SunTimes.cpp LIBS tamsel_night)
# Memory that the sanitizer keeps for its own purposes is no growth.
set_property(TEST test_SunTimes APPEND PROPERTY ENVIRONMENT_MODIFICATION
    ASAN_OPTIONS=string_append::quarantine_size_mb=0:thread_local_quarantine_size_kb=0)

tamsel_test(night/test_LocationRequest.cpp BUS LIBS tamsel_night)
target_compile_definitions(test_LocationRequest PRIVATE TAMSEL_TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
tamsel_script_test(night_sun_snapshot night/sun_snapshot.sh HOME LABELS host
    ARGS $<TARGET_FILE:tamsel-clock> ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/pelko-location)
