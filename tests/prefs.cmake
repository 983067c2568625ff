tamsel_test(prefs/test_StoredSettings.cpp LIBS tamsel_clock_core)
tamsel_test(prefs/test_HexColor.cpp LIBS tamsel_clock_core)
