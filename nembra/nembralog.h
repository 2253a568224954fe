// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevellog.h"

/// One sound level.
class NembraLog : public LogOf<NembraLog, 6, SoundLevelLog>
{
    Q_OBJECT

public:
    static const Fields<NembraLog> &fields();
};
