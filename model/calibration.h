// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QDateTime>
#include <QString>

/// When an instrument was last calibrated, and the number of the certificate (at most 16 characters on the pages).
struct Calibration {
    QDateTime date;
    QString certification;

    static const Fields<Calibration> &fields();

    /// "date" in the protocol's form and "certification".
    QJsonObject toJson() const;
    /// Reads what toJson() wrote.
    void fromJson(const QJsonObject &object);
    /// Reads the page's form: a JSON object with "date" (ISO 8601) and "certification". 0, or -1 for another text.
    int parseJson(const QString &text);
    /// Reads the answer to "AT+VFCTF?" without its framing: date, time and certificate, or the certificate first. 0, or -1
    /// below 3 fields.
    int parseDeviceAnswer(const QString &answer);
};
