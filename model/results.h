// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QObject>

class Experiment;

constexpr char HeaderTag[] = "+VFXPHDR: "; ///< in front of each line of a header

/// What the instrument itself computed of one experiment, and what the user's decisions add to it.
/// Owned by its Experiment. The base holds the closing record (header 8): battery, charge counter, reason of the end.
class Results : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    int vbatStart() const { return m_vbatStart; }
    int vbatStop() const { return m_vbatStop; }
    int coulombCounterStart() const { return m_coulombCounterStart; }
    int coulombCounterStop() const { return m_coulombCounterStop; }
    QString stopReason() const { return m_stopReason; }

    /// The results as they stand in files and on the pages.
    virtual QJsonObject toJson() const { return {}; }
    virtual int refreshWorkingHours(const QString &expParam);
    virtual int refreshPartialResults(const QJsonObject &component);
    virtual int refreshGeneralData(const QJsonObject &data);
    virtual int recomputeExposure(Experiment *first);
    virtual int resetResults() { return 0; }
    /// Reads what toJson() wrote.
    virtual void fromJson(const QJsonObject &) {}

    /// Reads the answer to "AT+VFXPHDR=8,": 0, or -1 below 7 fields or with a foreign number in front.
    [[nodiscard]] int parseClosingRecord(const QByteArray &text);

protected:
    /// The members that the closing record carries; families write and read them beside their own.
    static const Fields<Results> &closingFields();

private:
    int m_vbatStart = 0;
    int m_vbatStop = 0;
    int m_coulombCounterStart = 0;
    int m_coulombCounterStop = 0;
    QString m_stopReason;
};

/// What all instruments tell alike of the times of a measurement.
class TimedResults : public Results
{
    Q_OBJECT

public:
    /// "hh:mm:ss", or whole seconds, as the family has it.
    QString duration() const { return m_duration; }
    /// "hh:mm:ss".
    QString pauseTime() const { return m_pauseTime; }
    QDateTime startTime() const { return m_startTime; }
    QDateTime stopTime() const { return m_stopTime; }

    /// The closing record; families add what their tables have.
    QJsonObject toJson() const override { return writeJson<Results>(*this, closingFields()); }
    void fromJson(const QJsonObject &object) override { readJson<Results>(*this, closingFields(), object); }

protected:
    QString m_duration;
    QString m_pauseTime;
    QDateTime m_startTime;
    QDateTime m_stopTime;
};

/// The same with a duration in whole seconds; JSON has it as "hh:mm:ss" besides, under "durationStr", which is not read
/// back.
class SecondsResults : public TimedResults
{
    Q_OBJECT

public:
    QJsonObject toJson() const override;
};

/// Results over \a Base that are described by their table: \a T has `static const Fields<T> &fields()` for this base to use.
/// A \a Base with a table of its own is written and read beside it.
template <class T, class Base = TimedResults> class ResultsOf : public Base
{
public:
    QJsonObject toJson() const override { return writeJson(self(), T::fields(), Base::toJson()); }
    void fromJson(const QJsonObject &object) override
    {
        Base::fromJson(object);
        readJson(self(), T::fields(), object);
    }

protected:
    /// Reads header \a number of one line: 0, or -1 with fewer than \a atLeast pieces or another number in front.
    [[nodiscard]] int readHeader(int number, const QByteArray &answer, int atLeast)
    {
        return parseHeader(self(), T::fields(), number, pieces(answer, HeaderTag), atLeast);
    }

private:
    T &self() { return static_cast<T &>(*this); }
    const T &self() const { return static_cast<const T &>(*this); }
};
