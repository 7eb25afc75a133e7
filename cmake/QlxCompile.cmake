# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# How every target of this project is compiled: qlx_compile(target).

function(qlx_compile target)
  # Conversions are defined as single-precision steps in a written order, so a multiply and an add
  # must never be fused; then every compiler gives the same bits.
  target_compile_options(${target} PRIVATE -ffp-contract=off)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wdouble-promotion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wundef)
  if(QLX_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DEPRECATED_WARNINGS)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON)
  if(QLX_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${QLX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${QLX_SANITIZE})
  endif()
  if(QLX_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage)
    target_link_options(${target} PRIVATE --coverage)
  endif()
endfunction()
