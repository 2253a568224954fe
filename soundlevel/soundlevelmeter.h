// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/deviceof.h"

/// A sound level meter with the configuration \a Config and results \a R, which parse headers 1 to 5. It says when it is
/// busy, and an answer to a setting that was written is recognised only as a whole.
template <class Config, class R> class SoundLevelMeter : public DeviceOf<Config>
{
public:
    SoundLevelMeter() : DeviceOf<Config>(manners()) {}
    explicit SoundLevelMeter(const Device &plain) : DeviceOf<Config>(plain, manners()) {}

    /// Headers 1 to 5 and the closing record.
    Results *acquireResults(Experiment *exp) override
    {
        return this->template acquireHeaders<R>(exp, {&R::parseHeader1, &R::parseHeader2, &R::parseHeader3,
                                                      &R::parseHeader4, &R::parseHeader5})
            .release();
    }

private:
    static auto manners()
    {
        typename DeviceOf<Config>::Manners manners;
        manners.writes = Match::Whole;
        manners.settingsTellBusy = true;
        manners.headersTellBusy = true;
        return manners;
    }
};
