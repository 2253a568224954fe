// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/experiment.h"

#include "model/log.h"
#include "model/results.h"

#include <algorithm>

Experiment::Experiment(const QString &deviceName, ListLine listLine) : m_listLine(listLine), m_deviceName(deviceName)
{
}

Experiment::~Experiment()
{
    qDeleteAll(m_logs);
}

void Experiment::setDateTime(const QDateTime &dateTime)
{
    if (m_dateTime == dateTime)
        return;
    m_dateTime = dateTime;
    emit experimentDateTimeChanged();
}

void Experiment::setSize(int size)
{
    if (m_size == size)
        return;
    m_size = size;
    emit experimentSizeChanged();
}

void Experiment::setIndex(int index)
{
    if (m_index == index)
        return;
    m_index = index;
    emit experimentIndexChanged();
}

void Experiment::setLogs(const QList<Log *> &logs)
{
    qDeleteAll(m_logs);
    m_logs = logs;
}

void Experiment::setResults(std::unique_ptr<Results> results)
{
    m_results = std::move(results);
}

void Experiment::copyFrom(const Experiment *other)
{
    setSize(other->size());
    setIndex(other->index());
    setDateTime(other->dateTime());
}

/// The lines of the record that begins at \a at; 0 when they are not all there.
int Experiment::recordLength(const QList<QByteArray> &lines, int at) const
{
    const int further = furtherLines(lines[at]);
    return further >= 0 && further < lines.size() - at ? further + 1 : 0;
}

int Experiment::recordCount(const QList<QByteArray> &lines) const
{
    int count = 0;
    for (int at = 0; at < lines.size(); ++count) {
        const int length = recordLength(lines, at);
        if (length == 0)
            return -1;
        at += length;
    }
    return count;
}

int Experiment::parseLogs(const QList<QByteArray> &lines)
{
    setLogs({});
    for (int at = 0; at < lines.size();) {
        std::unique_ptr<Log> log(newLog());
        const int length = recordLength(lines, at);
        const auto parses = [&log](const QByteArray &line) { return log->parse(line) == 0; };
        if (length == 0 || !std::all_of(lines.begin() + at, lines.begin() + at + length, parses))
            return 1;
        m_logs.append(log.release());
        at += length;
    }
    return 0;
}

const Fields<Experiment> &Experiment::listFields()
{
    static const Fields<Experiment> rows = {
        {"index", InRecord, 1, &Experiment::m_index},
        {"size", InRecord, 2, &Experiment::m_size},
        {"date", InRecord, 3, &Experiment::m_dateTime},
    };
    return rows;
}

void Experiment::readListLine(const Pieces &line)
{
    readPieces(*this, listFields(), InRecord, line);
}

int Experiment::parseHeader(const QByteArray &line)
{
    const Pieces list = pieces(line, "+VFXPLST: ");
    if (list.size() < m_listLine.leastPieces)
        return m_listLine.refusal;
    readListLine(list);
    return 0;
}

QJsonObject Experiment::summary() const
{
    // index and size are texts in files, the place in the chain is a number
    return {
        {QStringLiteral("date"), AtDateTime::toAtString(m_dateTime)},
        {QStringLiteral("size"), QString::number(m_size)},
        {QStringLiteral("deviceName"), m_deviceName},
        {QStringLiteral("index"), QString::number(m_index)},
        {QStringLiteral("eventIndex"), ordinal()},
        {QStringLiteral("results"), m_results ? m_results->toJson() : QJsonObject()},
    };
}

QJsonObject Experiment::toJson() const
{
    QJsonArray logList;
    for (const Log *log : m_logs)
        logList.append(log->toJson());
    QJsonObject object = summary();
    object.insert(QLatin1String("logList"), logList);
    return object;
}

void Experiment::writeText(JsonText &out) const
{
    QJsonObject object = summary();
    object.insert(QLatin1String("logList"), QJsonValue()); // holds the place of the records
    out.beginObject();
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        out.key(member.key().toUtf8());
        if (member.key() != QLatin1String("logList")) {
            out.value(member.value());
            continue;
        }
        out.beginArray();
        for (const Log *log : m_logs) {
            out.element();
            log->writeText(out);
        }
        out.endArray();
    }
    out.endObject();
}

void Experiment::fromJson(const QJsonObject &body)
{
    setDateTime(AtDateTime::fromAtString(body[QLatin1String("date")].toString()));
    setDeviceName(body[QLatin1String("deviceName")].toString());
    setIndex(body[QLatin1String("index")].toString().toInt());
    setSize(body[QLatin1String("size")].toString().toInt());

    const QJsonArray logList = body[QLatin1String("logList")].toArray();
    QList<Log *> logs;
    logs.reserve(logList.size());
    for (const QJsonValue &entry : logList) {
        Log *log = newLog();
        log->fromJson(entry.toObject());
        logs.append(log);
    }
    setLogs(logs);

    std::unique_ptr<Results> results(newResults());
    results->fromJson(body[QLatin1String("results")].toObject());
    setResults(std::move(results));
}

const Experiment *Experiment::first() const
{
    const Experiment *member = this;
    while (member->m_prev)
        member = member->m_prev;
    return member;
}

Experiment *Experiment::first()
{
    return const_cast<Experiment *>(qAsConst(*this).first());
}

void Experiment::append(Experiment *experiment)
{
    Experiment *last = this;
    while (last->m_next)
        last = last->m_next;
    last->m_next = experiment;
    experiment->m_prev = last;
    for (Experiment *member = experiment; member; member = member->m_next)
        member->m_ordinal = member->m_prev->m_ordinal + 1;
}

int Experiment::chainPosition() const
{
    if (!m_prev)
        return m_next ? FirstItem : UniqueItem;
    return m_next ? MiddleItem : LastItem;
}

void Experiment::deleteChain()
{
    for (Experiment *member = this; member;) {
        Experiment *next = member->m_next;
        delete member;
        member = next;
    }
}
