// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"

/// What a record of a sound level meter always has.
class SoundLevelLog : public Log
{
    Q_OBJECT
    Q_PROPERTY(QString level MEMBER m_level NOTIFY logItemChanged)

public:
    using Log::Log;

    /// dB, as sent, or "---".
    QString level() const { return m_level; }

protected:
    QString m_level;
};
