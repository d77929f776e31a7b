# SPDX-License-Identifier: MIT
kovra_benchmark(launcher_files LauncherFiles.cpp LargeProject.h Ratio.h)
kovra_benchmark(launcher_page LauncherPage.cpp Ratio.h)
