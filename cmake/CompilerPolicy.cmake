# One interface target carries the compiler policy; every target links it.
add_library(heftarium_policy INTERFACE)
target_compile_features(heftarium_policy INTERFACE cxx_std_20)
target_compile_definitions(heftarium_policy INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_USE_QSTRINGBUILDER
  QT_NO_KEYWORDS
  HEFTARIUM_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
  HEFTARIUM_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  HEFTARIUM_VERSION_PATCH=${PROJECT_VERSION_PATCH})
target_compile_options(heftarium_policy INTERFACE
  -Wall -Wextra -Wpedantic -Wold-style-cast -Wshadow=local -Wnon-virtual-dtor)
if(HEFTARIUM_ASAN)
  target_compile_options(heftarium_policy INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
  target_link_options(heftarium_policy INTERFACE -fsanitize=address,undefined)
endif()
