// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundlevel/soundlevelresults.h"

const Fields<SoundLevelResults> &SoundLevelResults::fields()
{
    using R = SoundLevelResults;
    static const Fields<R> rows({
        FieldRows<R>{
            {"label", 1, 2, &R::m_label},
            {"duration", 1, 3, &R::m_duration},
            {"startTime", 1, 4, &R::m_startTime},
            {"stopTime", 1, 6, &R::m_stopTime},
            {"pauseTime", 1, 8, &R::m_pauseTime, Form::Clock},
            {"sampleTime", 1, 9, &R::m_sampleTime},
            {"timeWeighting", 1, 10, &R::m_timeWeighting},
            {"freqWeighting", 1, 11, &R::m_freqWeighting},
            {"octaveAnalysis", 1, 12, &R::m_octaveAnalysis},
            {"lEq", 2, 2, &R::m_lEq},
            {"lMax", 2, 3, &R::m_lMax},
            {"lMin", 2, 4, &R::m_lMin},
            {"lFMax", 2, 5, &R::m_lFMax},
            {"lMaxDateTime", 2, 6, &R::m_lMaxDateTime},
            {"SEL", 2, 8, &R::m_SEL, Form::Dashed},
            {"lPeak", 2, 9, &R::m_lPeak, Form::Dashed},
            {"l05", 5, 2, &R::m_l05, Form::Dashed},
            {"l10", 5, 3, &R::m_l10, Form::Dashed},
            {"l50", 5, 4, &R::m_l50, Form::Dashed},
            {"l90", 5, 5, &R::m_l90, Form::Dashed},
            {"l95", 5, 6, &R::m_l95, Form::Dashed},
        },
        partRows(&R::m_spectrum, {}),
        partRows(&R::m_fieldChecks, "Chk"),
    });
    return rows;
}

int SoundLevelResults::parseHeader3(const QByteArray &answer)
{
    return m_spectrum.parse(3, answer, ForeignLine::EndsTheWalk);
}

void SoundLevelResults::fromJson(const QJsonObject &object)
{
    m_SEL = m_lPeak = absentText(); // older files do not have them
    ResultsOf::fromJson(object);
}
