// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelkresults.h"

#include "zelk/codetext.h"

namespace {

constexpr char Context[] = "ZelkResults";

constexpr CodeText types[] = {
    {"LUX", QT_TRANSLATE_NOOP("ZelkResults", "LUX")},
    {"LUX_UV", QT_TRANSLATE_NOOP("ZelkResults", "LUX_UV")},
    {"UV", QT_TRANSLATE_NOOP("ZelkResults", "UV")},
    {"AMB", QT_TRANSLATE_NOOP("ZelkResults", "AMB")},
    {"HVAC", QT_TRANSLATE_NOOP("ZelkResults", "HVAC")},
    {"HVAC_AMB", QT_TRANSLATE_NOOP("ZelkResults", "HVAC_AMB")},
    {"CO2", QT_TRANSLATE_NOOP("ZelkResults", "CO2")},
    {"MAG", QT_TRANSLATE_NOOP("ZelkResults", "MAG")},
    {"EMF", QT_TRANSLATE_NOOP("ZelkResults", "EMF")},
    {"RAD", QT_TRANSLATE_NOOP("ZelkResults", "RAD")},
    {"VOC", QT_TRANSLATE_NOOP("ZelkResults", "VOC")},
};

constexpr CodeText gases[] = {
    {"CO", QT_TRANSLATE_NOOP("ZelkResults", "CO")},
    {"C2H6O", QT_TRANSLATE_NOOP("ZelkResults", "C2H6O")},
    {"H2S", QT_TRANSLATE_NOOP("ZelkResults", "H2S")},
    {"SO2", QT_TRANSLATE_NOOP("ZelkResults", "SO2")},
    {"NO2", QT_TRANSLATE_NOOP("ZelkResults", "NO2")},
    {"O3", QT_TRANSLATE_NOOP("ZelkResults", "O3")},
    {"VOC", QT_TRANSLATE_NOOP("ZelkResults", "VOC")},
};

using Lines = QVector<Pieces>;

/// The lines of header \a number; those of another are left out.
Lines headerLines(int number, const QByteArray &answer)
{
    Lines lines = linesOf(answer, HeaderTag);
    const auto isForeign = [&](const Pieces &line) { return line.first() != QByteArray::number(number); };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isForeign), lines.end());
    return lines;
}

/// Those with at least \a atLeast pieces, one for each quantity; nothing unless they are as many as the last line tells.
std::optional<Lines> quantityLines(int number, const QByteArray &answer, int atLeast)
{
    Lines lines = headerLines(number, answer);
    if (lines.isEmpty())
        return std::nullopt;
    const int count = lines.last().value(2).toInt();
    const auto isShort = [&](const Pieces &line) { return line.size() < atLeast; };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isShort), lines.end());
    return lines.size() == count ? std::optional(lines) : std::nullopt;
}

QStringList texts(const Lines &lines, int piece)
{
    QStringList texts;
    for (const Pieces &line : lines)
        texts.append(wireText(line[piece], Form::Plain));
    return texts;
}

template <class P> QVector<P> parts(const Lines &lines)
{
    QVector<P> parts(lines.size());
    for (int i = 0; i < lines.size(); ++i)
        readPieces(parts[i], P::fields(), InRecord, lines[i]);
    return parts;
}

/// Reads the items of header \a number: 0, or -1 when one of them is not whole, or all is of another header. A line that
/// names no item tells of none, and so does an empty answer.
int readItems(QVector<ZelkExpData> &items, int number, const QByteArray &answer)
{
    constexpr int LabelPiece = 4;
    constexpr int AtLeast = 8;
    Lines lines = headerLines(number, answer);
    if (lines.isEmpty() && !answer.isEmpty())
        return -1;
    const auto isEmpty = [](const Pieces &line) { return line.size() <= LabelPiece; };
    const auto isWhole = [](const Pieces &line) { return line.size() >= AtLeast; };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isEmpty), lines.end());
    items = parts<ZelkExpData>(lines);
    return std::all_of(lines.begin(), lines.end(), isWhole) ? 0 : -1;
}

} // namespace

const Fields<ZelkResults> &ZelkResults::fields()
{
    using R = ZelkResults;
    static const Fields<R> rows = {
        {"label", 1, 2, &R::m_label},
        {"duration", 1, 3, &R::m_duration, Form::Clock},
        {"startTime", 1, 4, &R::m_startTime},
        {"stopTime", 1, 6, &R::m_stopTime},
        {"pauseTime", 1, 8, &R::m_pauseTime, Form::Clock},
        {"sampleTime", 1, 9, &R::m_sampleTime},
        {"sensorType", 1, 10, &R::m_sensorType},
        {"sensorSubType", 1, 11, &R::m_sensorSubType},
        {"experimentType", NotOnWire, 0, &R::experimentType},
        {"sensorSN", 2, 2, &R::m_sensorSN},
        {"sensorCertificate", 2, 3, &R::m_sensorCertificate},
        {"sensorCalibrationDate", 2, 4, &R::m_sensorCalibrationDate},
        {"averageList", NotOnWire, 0, &R::m_averageList},
        {"maxList", NotOnWire, 0, &R::m_maxList},
        {"minList", NotOnWire, 0, &R::m_minList},
        {"quantitiesInfoList", NotOnWire, 0, listOf(&R::m_quantitiesInfoList)},
        {"configList", NotOnWire, 0, listOf(&R::m_configList)},
        {"evaluationResultsList", NotOnWire, 0, listOf(&R::m_evaluationResultsList)},
    };
    return rows;
}

QString ZelkResults::experimentType() const
{
    return m_sensorType == QLatin1String("GAS") ? textOfCode(gases, Context, m_sensorSubType, {})
                                                : textOfCode(types, Context, m_sensorType, {});
}

int ZelkResults::parseAverages(const QByteArray &answer)
{
    const std::optional<Lines> lines = quantityLines(3, answer, 5);
    m_averageList = texts(lines.value_or(Lines()), 4);
    return lines ? 0 : -1;
}

int ZelkResults::parseLimits(const QByteArray &answer)
{
    const std::optional<Lines> lines = quantityLines(4, answer, 6);
    m_maxList = texts(lines.value_or(Lines()), 4);
    m_minList = texts(lines.value_or(Lines()), 5);
    return lines ? 0 : -1;
}

int ZelkResults::parseQuantities(const QByteArray &answer)
{
    const std::optional<Lines> lines = quantityLines(5, answer, 6);
    m_quantitiesInfoList = parts<PhysicalQuantityDescriptor>(lines.value_or(Lines()));
    return lines ? 0 : -1;
}

int ZelkResults::parseConfigItems(const QByteArray &answer)
{
    return readItems(m_configList, 6, answer);
}

int ZelkResults::parseEvaluationItems(const QByteArray &answer)
{
    return readItems(m_evaluationResultsList, 7, answer);
}
