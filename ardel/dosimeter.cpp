// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/dosimeter.h"

#include "model/results.h"

const Fields<Dosimeter> &Dosimeter::fields()
{
    using D = Dosimeter;
    static const Fields<D> rows = {
        {"dos%actionLevel", InSettings, 2, &D::actionLevel},
        {"dos%criterionLevel", InSettings, 3, &D::criterionLevel},
        {"dos%exchangeRate", InSettings, 4, &D::exchangeRate},
        {"dos%timeWeighting", InSettings, 5, &D::timeWeighting},
        {"dos%freqWeighting", InSettings, 6, &D::freqWeighting},
        {"doseDos%", InFindings, 2, &D::dose},
        {"twaDos%", InFindings, 3, &D::twa, Form::Dashed},
        {"lavgDos%", InFindings, 4, &D::lavg, Form::Dashed},
        {"labelDos%", InFindings, 5, &D::label, Form::IfThere},
        {"neDos%", NotOnWire, 0, &D::ne},
        {"nenDos%", NotOnWire, 0, &D::nen},
        {"dailyDoseDos%", NotOnWire, 0, &D::dailyDose},
    };
    return rows;
}

int Dosimeter::parse(int number, const QByteArray &answer)
{
    const Pieces header = pieces(answer, HeaderTag);
    if (header.size() < 5 || header.size() > 6 || header.first() != QByteArray::number(number))
        return -1;
    readPieces(*this, fields(), InFindings, header);
    return 0;
}
