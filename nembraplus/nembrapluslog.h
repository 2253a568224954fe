// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevellog.h"

/// One sound level and how long it was measured.
class NembraPlusLog : public LogOf<NembraPlusLog, 6, SoundLevelLog>
{
    Q_OBJECT
    Q_PROPERTY(QString interval MEMBER m_interval NOTIFY logItemChanged)

public:
    /// Seconds, as sent; empty when the instrument does not tell.
    QString interval() const { return m_interval; }

    static const Fields<NembraPlusLog> &fields();

private:
    QString m_interval;
};
