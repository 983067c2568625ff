tamsel_test(saver/test_ClockFrame.cpp LIBS tamsel_clock_core)
