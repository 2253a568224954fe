// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"
#include "thalvex4/thalvex4.h"
#include "thalvex4/thalvex4log.h"
#include "thalvex4/thalvex4results.h"

/// A measurement that the user gave a name on the instrument.
class Thalvex4Experiment : public ExperimentOf<Experiment, Thalvex4Log, Thalvex4Results>
{
    Q_OBJECT
    Q_PROPERTY(QString exp_Name READ expName NOTIFY experimentNameChanged)

public:
    Thalvex4Experiment() : ExperimentOf(Thalvex4::Name) {}

    /// May be empty.
    QString expName() const { return m_expName; }
    void setExpName(const QString &name);

    void copyFrom(const Experiment *other) override;
    /// A list line: at least 6 fields, the last of which is the name.
    [[nodiscard]] int parseHeader(const QByteArray &line) override;
    void fromJson(const QJsonObject &body) override;

signals:
    void experimentNameChanged();

protected:
    QJsonObject summary() const override;

private:
    QString m_expName;
};
