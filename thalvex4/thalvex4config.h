// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressconfig.h"
#include "thalvex4/thalvex4.h"

class Thalvex4Config : public HeatStressConfig
{
    Q_OBJECT

public:
    Thalvex4Config() : HeatStressConfig(Thalvex4::Name) {}
};
