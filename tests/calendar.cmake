tamsel_test(calendar/test_CalendarTexts.cpp LIBS tamsel_calendar)
tamsel_test(calendar/test_TamselCalendarLayout.cpp LIBS tamsel_saver)
tamsel_test(calendar/test_TamselDrawCalendar.cpp LIBS tamsel_clock)
