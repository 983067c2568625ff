tamsel_test(settings/test_SheetLayout.cpp LIBS tamsel_clock_core)
tamsel_test(settings/test_SheetTransition.cpp LIBS tamsel_clock_core)
tamsel_test(settings/test_SheetRules.cpp LIBS tamsel_clock_core)
tamsel_test(settings/test_SettingsSheet.cpp LIBS tamsel_clock_core)
