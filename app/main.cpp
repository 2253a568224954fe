// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/suite.h"

int main(int argc, char **argv)
{
    return runSuite(argc, argv, systemPortNames);
}
