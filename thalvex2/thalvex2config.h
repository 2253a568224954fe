// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressconfig.h"

class Thalvex2Config : public HeatStressConfig
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"THALVEX 2"};

    Thalvex2Config() : HeatStressConfig(Product) {}
};
