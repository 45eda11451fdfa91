# Warnings are errors everywhere. The sanitizer and coverage flags come from the presets.
add_library(zy_warnings INTERFACE)
target_compile_options(zy_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-align -Wold-style-cast -Werror)
