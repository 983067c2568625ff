tamsel_test(controls/test_ControlPixels.cpp LIBS tamsel_controls)
tamsel_test(controls/test_ControlInput.cpp LIBS tamsel_controls)
tamsel_test(controls/test_TamselColorPopover.cpp LIBS tamsel_controls)
