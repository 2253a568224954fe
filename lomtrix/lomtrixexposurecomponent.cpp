// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixexposurecomponent.h"

#include "lomtrix/lomtrixresults.h"
#include "model/experiment.h"

void LomtrixExposureComponent::fromExperiment(Experiment *exp)
{
    m_event = exp->index();
    const auto results = qobject_cast<const LomtrixResults *>(exp->results());
    if (!results)
        return;
    m_label = results->label();
    m_arep = results->arep();
    m_vdvX = results->x().vdv;
    m_vdvY = results->y().vdv;
    m_vdvZ = results->z().vdv;
    m_cfX = results->x().fc;
    m_cfY = results->y().fc;
    m_cfZ = results->z().fc;
    m_hasDuration = results->hasDuration();
}
