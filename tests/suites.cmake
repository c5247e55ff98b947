# Writes to SALIDA a ctest with PROPIEDADES for each suite of the test program PROGRAMA, which has just been built.
execute_process(COMMAND ${PROGRAMA} --gtest_list_tests OUTPUT_VARIABLE lista COMMAND_ERROR_IS_FATAL ANY)
# Suites are the lines with no indent that end with a point, save for a remark on what a parametrized one is made of.
string(REGEX MATCHALL "\n[^ \n]+\\.[ \n]" suites "\n${lista}")
if(NOT suites)
    message(FATAL_ERROR "${PROGRAMA} has no tests")
endif()
set(pruebas "")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "^\n(.+)\\..$" "\\1" suite "${suite}")
    string(APPEND pruebas "add_test([==[${suite}]==] [==[${PROGRAMA}]==] [==[--gtest_filter=${suite}.*]==])\n"
        "set_tests_properties([==[${suite}]==] PROPERTIES")
    foreach(propiedad IN LISTS PROPIEDADES)
        string(APPEND pruebas " [==[${propiedad}]==]")
    endforeach()
    string(APPEND pruebas ")\n")
endforeach()
file(WRITE ${SALIDA} "${pruebas}")
