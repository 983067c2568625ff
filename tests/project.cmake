tamsel_script_test(project_include_directions project/include_directions.py ARGS ${CMAKE_SOURCE_DIR})
tamsel_script_test(project_wording project/wording.py ARGS ${CMAKE_SOURCE_DIR})
tamsel_script_test(project_installed_files project/installed_files.py ARGS ${CMAKE_BINARY_DIR})

if(TAMSEL_SANITIZE)
    add_executable(sanitizer_canary project/sanitizer_canary.cpp)
    set_target_properties(sanitizer_canary PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_compile_options(sanitizer_canary PRIVATE -Wno-use-after-free)
    add_test(NAME sanitizer_canary COMMAND sanitizer_canary)
    set_tests_properties(sanitizer_canary PROPERTIES
        PASS_REGULAR_EXPRESSION "AddressSanitizer: heap-use-after-free")
    add_test(NAME leak_canary COMMAND ${TAMSEL_ISOLATED} --home $<TARGET_FILE:sanitizer_canary> leak)
    set_tests_properties(leak_canary PROPERTIES PASS_REGULAR_EXPRESSION "LeakSanitizer: detected memory leaks")
endif()
