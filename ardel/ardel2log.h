// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"

/// One periodic record: the sound level and what the three dosimeters' averages had come to. In dB as sent, or "---".
class Ardel2Log : public LogOf<Ardel2Log, 10>
{
    Q_OBJECT
    Q_PROPERTY(QString lavgDosimeter1 MEMBER m_lavgDosimeter1 NOTIFY levelChanged)

public:
    using LogOf::LogOf;

    QString level() const { return m_level; }

    static const Fields<Ardel2Log> &fields();

signals:
    void levelChanged();

private:
    QString m_lavgDosimeter1;
    QString m_lavgDosimeter2;
    QString m_lavgDosimeter3;
    QString m_level;
};
