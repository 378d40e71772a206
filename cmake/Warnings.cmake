# Every target of this project links this one interface, so that warnings are decided in a single place.
add_library(strict_warnings INTERFACE)
target_compile_options(strict_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wuseless-cast -Wduplicated-cond -Wlogical-op -Wnull-dereference -Wimplicit-fallthrough
    -Wsuggest-override -Wzero-as-null-pointer-constant)

option(MORVELANE_WARNINGS_AS_ERRORS "Let a warning stop the build" OFF)
if(MORVELANE_WARNINGS_AS_ERRORS)
    target_compile_options(strict_warnings INTERFACE -Werror)
endif()
