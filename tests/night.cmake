tamsel_test(night/test_TamselSolarTimes.cpp LIBS tamsel_clock_core)
tamsel_test(night/test_SunTimes.cpp LIBS tamsel_clock_core)
target_sources(test_SunTimes PRIVATE support/NoaaSun.cpp)

add_executable(evaluate_schedule night/evaluate_schedule.cpp)
target_compile_definitions(evaluate_schedule PRIVATE TAMSEL_TEST_BUNDLE="${CMAKE_BINARY_DIR}/${TAMSEL_BUNDLE_DIR}")
target_link_libraries(evaluate_schedule PRIVATE tamsel_clock_core)
add_dependencies(evaluate_schedule tamsel_bundle)
tamsel_script_test(no_file_opened night/no_file_opened.sh HOME LABELS host ARGS $<TARGET_FILE:evaluate_schedule> 300)

tamsel_test(night/test_TamselScheduledSaverView.cpp BUS LIBS tamsel_clock_core)
tamsel_test(night/test_LocationRequest.cpp BUS LIBS tamsel_clock_core)
target_compile_definitions(test_LocationRequest PRIVATE TAMSEL_TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
