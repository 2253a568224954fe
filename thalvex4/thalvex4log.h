// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"
#include "thalvex4/environmentalfactors.h"

/// One sample of all units, the main unit first.
class Thalvex4Log : public LogOf<Thalvex4Log>
{
    Q_OBJECT

public:
    const QVector<EnvironmentalFactors> &enviromentalFactorsList() const { return m_enviromentalFactorsList; }

    /// A record: at least 37 fields, with a block for each of up to four units.
    [[nodiscard]] int parse(const QByteArray &line) override;

    static const Fields<Thalvex4Log> &fields();

private:
    QVector<EnvironmentalFactors> m_enviromentalFactorsList;
};
