# SPDX-License-Identifier: MIT
kovra_benchmark(project_load ProjectLoad.cpp LargeProject.h Ratio.h)
