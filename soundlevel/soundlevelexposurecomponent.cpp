// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundlevel/soundlevelexposurecomponent.h"

#include "model/experiment.h"
#include "soundlevel/soundlevelresults.h"

void SoundLevelExposureComponent::fromExperiment(Experiment *exp)
{
    m_event = exp->index();
    const auto results = qobject_cast<const SoundLevelResults *>(exp->results());
    if (!results)
        return;
    m_label = results->label();
    m_lEq = results->lEq();
    m_lFMax = results->lFMax();
    m_lMaxDateTime = results->lMaxDateTime();
}
