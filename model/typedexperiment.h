// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/namedexperiment.h"

/// A measurement with a name and a type, of an instrument that measures several kinds of things.
class TypedExperiment : public NamedExperiment
{
    Q_OBJECT
    Q_PROPERTY(QString type READ type NOTIFY experimentTypeChanged)

public:
    using NamedExperiment::NamedExperiment;

    /// The instrument's code of what was measured.
    QString type() const { return m_type; }
    void setType(const QString &type);

    void copyFrom(const Experiment *other) override;

signals:
    void experimentTypeChanged();

protected:
    QJsonObject summary() const override;
    /// The type stands behind the name.
    void readListLine(const Pieces &line) override;

private:
    QString m_type;
};
