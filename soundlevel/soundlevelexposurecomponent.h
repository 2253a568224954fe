// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/exposurecomponent.h"

#include <QDateTime>

/// A measuring point of a sound level meter, for tables of them.
class SoundLevelExposureComponent : public ExposureComponent
{
    Q_OBJECT
    Q_PROPERTY(int event MEMBER m_event CONSTANT)
    Q_PROPERTY(QString label MEMBER m_label CONSTANT)
    Q_PROPERTY(QString lEq MEMBER m_lEq CONSTANT)
    Q_PROPERTY(QString lFMax MEMBER m_lFMax CONSTANT)
    Q_PROPERTY(QDateTime lMaxDateTime MEMBER m_lMaxDateTime CONSTANT)

public:
    using ExposureComponent::ExposureComponent;

    /// Takes over the experiment's number in the instrument's memory and what its results tell.
    void fromExperiment(Experiment *exp) override;

private:
    int m_event = 0;
    QString m_label;
    QString m_lEq;
    QString m_lFMax;
    QDateTime m_lMaxDateTime;
};
