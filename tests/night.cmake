tamsel_test(night/test_TamselSolarTimes.cpp LIBS tamsel_night)
tamsel_test(night/test_SunTimes.cpp LIBS tamsel_night)

add_executable(sun_change_check night/sun_change_check.cpp)
set_target_properties(sun_change_check PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
target_compile_definitions(sun_change_check PRIVATE TAMSEL_TEST_BUNDLE="${CMAKE_BINARY_DIR}/${TAMSEL_BUNDLE_DIR}")
target_link_libraries(sun_change_check PRIVATE tamsel_saver)
add_dependencies(sun_change_check tamsel_bundle)
tamsel_script_test(night_change_check saver/change_check.sh HOME ARGS $<TARGET_FILE:sun_change_check> LABELS host)

tamsel_test(night/test_LocationRequest.cpp BUS LIBS tamsel_night)
target_compile_definitions(test_LocationRequest PRIVATE TAMSEL_TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
tamsel_script_test(night_sun_snapshot night/sun_snapshot.sh HOME LABELS host
    ARGS $<TARGET_FILE:tamsel-clock> ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/pelko-location)
