// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressconfig.h"
#include "thalvex2/thalvex2.h"

class Thalvex2Config : public HeatStressConfig
{
    Q_OBJECT

public:
    Thalvex2Config() : HeatStressConfig(Thalvex2::Name) {}
};
