// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/exposurecomponent.h"

/// A measurement as a part of a working day, for the table in which its exposure time is given. All texts as sent.
class LomtrixExposureComponent : public ExposureComponent
{
    Q_OBJECT
    Q_PROPERTY(int event MEMBER m_event CONSTANT)
    Q_PROPERTY(QString label MEMBER m_label CONSTANT)
    Q_PROPERTY(QString arep MEMBER m_arep CONSTANT)
    Q_PROPERTY(QString vdvX MEMBER m_vdvX CONSTANT)
    Q_PROPERTY(QString vdvY MEMBER m_vdvY CONSTANT)
    Q_PROPERTY(QString vdvZ MEMBER m_vdvZ CONSTANT)
    Q_PROPERTY(QString cfX MEMBER m_cfX CONSTANT)
    Q_PROPERTY(QString cfY MEMBER m_cfY CONSTANT)
    Q_PROPERTY(QString cfZ MEMBER m_cfZ CONSTANT)
    /// Whether the measurement's duration is known. Without it its doses stay out of the daily ones.
    Q_PROPERTY(bool hasDuration MEMBER m_hasDuration CONSTANT)

public:
    using ExposureComponent::ExposureComponent;

    /// Takes over the experiment's number in the instrument's memory and what its results tell.
    void fromExperiment(Experiment *exp) override;

private:
    int m_event = 0;
    QString m_label;
    QString m_arep;
    QString m_vdvX;
    QString m_vdvY;
    QString m_vdvZ;
    QString m_cfX;
    QString m_cfY;
    QString m_cfZ;
    bool m_hasDuration = false;
};
