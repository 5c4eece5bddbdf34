// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "compiler.h"

int main(int argc, char *argv[])
{
    return zeph::standin::runTool(argc, argv, zeph::standin::runCompiler);
}
