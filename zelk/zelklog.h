// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"

/// The values of all quantities at one moment.
class ZelkLog : public LogOf<ZelkLog, 6>
{
    Q_OBJECT

public:
    /// As sent, one for each quantity, in the order in which the results describe them.
    QStringList physicalQuantitiesList() const { return m_physicalQuantitiesList; }

    /// Reads one line of the record: that of the date, numbered 0, or the next value. 0, or 1 below 6 fields.
    [[nodiscard]] int parse(const QByteArray &line) override;

    static const Fields<ZelkLog> &fields();

private:
    QStringList m_physicalQuantitiesList;
};
