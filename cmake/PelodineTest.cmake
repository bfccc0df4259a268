# pelodine_add_test(tst_name LIBS lib...): builds tst_name.cpp with the shared test helpers,
# registers it with CTest and runs it offscreen.
function(pelodine_add_test name)
    cmake_parse_arguments(ARG "" "" "LIBS;SOURCES" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE PelodineTestUtils ${ARG_LIBS} Qt5::Test)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;PELODINE_SOURCE_DIR=${PROJECT_SOURCE_DIR}"
        TIMEOUT 300)
endfunction()
