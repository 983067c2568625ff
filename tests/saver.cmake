tamsel_test(saver/test_ClockFrame.cpp LIBS tamsel_clock_core)
tamsel_test(saver/test_TamselClockSaverView.cpp LIBS tamsel_clock_core)
