# The gallery shows the controls to the eye and to the tests of a real display; it is never installed.
add_executable(gallery gallery/main.cpp gallery/Gallery.cpp)
set_target_properties(gallery PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
tamsel_compile_options(gallery)
target_link_libraries(gallery PRIVATE tamsel_controls)
add_dependencies(gallery tamsel_bundle)

tamsel_test(controls/test_ControlPixels.cpp LIBS tamsel_controls)
tamsel_test(controls/test_ControlInput.cpp LIBS tamsel_controls)
tamsel_test(controls/test_TamselColorPopover.cpp LIBS tamsel_controls)
tamsel_script_test(assistive_technology controls/assistive.py BUS LABELS host ARGS $<TARGET_FILE:gallery>)
set_tests_properties(assistive_technology PROPERTIES RUN_SERIAL ON)
