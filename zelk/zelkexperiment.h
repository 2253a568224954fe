// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/typedexperiment.h"
#include "zelk/zelk.h"
#include "zelk/zelklog.h"
#include "zelk/zelkresults.h"

/// A measurement with one of the sensor modules, of the quantities that it measures.
class ZelkExperiment : public ExperimentOf<TypedExperiment, ZelkLog, ZelkResults>
{
    Q_OBJECT
    Q_PROPERTY(QString subType READ subType NOTIFY experimentTypeChanged)

public:
    ZelkExperiment() : ExperimentOf(Zelk::Name, {7}) {}

    /// The gas, of the type "GAS".
    QString subType() const { return m_subType; }
    void setSubType(const QString &subType);

    void copyFrom(const Experiment *other) override;

protected:
    QJsonObject summary() const override;
    /// The subtype stands behind the type.
    void readListLine(const Pieces &line) override;
    /// A line for each value.
    int furtherLines(const QByteArray &line) const override;

private:
    QString m_subType;
};
