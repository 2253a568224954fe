// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"
#include "thalvex4/environmentalfactors.h"

/// One sample of all units, the main unit first.
class Thalvex4Log : public LogOf<Thalvex4Log, 37>
{
    Q_OBJECT

public:
    const QVector<EnvironmentalFactors> &enviromentalFactorsList() const { return m_enviromentalFactorsList; }

    static const Fields<Thalvex4Log> &fields();

protected:
    /// A block for each of up to four units.
    void readParts(const Pieces &record) override;

private:
    QVector<EnvironmentalFactors> m_enviromentalFactorsList;
};
