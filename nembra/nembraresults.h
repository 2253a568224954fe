// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelresults.h"

/// The summary of one measurement with the weightings that were set.
class NembraResults : public SoundLevelResults
{
    Q_OBJECT

public:
    /// Levels: at least 8 fields; exposure level and peak come with 10. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseHeader2(const QByteArray &answer);
};
