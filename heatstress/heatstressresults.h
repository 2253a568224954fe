// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/results.h"

/// What the heat-stress meters tell alike of a measurement: its unit and its times.
class HeatStressResults : public Results
{
    Q_OBJECT

public:
    /// "°C" or "°F".
    QString unity() const { return m_unity; }
    /// Seconds.
    int sampleTime() const { return m_sampleTime; }
    /// "hh:mm:ss".
    QString duration() const { return m_duration; }
    /// "hh:mm:ss".
    QString pauseTime() const { return m_pauseTime; }
    QDateTime startTime() const { return m_startTime; }
    QDateTime stopTime() const { return m_stopTime; }

protected:
    QString m_unity;
    int m_sampleTime = 0;
    QString m_duration;
    QString m_pauseTime;
    QDateTime m_startTime;
    QDateTime m_stopTime;
};
