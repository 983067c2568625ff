tamsel_test(settings/test_SettingsSheet.cpp BUS LIBS tamsel_clock_core)
