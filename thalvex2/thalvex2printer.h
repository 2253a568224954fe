// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/vfprinter.h"

class Thalvex2Printer : public VfPrinter
{
    Q_OBJECT

public:
    int printReport() override { return -1; }
    void setParameters(const QString &) override {}
};
