# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# Tests that build something of their own: projects outside this one against the installed library, and the
# colour model with every compiler.

set(prefix ${PROJECT_BINARY_DIR}/tests/prefix)
add_test(NAME install
  COMMAND sh -c "rm -rf '${prefix}' && '${CMAKE_COMMAND}' --install '${PROJECT_BINARY_DIR}' --prefix '${prefix}'")
set_tests_properties(install PROPERTIES FIXTURES_SETUP installed)

# qlx_project_test(NAME SOURCE [OPTIONS -D...] [RUNS command...]): configures, builds and runs a project.
function(qlx_project_test name source)
  cmake_parse_arguments(PARSE_ARGV 2 PROJECT "" "" "OPTIONS;RUNS")
  add_test(NAME ${name} COMMAND ${CMAKE_CTEST_COMMAND}
    --build-and-test ${source} ${PROJECT_BINARY_DIR}/tests/${name} --build-noclean
    --build-generator ${CMAKE_GENERATOR} --build-options -DCMAKE_BUILD_TYPE= ${PROJECT_OPTIONS}
    --test-command ${PROJECT_RUNS})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()

qlx_project_test(consumer ${CMAKE_CURRENT_SOURCE_DIR}/install/consumer
  OPTIONS -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
  RUNS ${PROJECT_BINARY_DIR}/tests/consumer/consumer)
add_test(NAME pkgconfig
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/install/pkg-config.sh ${prefix} ${PROJECT_BINARY_DIR}/tests/pkgconfig)
set_tests_properties(pkgconfig PROPERTIES ENVIRONMENT "CXX=${CMAKE_CXX_COMPILER}")
add_test(NAME exports
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/install/exports.sh ${prefix}/${CMAKE_INSTALL_LIBDIR}/libQLxControls.so)
add_test(NAME designer_to_application
  COMMAND ${on_xvfb} ${CMAKE_CURRENT_SOURCE_DIR}/desktop/designer-to-application.sh
          ${prefix} ${PROJECT_SOURCE_DIR}/scripts/empty-form.ui
          ${PROJECT_SOURCE_DIR}/examples/designer-form ${PROJECT_BINARY_DIR}/tests/designer_form)
set_tests_properties(designer_to_application PROPERTIES
  RESOURCE_LOCK display SKIP_RETURN_CODE 77 TIMEOUT 300)
set_tests_properties(consumer pkgconfig exports designer_to_application PROPERTIES
  FIXTURES_REQUIRED installed)

foreach(compiler g++ clang++)
  string(MAKE_C_IDENTIFIER ${compiler} id)
  find_program(QLX_COMPILER_${id} ${compiler})
  if(NOT QLX_COMPILER_${id})
    # Skipped with a message, but not in CI.
    add_test(NAME bits_${compiler} COMMAND sh -c
      "echo '${compiler} is not installed: nothing was tested with it'; test -z \"$CI\" && exit 77; exit 1")
    set_tests_properties(bits_${compiler} PROPERTIES SKIP_RETURN_CODE 77)
    continue()
  endif()
  foreach(level O0 O3)
    qlx_project_test(bits_${compiler}_${level} ${CMAKE_CURRENT_SOURCE_DIR}/compilers
      OPTIONS -DCMAKE_CXX_COMPILER=${QLX_COMPILER_${id}} -DCMAKE_CXX_FLAGS=-${level}
      RUNS ${CMAKE_CTEST_COMMAND} --output-on-failure)
  endforeach()
endforeach()
