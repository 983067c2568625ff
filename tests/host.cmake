tamsel_test(host/test_CommandLine.cpp LIBS tamsel_host)
tamsel_test(host/test_XScreenSaverRegistration.cpp LIBS tamsel_host)
tamsel_test(host/test_Snapshot.cpp LIBS tamsel_host)
tamsel_script_test(host_command_line host/command_line.sh
    ARGS $<TARGET_FILE:tamsel-clock> ${PROJECT_VERSION} ${CMAKE_BINARY_DIR}/${TAMSEL_BUNDLE_DIR})
tamsel_script_test(host_window host/hosting.py ARGS $<TARGET_FILE:tamsel-clock> LABELS host)
tamsel_script_test(host_full_screen host/full_screen.py ARGS $<TARGET_FILE:tamsel-clock> LABELS host)
tamsel_script_test(host_xscreensaver host/xscreensaver.sh ARGS $<TARGET_FILE:tamsel-clock> LABELS host)
tamsel_script_test(host_follow_settings host/follow_settings.py ARGS $<TARGET_FILE:tamsel-clock> LABELS host)
