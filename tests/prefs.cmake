tamsel_test(prefs/test_HexColor.cpp LIBS tamsel_clock_core)
