find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
pkg_check_modules(ZBAR REQUIRED IMPORTED_TARGET zbar)
# Qt tells each test its folders of test data. No test here asks for them, and they would make all headers differ.
set_property(TARGET Qt6::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)

# Reading the toolkit's headers takes nine tenths of a test's compilation, so the first target of a kind reads them for
# the others. A kind is the library that all of its targets link, at the least: platform_core, platform, or test_support.
function(share_toolkit_headers target kind)
    get_property(owner GLOBAL PROPERTY toolkit_headers_of_${kind})
    if(owner)
        target_precompile_headers(${target} REUSE_FROM ${owner})
        return()
    endif()
    set(headers <QDir> <QFile> <QProcess> <QTemporaryDir> <QTest> <QTextStream> <algorithm> <functional> <memory>)
    if(NOT kind STREQUAL platform_core)
        list(APPEND headers <QApplication> <QCheckBox> <QComboBox> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QTableView>
            <QTimer>)
    endif()
    target_precompile_headers(${target} PRIVATE ${headers})
    set_property(GLOBAL PROPERTY toolkit_headers_of_${kind} ${target})
endfunction()

# add_room_test(NAME tst_numbers LIBRARIES platform_core): one Qt Test program out of <NAME>.cpp, run off screen.
function(add_room_test)
    cmake_parse_arguments(ARG "" "NAME" "LIBRARIES" ${ARGN})
    add_executable(${ARG_NAME} ${ARG_NAME}.cpp)
    target_include_directories(${ARG_NAME} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBRARIES} Qt6::Test strict_warnings)
    if(ARG_LIBRARIES MATCHES "^(platform|platform_core)$")
        share_toolkit_headers(${ARG_NAME} ${ARG_LIBRARIES})
    elseif(NOT ARG_LIBRARIES STREQUAL cafe)
        share_toolkit_headers(${ARG_NAME} test_support)
    endif()
    add_test(NAME ${ARG_NAME} COMMAND ${ARG_NAME})
    # The sanitizer guesses where a plugin keeps what belongs to a thread, from the bytes before it, and its search for leaks
    # ends in a crash of its own where those bytes mislead it. Without the guess it looks there for nothing.
    set_tests_properties(${ARG_NAME} PROPERTIES TIMEOUT 240 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=intercept_tls_get_addr=0")
endfunction()
