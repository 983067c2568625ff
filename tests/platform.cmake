tamsel_test(platform/test_PropertyList.cpp LIBS tamsel_platform)
tamsel_test(platform/test_PreferenceDomain.cpp LIBS tamsel_platform)
