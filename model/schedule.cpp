// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/schedule.h"

#include "model/atdatetime.h"
#include "model/field.h"

#include <algorithm>

namespace {

const QString Clock = QStringLiteral("hh:mm");

/// \a time of \a date on the computer's clock. One that summer time skips is reckoned as if the clocks had not changed.
QDateTime onClock(const QDate &date, const QTime &time)
{
    const QDateTime there(date, time);
    if (there.isValid() || !time.isValid())
        return there;
    return {date, time, Qt::OffsetFromUTC, QDateTime(date.addDays(-1), time).offsetFromUtc()};
}

void moveToNextDay(QDateTime &time)
{
    time = onClock(time.date().addDays(1), time.time());
}

QTime wireTime(const QByteArray &text)
{
    const QDateTime when = AtDateTime::fromAtString(QString::fromLatin1(text));
    return when.isValid() ? when.time() : QTime();
}

QByteArray quoted(const QString &text)
{
    return '"' + text.toLatin1() + '"';
}

bool canStandBetweenQuotes(const QString &label)
{
    return std::none_of(label.begin(), label.end(), [](QChar c) { return c == QLatin1Char('"') || c < QLatin1Char(' '); });
}

} // namespace

QString Schedule::clockText(const QDateTime &time)
{
    return time.toString(Clock);
}

std::unique_ptr<Schedule> Schedule::copy() const
{
    auto other = std::make_unique<Schedule>();
    other->m_index = m_index;
    other->m_label = m_label;
    other->m_monthDay = m_monthDay;
    other->m_start = m_start;
    other->m_pause = m_pause;
    other->m_resume = m_resume;
    other->m_stop = m_stop;
    other->m_pausable = m_pausable;
    return other;
}

int Schedule::setTimes(int day, bool pausable, const QList<QTime> &times, const QDateTime &now)
{
    if (day < 1 || day > 31 || !std::all_of(times.begin(), times.end(), [](const QTime &time) { return time.isValid(); }))
        return -1;
    const QDate date = AtDateTime::dateForMonthDay(day, now).date();
    m_monthDay = day;
    m_pausable = pausable;
    m_start = onClock(date, times.first());
    m_pause = pausable ? onClock(date, times[1]) : QDateTime();
    m_resume = pausable ? onClock(date, times[2]) : QDateTime();
    m_stop = onClock(date, times.last());
    normalize();
    return 0;
}

void Schedule::tellOfChange()
{
    emit indexChanged();
    emit labelChanged();
    emit pausableChanged();
    emit monthDayChanged();
    emit startTimeChanged();
    emit pauseTimeChanged();
    emit resumeTimeChanged();
    emit stopTimeChanged();
}

int Schedule::fromJson(const QJsonObject &object, const QDateTime &now)
{
    const QString label = object[QLatin1String("label")].toString();
    const bool pausable = object[QLatin1String("pausable")].toBool();
    const auto time = [&](const char *key) {
        return QTime::fromString(object[QLatin1String(key)].toString(), Clock);
    };
    QList<QTime> times{time("startTime"), time("stopTime")};
    if (pausable)
        times = {times[0], time("pauseTime"), time("resumeTime"), times[1]};
    const int day = object[QLatin1String("monthDay")].toInt();
    if (!canStandBetweenQuotes(label) || setTimes(day, pausable, times, now) != 0)
        return -1;
    m_label = label.left(MostLetters);
    tellOfChange();
    return 0;
}

QJsonObject Schedule::toJson() const
{
    const QString none = QStringLiteral("-");
    return {
        {QStringLiteral("index"), m_index},
        {QStringLiteral("monthDay"), m_monthDay},
        {QStringLiteral("label"), m_label},
        {QStringLiteral("startTime"), startTime()},
        {QStringLiteral("pauseTime"), m_pausable ? pauseTime() : none},
        {QStringLiteral("resumeTime"), m_pausable ? resumeTime() : none},
        {QStringLiteral("stopTime"), stopTime()},
    };
}

int Schedule::parse(const QByteArray &line, const QDateTime &now)
{
    const Pieces fields = pieces(line, "+VFSCH: ", Dates::StayWhole);
    if (fields.size() < 7)
        return -1;
    const bool pausable = !fields[4].isEmpty() && !fields[5].isEmpty();
    QList<QTime> times{wireTime(fields[3]), wireTime(fields[6])};
    if (pausable)
        times = {times[0], wireTime(fields[4]), wireTime(fields[5]), times[1]};
    const int day = AtDateTime::fromAtString(QString::fromLatin1(fields[3])).date().day();
    if (setTimes(day, pausable, times, now) != 0)
        return -1;
    m_index = fields[1].toInt();
    m_label = QString::fromLatin1(fields[2]);
    tellOfChange();
    return 0;
}

QByteArray Schedule::wire() const
{
    const auto date = [](const QDateTime &time) { return quoted(AtDateTime::toAtString(time)); };
    const QByteArray pause = m_pausable ? date(m_pause) + ',' + date(m_resume) : QByteArray(",");
    return quoted(m_label) + ',' + date(m_start) + ',' + pause + ',' + date(m_stop);
}

void Schedule::normalize()
{
    if (!m_pausable) {
        if (!(m_start < m_stop))
            moveToNextDay(m_stop);
        return;
    }
    const bool pausesNextDay = !(m_start < m_pause);
    if (pausesNextDay)
        moveToNextDay(m_pause);
    if (pausesNextDay || !(m_pause < m_resume)) {
        moveToNextDay(m_resume);
        moveToNextDay(m_stop);
    }
    if (!(m_resume < m_stop))
        moveToNextDay(m_stop);
}

bool Schedule::isDurationValid() const
{
    const qint64 seconds = m_pausable ? m_start.secsTo(m_pause) + m_resume.secsTo(m_stop) : m_start.secsTo(m_stop);
    return seconds <= LongestRun;
}

bool Schedule::isAvailable(const QList<Schedule *> &others) const
{
    return std::all_of(others.begin(), others.end(), [this](const Schedule *other) {
        return m_stop < other->m_start || other->m_stop < m_start;
    });
}
