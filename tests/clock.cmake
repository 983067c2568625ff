tamsel_test(clock/test_ClockFrame.cpp LIBS tamsel_clock)
tamsel_test(clock/test_FrameDamage.cpp LIBS tamsel_clock)
