# Settings of our own targets. They never reach a consumer: everything stands on a private interface target.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(ZEB_CCACHE ccache)
if(ZEB_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ZEB_CCACHE}")
endif()

add_library(zeb_build_settings INTERFACE)
target_compile_features(zeb_build_settings INTERFACE cxx_std_20)

if(MSVC)
  target_compile_options(zeb_build_settings INTERFACE /W4 /WX /utf-8 /fp:precise)
else()
  # Results of number arithmetic are the same bits everywhere: no contraction of multiply and add,
  # and SSE2 instead of the x87 stack on 32-bit x86.
  target_compile_options(zeb_build_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wold-style-cast -Woverloaded-virtual -Wnull-dereference -Wformat=2
    -ffp-contract=off)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86)$")
    target_compile_options(zeb_build_settings INTERFACE -msse2 -mfpmath=sse)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports null dereferences inside the standard library's own headers at -O2.
    target_compile_options(zeb_build_settings INTERFACE -Wno-null-dereference)
  endif()
endif()

if(ZEB_SANITIZE)
  target_compile_options(zeb_build_settings INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zeb_build_settings INTERFACE -fsanitize=address,undefined)
endif()

if(ZEB_BUILD_FUZZ)
  # Warnings of a second compiler do not stop fuzzing.
  target_compile_options(zeb_build_settings INTERFACE -fsanitize=fuzzer-no-link)
elseif(NOT MSVC)
  target_compile_options(zeb_build_settings INTERFACE -Werror)
endif()
