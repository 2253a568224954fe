// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QObject>

#include <memory>
#include <vector>

/// A measurement that the dosimeter begins and ends by itself, perhaps with a pause. Its times are on the computer's
/// clock, on the next date that has its day of the month.
class Schedule : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int index MEMBER m_index NOTIFY indexChanged)
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    Q_PROPERTY(bool pausable MEMBER m_pausable NOTIFY pausableChanged)
    Q_PROPERTY(int monthDay MEMBER m_monthDay NOTIFY monthDayChanged)
    Q_PROPERTY(QString startTime READ startTime NOTIFY startTimeChanged)
    Q_PROPERTY(QString pauseTime READ pauseTime NOTIFY pauseTimeChanged)
    Q_PROPERTY(QString resumeTime READ resumeTime NOTIFY resumeTimeChanged)
    Q_PROPERTY(QString stopTime READ stopTime NOTIFY stopTimeChanged)

public:
    static constexpr int Most = 10;             ///< places in an instrument
    static constexpr int MostLetters = 11;      ///< of a label
    static constexpr int LongestRun = 9 * 3600; ///< seconds

    using QObject::QObject;
    std::unique_ptr<Schedule> copy() const;

    /// Place in the instrument that it was read from, from 0.
    int index() const { return m_index; }
    QString label() const { return m_label; }
    bool pausable() const { return m_pausable; }
    /// 1 to 31.
    int monthDay() const { return m_monthDay; }
    /// The four times as "hh:mm"; those of a pause are empty without one.
    QString startTime() const { return clockText(m_start); }
    QString pauseTime() const { return m_pausable ? clockText(m_pause) : QString(); }
    QString resumeTime() const { return m_pausable ? clockText(m_resume) : QString(); }
    QString stopTime() const { return clockText(m_stop); }
    /// The same with their dates; those of a pause are invalid without one.
    QDateTime start() const { return m_start; }
    QDateTime pause() const { return m_pause; }
    QDateTime resume() const { return m_resume; }
    QDateTime stop() const { return m_stop; }

    /// Reads "monthDay", "pausable", "label" and the times, "hh:mm", as pages write them: 0, or -1 for a day outside 1 to
    /// 31, a time that is none or a label that cannot stand between quotes; nothing changes then. A label is cut at
    /// MostLetters. The dates are the next that come after \a now.
    [[nodiscard]] int fromJson(const QJsonObject &object, const QDateTime &now = QDateTime::currentDateTime());
    /// As the description of an instrument has it, "-" for the times of a pause that there is not.
    QJsonObject toJson() const;
    /// Reads the data of an answer to "AT+VFSCH=0,": 0, or -1 for an empty place or times that are none. Of its dates only
    /// the day of the month counts.
    [[nodiscard]] int parse(const QByteArray &line, const QDateTime &now = QDateTime::currentDateTime());
    /// Label and times as "AT+VFSCH=1," carries them behind the place. ISO 8859-1.
    QByteArray wire() const;

    /// Whether it runs no longer than LongestRun; a pause does not count.
    bool isDurationValid() const;
    /// Whether it neither overlaps nor touches any of \a others; pauses do not count.
    bool isAvailable(const QList<Schedule *> &others) const;
    /// Moves each time that is not after the one before it to the next day, with those that follow.
    void normalize();

signals:
    void indexChanged();
    void labelChanged();
    void pausableChanged();
    void monthDayChanged();
    void startTimeChanged();
    void pauseTimeChanged();
    void resumeTimeChanged();
    void stopTimeChanged();

private:
    static QString clockText(const QDateTime &time);
    int setTimes(int day, bool pausable, const QList<QTime> &times, const QDateTime &now);
    void tellOfChange();

    int m_index = 0;
    QString m_label;
    int m_monthDay = 0;
    QDateTime m_start;
    QDateTime m_pause;
    QDateTime m_resume;
    QDateTime m_stop;
    bool m_pausable = false;
};

/// Schedules with their owner.
using ScheduleList = std::vector<std::unique_ptr<Schedule>>;
