if(TARGET tamsel_quick)
    tamsel_test(quick/test_ClockItem.cpp LIBS tamsel_quick tamsel_saver)
    set_property(TEST test_ClockItem APPEND PROPERTY ENVIRONMENT QT_QUICK_BACKEND=software)
    add_test(NAME quick_without_widgets
        COMMAND sh -c "readelf -d '$<TARGET_FILE:tamsel_quick_module>' >needed && grep Qt6Quick needed && ! grep -E 'Widgets|DBus' needed")
    # By OpenGL, whose drivers leak and are unloaded before that is reported: no suppression can name them.
    foreach(scale IN ITEMS 1 1.5 2)
        tamsel_script_test(quick_scale_${scale} support/on_x.py LABELS host
            ARGS -- env QT_SCALE_FACTOR=${scale} $<TARGET_FILE:test_ClockItem>)
    endforeach()
endif()
