# The gallery shows the controls to the eye; it is never installed.
add_executable(gallery gallery/main.cpp gallery/Gallery.cpp)
set_target_properties(gallery PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
tamsel_compile_options(gallery)
target_link_libraries(gallery PRIVATE tamsel_controls)
add_dependencies(gallery tamsel_bundle)

tamsel_test(controls/test_ControlPixels.cpp LIBS tamsel_controls)
tamsel_test(controls/test_ControlInput.cpp LIBS tamsel_controls)
tamsel_test(controls/test_TamselColorPopover.cpp LIBS tamsel_controls)
