// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"

/// A measurement that the user gave a name on the instrument.
class NamedExperiment : public Experiment
{
    Q_OBJECT
    Q_PROPERTY(QString exp_Name READ expName NOTIFY experimentNameChanged)

public:
    using Experiment::Experiment;

    /// May be empty.
    QString expName() const { return m_expName; }
    void setExpName(const QString &name);

    void copyFrom(const Experiment *other) override;
    void fromJson(const QJsonObject &body) override;

signals:
    void experimentNameChanged();

protected:
    QJsonObject summary() const override;
    /// The name stands behind the date.
    void readListLine(const Pieces &line) override;

private:
    QString m_expName;
};
