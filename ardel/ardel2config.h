// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/setting.h"

/// The configuration of the dosimeter. Its three dosimeters share the weightings, the octave analysis, the duration and
/// the schedules; the three levels are those of the USER dosimeter.
class Ardel2Config : public DeviceConfigOf<Ardel2Config>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"ARDEL 2"};
    /// Bit of the service setting of an instrument that has octave analysis.
    static constexpr int OctaveBit = 2;

    Ardel2Config() : DeviceConfigOf(Product) {}

    /// "Fast", "Slow" or "Impulse"; empty until read.
    QString timeWeighting() const { return m_timeWeighting; }
    /// "A", "C" or "Z"; empty until read.
    QString frequencyWeighting() const { return m_frequencyWeighting; }
    /// "1/1" or "1/3"; empty on an instrument without octave analysis.
    QString octaveAnalysis() const { return m_octaveAnalysis; }
    /// "hh:mm"; empty until read.
    QString experimentDuration() const { return m_experimentDuration; }
    /// dB. The instrument's own word for it is threshold level.
    int actionLevel() const { return m_actionLevel; }
    /// dB.
    int criterionLevel() const { return m_criterionLevel; }
    /// q, in dB.
    int exchangeRate() const { return m_exchangeRate; }
    /// Whether the instrument follows its schedules.
    bool scheduleStatus() const { return m_scheduleStatus; }
    void setScheduleStatus(bool on) { m_scheduleStatus = on; }

    static const Settings<Ardel2Config> &settings();

private:
    QString m_timeWeighting;
    QString m_frequencyWeighting;
    QString m_octaveAnalysis;
    QString m_experimentDuration;
    int m_actionLevel = 0;
    int m_criterionLevel = 0;
    int m_exchangeRate = 0;
    bool m_scheduleStatus = false;
};
