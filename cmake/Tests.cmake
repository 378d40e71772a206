# add_room_test(NAME tst_numbers LIBRARIES platform_core): one Qt Test program out of <NAME>.cpp, run off screen.
function(add_room_test)
    cmake_parse_arguments(ARG "" "NAME" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${ARG_NAME} ${ARG_NAME}.cpp ${ARG_SOURCES})
    target_include_directories(${ARG_NAME} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBRARIES} Qt6::Test strict_warnings)
    add_test(NAME ${ARG_NAME} COMMAND ${ARG_NAME})
    set_tests_properties(${ARG_NAME} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 120)
endfunction()
