// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"

/// The vibration on three axes during one record. All texts as sent, or "---".
class LomtrixLog : public LogOf<LomtrixLog, 16>
{
    Q_OBJECT
    Q_PROPERTY(QString awX MEMBER m_awX NOTIFY logChanged)
    Q_PROPERTY(QString awY MEMBER m_awY NOTIFY logChanged)
    Q_PROPERTY(QString awZ MEMBER m_awZ NOTIFY logChanged)
    Q_PROPERTY(QString vdvX MEMBER m_vdvX NOTIFY logChanged)
    Q_PROPERTY(QString vdvY MEMBER m_vdvY NOTIFY logChanged)
    Q_PROPERTY(QString vdvZ MEMBER m_vdvZ NOTIFY logChanged)

public:
    using LogOf::LogOf;

    /// Length of the record in seconds.
    QString interval() const { return m_interval; }
    /// Weighted acceleration, m/s².
    QString awX() const { return m_awX; }
    QString awY() const { return m_awY; }
    QString awZ() const { return m_awZ; }
    /// Vibration dose value, m/s^1.75.
    QString vdvX() const { return m_vdvX; }
    QString vdvY() const { return m_vdvY; }
    QString vdvZ() const { return m_vdvZ; }
    /// Crest factor.
    QString fcX() const { return m_fcX; }
    QString fcY() const { return m_fcY; }
    QString fcZ() const { return m_fcZ; }
    /// Acceleration of the three axes together, m/s².
    QString amr() const { return m_amr; }

    static const Fields<LomtrixLog> &fields();

signals:
    void logChanged();

private:
    QString m_interval;
    QString m_awX;
    QString m_awY;
    QString m_awZ;
    QString m_vdvX;
    QString m_vdvY;
    QString m_vdvZ;
    QString m_fcX;
    QString m_fcY;
    QString m_fcZ;
    QString m_amr;
};
