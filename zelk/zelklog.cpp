// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelklog.h"

const Fields<ZelkLog> &ZelkLog::fields()
{
    static const Fields<ZelkLog> rows = {
        {"date", InRecord, 5, &ZelkLog::m_registerDate},
        {"physicalQuantitiesList", NotOnWire, 0, &ZelkLog::m_physicalQuantitiesList},
    };
    return rows;
}

// A value is known by its place alone: with a line lost or out of turn it would pass for that of another quantity.
int ZelkLog::parse(const QByteArray &line)
{
    const Pieces record = recordPieces(line);
    if (record.size() < 6 || record[4].toInt() != m_lines++)
        return 1;
    if (m_lines == 1)
        m_registerDate = wireMoment(record, 5);
    else
        m_physicalQuantitiesList.append(sharedText(wireText(record[5], Form::Plain)));
    return 0;
}
