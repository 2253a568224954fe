// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/setting.h"

/// The configuration of a sound level meter: its weightings and its octave analysis, as the texts that it sent.
class SoundLevelConfig : public DeviceConfigOf<SoundLevelConfig>
{
    Q_OBJECT

public:
    using DeviceConfigOf::DeviceConfigOf;

    /// "Slow", "Fast" or "Impulse"; empty until read.
    QString timeWeighting() const { return m_timeWeighting; }
    /// "A", "C" or "Z"; empty until read.
    QString frequencyWeighting() const { return m_frequencyWeighting; }
    /// "1/1" or "1/3"; another text on an instrument without octave filters.
    QString octaveAnalysis() const { return m_octaveAnalysis; }

    static const Settings<SoundLevelConfig> &settings();

protected:
    static Settings<SoundLevelConfig> table(bool timeWeightingIsReadBack);

private:
    QString m_timeWeighting;
    QString m_frequencyWeighting;
    QString m_octaveAnalysis;
};
