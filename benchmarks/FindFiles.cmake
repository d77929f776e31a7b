# SPDX-License-Identifier: MIT
kovra_benchmark(find_files FindFiles.cpp Ratio.h)
kovra_benchmark(display_text DisplayText.cpp Ratio.h)
