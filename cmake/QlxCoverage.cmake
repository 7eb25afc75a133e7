# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# coverage-report: runs the tests, prints the line coverage of src/, and fails below 95 %.

include(ProcessorCount)
ProcessorCount(jobs)
find_program(QLX_GCOVR gcovr REQUIRED)
add_custom_target(coverage-report
  COMMAND find ${PROJECT_BINARY_DIR} -name "*.gcda" -delete
  COMMAND ${CMAKE_CTEST_COMMAND} --output-on-failure --no-tests=error -j ${jobs}
  COMMAND ${QLX_GCOVR} --root ${PROJECT_SOURCE_DIR} --filter ${PROJECT_SOURCE_DIR}/src/ --exclude-unreachable-branches
          --fail-under-line 95 --print-summary --output ${PROJECT_BINARY_DIR}/coverage.txt
          ${PROJECT_BINARY_DIR}
  COMMAND ${CMAKE_COMMAND} -E cat ${PROJECT_BINARY_DIR}/coverage.txt
  USES_TERMINAL
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  VERBATIM)
get_property(tests DIRECTORY ${PROJECT_SOURCE_DIR}/tests PROPERTY BUILDSYSTEM_TARGETS)
add_dependencies(coverage-report QLxControls ${tests})
