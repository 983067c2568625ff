tamsel_script_test(packaging_descriptions packaging/descriptions.sh
    ARGS ${CMAKE_SOURCE_DIR}/packaging ${CMAKE_BINARY_DIR}/packaging)
tamsel_script_test(packaging_help packaging/help.py ARGS ${CMAKE_SOURCE_DIR}/packaging
    ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
