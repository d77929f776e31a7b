// SPDX-License-Identifier: MIT
#include "program/Startup.h"

int main(int argc, char** argv)
{
    return Startup::run(argc, argv);
}
