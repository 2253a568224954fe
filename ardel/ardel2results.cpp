// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/ardel2results.h"

#include "ardel/dose.h"
#include "model/clocktext.h"

#include <QJsonDocument>

namespace {

// Between the formulas every value is a text of two decimals, so that what is shown is what is computed with.

double valueOf(const QString &text)
{
    return double(text.toFloat()); // single precision, as the instruments read their own texts
}

QString valueText(double value)
{
    return QString::asprintf("%0.2f", value);
}

void computeDailyDose(Dosimeter &dosimeter, double workingTime, double duration)
{
    dosimeter.dailyDose = valueText(Dose::daily(valueOf(dosimeter.dose), workingTime, duration));
}

} // namespace

Ardel2Results::Ardel2Results()
{
    m_dos1.label = QStringLiteral("NHO-01");
    m_dos2.label = QStringLiteral("NR-15");
    m_dos2.exchangeRate = QStringLiteral("5");
    m_user.label = QStringLiteral("USER");
}

const Fields<Ardel2Results> &Ardel2Results::fields()
{
    using R = Ardel2Results;
    static const Fields<R> rows({
        FieldRows<R>{
            {"label", 1, 2, &R::m_label},
            {"sampleTime", 1, 3, &R::m_sampleTime},
            {"octaveAnalysis", 1, 9, &R::m_octaveAnalysis, Form::IfThere},
        },
        partRows(&R::m_dos1, "1"),
        partRows(&R::m_dos2, "2"),
        partRows(&R::m_user, "USER"),
        FieldRows<R>{
            {"l10", 5, 2, &R::m_l10, Form::Dashed},
            {"l50", 5, 3, &R::m_l50, Form::Dashed},
            {"l90", 5, 4, &R::m_l90, Form::Dashed},
            {"nPk", 5, 5, &R::m_nPk},
            {"duration", 5, 6, &R::m_duration},
            {"startTime", 5, 7, &R::m_startTime},
            {"stopTime", 5, 9, &R::m_stopTime},
            {"pauseTime", 5, 11, &R::m_pauseTime, Form::ClockIfThere},
        },
        partRows(&R::m_spectrum, {}),
        partRows(&R::m_fieldChecks, "Cal"),
    });
    return rows;
}

int Ardel2Results::parseDosimeterConfig(const QByteArray &answer)
{
    const QVector<Pieces> lines = linesOf(answer, "+VFDOSCFG: ");
    for (const Pieces &line : lines) {
        const int number = line.first().toInt();
        if (number < 1 || number > 3 || line.size() < 7)
            return -1;
        Dosimeter &dosimeter = number == 1 ? m_dos1 : number == 2 ? m_dos2 : m_user;
        dosimeter.label = wireText(line[1], Form::Plain);
        readPieces(dosimeter, Dosimeter::fields(), Dosimeter::InSettings, line);
    }
    return 0;
}

int Ardel2Results::parseIdentification(const QByteArray &answer)
{
    if (readHeader(1, answer, 9) != 0)
        return -1;
    const int behind = 2; // other pieces stand in front of the settings here
    readPieces(m_user, Dosimeter::fields(), Dosimeter::InSettings, pieces(answer, HeaderTag), behind);
    return 0;
}

int Ardel2Results::parseStatistics(const QByteArray &answer)
{
    if (readHeader(5, answer, 12) != 0)
        return -1;
    const int duration = m_duration.toInt();
    const int workingTime = hourMinuteSeconds(m_workingHours);
    for (Dosimeter *dosimeter : {&m_dos1, &m_dos2, &m_user}) {
        computeDailyDose(*dosimeter, workingTime, duration);
        computeExposureLevel(*dosimeter, duration);
        computeNormalizedLevel(*dosimeter, workingTime);
    }
    return 0;
}

int Ardel2Results::parseOctaveBands(const QByteArray &answer)
{
    return m_spectrum.parse(6, answer, ForeignLine::IsSkipped);
}

void Ardel2Results::computeExposureLevel(Dosimeter &dosimeter, double duration)
{
    dosimeter.ne = dosimeter.hasDose() ? valueText(Dose::exposureLevel(valueOf(dosimeter.dose), duration,
                                                                       valueOf(dosimeter.criterionLevel),
                                                                       valueOf(dosimeter.exchangeRate)))
                                       : tr("---");
}

void Ardel2Results::computeNormalizedLevel(Dosimeter &dosimeter, double workingTime)
{
    dosimeter.nen = dosimeter.hasDose() ? valueText(Dose::normalizedExposureLevel(valueOf(dosimeter.ne), workingTime,
                                                                                  valueOf(dosimeter.exchangeRate)))
                                        : tr("---");
}

int Ardel2Results::refreshWorkingHours(const QString &expParam)
{
    const QJsonDocument document = QJsonDocument::fromJson(expParam.toUtf8());
    if (!document.isObject())
        return -1;
    m_workingHours = document.object()[QLatin1String("workingHours")].toString();
    const int workingTime = hourMinuteSeconds(m_workingHours);
    if (workingTime <= 0)
        return -1;
    for (Dosimeter *dosimeter : {&m_dos1, &m_dos2, &m_user}) {
        computeDailyDose(*dosimeter, float(workingTime), float(m_duration.toInt()));
        computeNormalizedLevel(*dosimeter, workingTime);
    }
    return 0;
}

int Ardel2Results::refreshGeneralData(const QJsonObject &data)
{
    if (data[QLatin1String("datatype")].toString() == QLatin1String("hearingprotect"))
        setHearingProtector(data);
    return 0;
}

QJsonObject Ardel2Results::toJson() const
{
    QJsonObject object = ResultsOf::toJson();
    object.insert(QLatin1String("workingHours"), m_workingHours);
    return object;
}

void Ardel2Results::fromJson(const QJsonObject &object)
{
    // Older files have settings of the USER dosimeter alone, under keys without its name.
    for (const Field<Dosimeter> &row : Dosimeter::fields()) {
        if (row.header == Dosimeter::InSettings)
            fromJsonValue(m_user, row, object[QLatin1String(row.key.mid(4))]);
    }
    ResultsOf::fromJson(object);
}
