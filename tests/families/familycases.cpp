// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/families/familycase.h"

#include <QJsonDocument>

const QVector<FamilyCase> &familyCases()
{
    static const QVector<FamilyCase> cases = {
        thalvex2Case(),
        thalvex4Case(),
        nembraCase(),
        nembraPlusCase(),
        ardel2Case(),
        zelkCase(),
        lomtrixCase(),
    };
    return cases;
}

QJsonObject shortJson(QByteArray text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.replace('\'', '"'), &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("%s in %s", qPrintable(error.errorString()), text.constData());
    return document.object();
}

QByteArray shortText(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).replace('"', '\'');
}
