// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembraplus/nembraplusconfig.h"

const Settings<SoundLevelConfig> &NembraPlusConfig::settings()
{
    static const Settings<SoundLevelConfig> rows = table(true);
    return rows;
}
