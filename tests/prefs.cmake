tamsel_test(prefs/test_StoredSettings.cpp LIBS tamsel_night)
