// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/fieldchecks.h"

#include "model/results.h"

const Fields<FieldChecks> &FieldChecks::fields()
{
    using C = FieldChecks;
    static const Fields<C> rows = {
        {"pre%", InRecord, 2, &C::pre, Form::Dashed},
        {"pos%", InRecord, 3, &C::pos, Form::Dashed},
        {"pre%Date", InRecord, 4, &C::preDate, Form::DateOrEmpty},
        {"pos%Date", InRecord, 6, &C::posDate, Form::DateOrEmpty},
    };
    return rows;
}

int FieldChecks::parse(int number, const QByteArray &answer)
{
    const Pieces header = pieces(answer, HeaderTag);
    if (header.size() < 8 || header.first() != QByteArray::number(number))
        return -1;
    readPieces(*this, fields(), InRecord, header);
    if (pre == absentText())
        preDate = {};
    if (pos == absentText())
        posDate = {};
    return 0;
}

std::optional<double> FieldChecks::deviation() const
{
    bool hasPre = false;
    bool hasPos = false;
    const float difference = pre.toFloat(&hasPre) - pos.toFloat(&hasPos);
    return hasPre && hasPos ? std::optional<double>(difference) : std::nullopt;
}
