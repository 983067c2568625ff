tamsel_test(platform/test_FramePacer.cpp LIBS tamsel_platform)
