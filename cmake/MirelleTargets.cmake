# How every target of the tree is made: C++20, the same warnings, includes from the top folder.

set(MIRELLE_ROOT ${CMAKE_CURRENT_SOURCE_DIR})

function(mirelle_settings target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_include_directories(${target} PUBLIC ${MIRELLE_ROOT})
    if(MSVC)
        # Without the warnings of narrowing, for which the other compilers are not asked either.
        target_compile_options(${target} PRIVATE /W4 /wd4244 /wd4245 /wd4267 /wd4389 /utf-8 /permissive- /bigobj
            $<$<CONFIG:Debug>:/WX>)
        target_compile_definitions(${target} PRIVATE NOMINMAX _CRT_SECURE_NO_WARNINGS) # getenv, fopen
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
            -Woverloaded-virtual -Wcast-align -Wextra-semi)
        # Warnings are errors, but not in the released form: optimising, GCC 12 sees faults in the libraries' own headers.
        if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    endif()
    # GCC 12 optimising sees overlapping memory in '"_" + text' where there is none (GCC bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict>)
    endif()
    # A loop that is asked to be vectorised can't be where a sanitizer looks at each of its steps.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_compile_options(${target} PRIVATE -Wno-pass-failed)
    endif()
    if(MIRELLE_FUZZ)
        target_compile_definitions(${target} PUBLIC MIRELLE_FUZZ)
    endif()
    if(MIRELLE_SANITIZE)
        target_compile_options(${target} PUBLIC -fsanitize=${MIRELLE_SANITIZE} -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${MIRELLE_SANITIZE})
    endif()
endfunction()

# mirelle_library(NAME sources... LINK targets...): a static library of one room.
function(mirelle_library target)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_library(${target} STATIC ${ARG_UNPARSED_ARGUMENTS})
    mirelle_settings(${target})
    target_link_libraries(${target} PUBLIC ${ARG_LINK})
endfunction()

# mirelle_vector_code(NAME): a target whose sources run code in versions for the processor (forms/FunctionVersions.h).
function(mirelle_vector_code target)
    target_compile_definitions(${target} PRIVATE MIRELLE_VECTOR_CODE)
    if(MSVC)
        return() # fuses no steps unless it is told to, and makes vector code at its usual level
    endif()
    target_compile_options(${target} PRIVATE
        # A product and a sum stay two roundings: fused they would decide ties otherwise than the formulas do.
        -ffp-contract=off
        # GCC makes vector code in full at this level only.
        $<$<NOT:$<CONFIG:Debug>>:-O3>)
    if(MINGW AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # GCC moves wide registers to the stack as if it were aligned to them, which it is not there; the assembler then
        # takes moves that need no alignment.
        target_compile_options(${target} PRIVATE -Wa,-muse-unaligned-vector-move)
    endif()
endfunction()

# mirelle_program(NAME sources... LINK targets...): an executable.
function(mirelle_program target)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(${target} ${ARG_UNPARSED_ARGUMENTS})
    mirelle_settings(${target})
    target_link_libraries(${target} PRIVATE ${ARG_LINK})
endfunction()

# mirelle_known_tests(NAME [PREFIX text] [FILTER patterns] [ENVIRONMENT variables...]): makes each test of a Google Test
# program known to CTest; more than once, under other prefixes, for other environments. A program that is built for another
# system is known as a whole: what runs it there costs more to start than most tests take.
function(mirelle_known_tests target)
    cmake_parse_arguments(ARG "" "PREFIX;FILTER" "ENVIRONMENT" ${ARGN})
    if(NOT ARG_FILTER)
        set(ARG_FILTER *)
    endif()
    set(environment)
    if(ARG_ENVIRONMENT)
        set(environment ENVIRONMENT "${ARG_ENVIRONMENT}")
    endif()
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${ARG_PREFIX}${target} COMMAND ${target} --gtest_filter=${ARG_FILTER})
        set_tests_properties(${ARG_PREFIX}${target} PROPERTIES TIMEOUT 600 ${environment})
    else()
        gtest_discover_tests(${target} TEST_FILTER "${ARG_FILTER}" TEST_PREFIX "${ARG_PREFIX}"
            PROPERTIES TIMEOUT 120 ${environment})
    endif()
endfunction()

# mirelle_test(NAME sources... LINK targets...): a Google Test program, its tests known to CTest.
function(mirelle_test target)
    mirelle_program(${target} ${ARGN})
    target_link_libraries(${target} PRIVATE GTest::gmock_main)
    # A test's own code runs once and needs no optimiser; what it tests keeps its released form. A third of the time.
    if(NOT MSVC)
        target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O0>)
    endif()
    mirelle_known_tests(${target})
endfunction()

# mirelle_tests_in_versions(NAME FILTER patterns): knows these tests of a program also with narrower registers than this
# processor has, so that every version of the code that they run is tried (forms/FunctionVersions.h).
function(mirelle_tests_in_versions target)
    cmake_parse_arguments(ARG "" "FILTER" "" ${ARGN})
    foreach(bytes 16 32)
        mirelle_known_tests(${target} PREFIX "Registers${bytes}." FILTER "${ARG_FILTER}"
            ENVIRONMENT MIRELLE_REGISTERS=${bytes})
    endforeach()
endfunction()
