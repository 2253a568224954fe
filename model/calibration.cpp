// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/calibration.h"

#include "model/atdatetime.h"

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
    QString plain = answer;
    const QStringList pieces = plain.remove(QLatin1Char('"')).split(QLatin1Char(','));
    if (pieces.size() < 3)
        return -1;
    date = AtDateTime::fromAtString(pieces[0] + QLatin1Char(',') + pieces[1]);
    certification = pieces[2];
    return 0;
}
