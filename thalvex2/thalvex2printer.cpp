// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex2/thalvex2printer.h"
