// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixresults.h"

#include "model/clocktext.h"
#include "model/experiment.h"
#include "report/values.h"

VibrationEvaluation LomtrixResults::s_evaluation;

const Fields<VibrationAxis> &VibrationAxis::fields()
{
    using A = VibrationAxis;
    static const Fields<A> rows = {
        {"freqWeighting%", 1, 11, &A::freqWeighting, Form::Dashed},
        {"f%", 1, 14, &A::f, Form::Dashed},
        {"vdv%", 2, 3, &A::vdv, Form::Dashed},
        {"fc%", 2, 6, &A::fc, Form::Dashed},
        {"aMax%", 3, 2, &A::aMax, Form::Dashed},
        {"aMin%", 3, 5, &A::aMin, Form::Dashed},
        {"ap%", 3, 8, &A::ap, Form::Dashed},
        {"app%", 3, 11, &A::app, Form::Dashed},
        {"am%", 3, 14, &A::am, Form::Dashed},
        {"sensitivity%", 5, 4, &A::sensitivity, Form::Dashed},
    };
    return rows;
}

const Fields<LomtrixResults> &LomtrixResults::fields()
{
    using R = LomtrixResults;
    static const Fields<R> rows({
        FieldRows<R>{
            {"label", 1, 2, &R::m_label},
            {"startTime", 1, 3, &R::m_startTime, Form::DateIfThere},
            {"stopTime", 1, 5, &R::m_stopTime, Form::DateIfThere},
            {"sampleTime", 1, 7, &R::m_sampleTime, Form::Dashed},
            {"duration", 1, 8, &R::m_duration, Form::Dashed},
            {"pauseTime", 1, 9, &R::m_pauseTime, Form::ClockIfThere},
            {"timeWeighting", 1, 10, &R::m_timeWeighting, Form::Dashed},
            {"evaluationType", 1, 17, &R::m_evaluationType, Form::Dashed},
            {"profile", 1, 18, &R::m_profile},
            {"arep", 2, 2, &R::m_arep, Form::Dashed},
            {"sensorLabel", 5, 2, &R::m_sensorLabel, Form::Dashed},
            {"sensorSN", 5, 3, &R::m_sensorSN, Form::Dashed},
        },
        partRows(&R::m_spectrum, {}),
        partRows(&R::m_x, "X"), // on the wire the axes stand side by side
        partRows(&R::m_y, "Y", 1),
        partRows(&R::m_z, "Z", 2),
    });
    return rows;
}

LomtrixResults::LomtrixResults()
{
    s_evaluation = {};
}

const VibrationEvaluation &LomtrixResults::evaluation()
{
    return s_evaluation;
}

bool LomtrixResults::hasDuration() const
{
    return numberOf(m_duration) > 0;
}

int LomtrixResults::parseHeader1(const QByteArray &answer)
{
    if (readHeader(1, answer, 18) != 0)
        return -1;
    if (m_evaluationType == QLatin1String("2"))
        m_evaluationType = QStringLiteral("1");
    return 0;
}

QJsonObject LomtrixResults::toJson() const
{
    QJsonObject object = ResultsOf::toJson();
    const VibrationExposure::Day &day = s_evaluation.day;
    const std::pair<const char *, QJsonValue> computed[] = {
        {"exposureTime", m_exposureTime},
        {"vdvXexpi", m_x.vdvExposed},
        {"vdvYexpi", m_y.vdvExposed},
        {"vdvZexpi", m_z.vdvExposed},
        {"workingHours", s_evaluation.workingHours},
        {"vdvXexp", day.dose[0]},
        {"vdvYexp", day.dose[1]},
        {"vdvZexp", day.dose[2]},
        {"vdvR", day.resultantDose},
        {"fc", day.crest},
        {"are", s_evaluation.are},
        {"aren", s_evaluation.aren},
    };
    for (const auto &[key, value] : computed)
        object.insert(QLatin1String(key), value);
    return object;
}

int LomtrixResults::refreshWorkingHours(const QString &expParam)
{
    const std::optional<QJsonObject> object = objectOfText(expParam);
    if (!object)
        return -1;
    s_evaluation.workingHours = object->value(QLatin1String("workingHours")).toString();
    const int seconds = hourMinuteSeconds(s_evaluation.workingHours);
    if (seconds <= 0)
        return -1;
    s_evaluation.are = s_evaluation.day.acceleration(seconds);
    return 0;
}

int LomtrixResults::refreshPartialResults(const QJsonObject &component)
{
    m_exposureTime = component[QLatin1String("exposureTime")].toString();
    if (!hasDuration())
        return -1;
    for (VibrationAxis *axis : {&m_x, &m_y, &m_z})
        axis->vdvExposed = VibrationExposure::dose(numberOf(axis->vdv), numberOf(axis->f),
                                                   hourMinuteSeconds(m_exposureTime), numberOf(m_duration));
    return 0;
}

VibrationExposure::Component LomtrixResults::component() const
{
    return {
        numberOf(m_arep),
        double(hourMinuteSeconds(m_exposureTime)),
        {m_x.vdvExposed, m_y.vdvExposed, m_z.vdvExposed},
        {numberOf(m_x.fc), numberOf(m_y.fc), numberOf(m_z.fc)},
    };
}

int LomtrixResults::recomputeExposure(Experiment *first)
{
    QVector<VibrationExposure::Component> components;
    for (const Experiment *member = first; member; member = member->next()) {
        if (const auto results = qobject_cast<const LomtrixResults *>(member->results()))
            components.append(results->component());
    }
    s_evaluation.day = VibrationExposure::day(components);
    s_evaluation.are = s_evaluation.day.acceleration(hourMinuteSeconds(s_evaluation.workingHours));
    s_evaluation.aren = s_evaluation.day.acceleration(VibrationExposure::Reference);
    return 0;
}
