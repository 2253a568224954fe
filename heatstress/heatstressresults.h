// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/results.h"

/// What the heat-stress meters tell alike of a measurement: its unit and its times.
class HeatStressResults : public TimedResults
{
    Q_OBJECT

public:
    /// "°C" or "°F".
    QString unity() const { return m_unity; }
    /// Seconds.
    int sampleTime() const { return m_sampleTime; }

protected:
    QString m_unity;
    int m_sampleTime = 0;
};
