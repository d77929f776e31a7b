# SPDX-License-Identifier: MIT
kovra_benchmark(project_load ProjectLoad.cpp Ratio.h)
