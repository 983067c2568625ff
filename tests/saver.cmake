tamsel_test(saver/test_TamselClockSaverView.cpp LIBS tamsel_saver)
tamsel_test(saver/test_TamselScheduledSaverView.cpp BUS LIBS tamsel_saver)
add_executable(change_check saver/change_check.cpp)
set_target_properties(change_check PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
target_compile_definitions(change_check PRIVATE TAMSEL_TEST_BUNDLE="${CMAKE_BINARY_DIR}/${TAMSEL_BUNDLE_DIR}")
target_link_libraries(change_check PRIVATE tamsel_saver)
add_dependencies(change_check tamsel_bundle)
tamsel_script_test(saver_change_check saver/change_check.sh HOME ARGS $<TARGET_FILE:change_check> LABELS host)
tamsel_script_test(saver_sun_change_check saver/change_check.sh HOME ARGS $<TARGET_FILE:change_check> sun LABELS host)
tamsel_test(saver/test_FramePainter.cpp LIBS tamsel_saver PkgConfig::XCB)
# The same frames on an X server, where they are presented below Qt unless it shares no memory.
tamsel_script_test(saver_presented_frames support/on_x.py
    ARGS -- $<TARGET_FILE:test_FramePainter> whatIsOnScreenIsTheReference aServerThatLagsLeavesNoTrace)
tamsel_script_test(saver_painted_frames support/on_x.py
    ARGS -extension MIT-SHM -- $<TARGET_FILE:test_FramePainter> whatIsOnScreenIsTheReference)
# The same on a Wayland compositor.
if(QT_WINDOW_SYSTEM_HEADERS)
    add_executable(wayland_frames saver/wayland_frames.cpp)
    set_target_properties(wayland_frames PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_compile_definitions(wayland_frames PRIVATE TAMSEL_TEST_BUNDLE="${CMAKE_BINARY_DIR}/${TAMSEL_BUNDLE_DIR}")
    target_link_libraries(wayland_frames PRIVATE Qt6::Test tamsel_saver)
    add_dependencies(wayland_frames tamsel_bundle)
    tamsel_script_test(saver_wayland_frames support/on_sway.py LABELS host desktop
        ARGS "resolution 192x120" -- $<TARGET_FILE:wayland_frames>)
    tamsel_script_test(saver_wayland_painted_frames support/on_sway.py LABELS host desktop
        ARGS "resolution 192x120" -- env QT_WAYLAND_RECONNECT=1 $<TARGET_FILE:wayland_frames> whatIsOnScreenIsTheReference)
endif()
