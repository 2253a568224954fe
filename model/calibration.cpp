// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/calibration.h"

const Fields<Calibration> &Calibration::fields()
{
    static const Fields<Calibration> rows = {
        {"date", NotOnWire, 0, &Calibration::date},
        {"certification", NotOnWire, 0, &Calibration::certification},
    };
    return rows;
}

QJsonObject Calibration::toJson() const
{
    return writeJson(*this, fields());
}

void Calibration::fromJson(const QJsonObject &object)
{
    readJson(*this, fields(), object);
}

int Calibration::parseJson(const QString &text)
{
    const std::optional<QJsonObject> object = objectOfText(text);
    if (!object)
        return -1;
    date = QDateTime::fromString(object->value(QLatin1String("date")).toString(), Qt::ISODate);
    certification = object->value(QLatin1String("certification")).toString();
    return 0;
}

int Calibration::parseDeviceAnswer(const QString &answer)
{
    const Pieces record = pieces(answer.toLatin1(), "\r\n");
    if (record.size() < 3)
        return -1;
    const bool dateIsLast = !wireDate(record, 0).isValid() && wireDate(record, 1).isValid();
    date = wireDate(record, dateIsLast ? 1 : 0);
    certification = wireText(record[dateIsLast ? 0 : 2], Form::Plain);
    return 0;
}
