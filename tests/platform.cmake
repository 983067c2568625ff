tamsel_test(platform/test_Clocks.cpp LIBS tamsel_platform)
tamsel_test(platform/test_HexColor.cpp LIBS tamsel_platform)
# What the message buses carry.
tamsel_test(platform/test_MessageBus.cpp LIBS tamsel_platform)
tamsel_test(platform/test_DistributedNotifications.cpp LIBS tamsel_platform)
tamsel_test(platform/test_LoginSession.cpp LIBS tamsel_platform)
tamsel_test(platform/test_Appearance.cpp LIBS tamsel_platform)
tamsel_test(platform/test_PropertyList.cpp LIBS tamsel_platform)
target_compile_definitions(test_PropertyList PRIVATE TAMSEL_TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
tamsel_test(platform/test_PreferenceDomain.cpp LIBS tamsel_platform)
# Thousands of writes that each reach the disk.
tamsel_test(platform/test_PreferenceWriters.cpp LIBS tamsel_platform)
set_tests_properties(test_PreferenceWriters PROPERTIES TIMEOUT 240)
tamsel_test(platform/test_PolygonFill.cpp LIBS tamsel_platform)
