// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QObject>

/// One logged record of an experiment. Owned by its Experiment.
class Log : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QDateTime registerDate READ registerDate WRITE setRegisterDate NOTIFY logItemChanged)

public:
    using QObject::QObject;

    /// The moment of the record to the second, in the instrument's zone.
    QDateTime registerDate() const { return m_registerDate.dateTime(); }
    /// The same as it is kept: where only the time counts, a day of records is too many to make dates of.
    const AtMoment &moment() const { return m_registerDate; }
    void setRegisterDate(const QDateTime &date);

    /// Reads one "+VFRDXP: " line: 0, or 1 for a record that is refused.
    [[nodiscard]] virtual int parse(const QByteArray &line);
    /// The record as it stands in files and on the pages.
    virtual QJsonObject toJson() const;
    /// Writes what toJson() gives.
    virtual void writeText(JsonText &out) const;
    /// Reads what toJson() wrote.
    virtual void fromJson(const QJsonObject &object);

signals:
    void logItemChanged();

protected:
    AtMoment m_registerDate;
};

/// The pieces of a "+VFRDXP: " line, up to a NUL.
Pieces recordPieces(const QByteArray &line);

/// A record over \a Base that is described by its table: \a T has `static const Fields<T> &fields()` for this base to use,
/// and comes in one line of at least \a leastPieces pieces.
template <class T, int leastPieces, class Base = Log> class LogOf : public Base
{
public:
    using Base::Base;

    [[nodiscard]] int parse(const QByteArray &line) override
    {
        const Pieces record = recordPieces(line);
        if (record.size() < leastPieces)
            return 1;
        readPieces(static_cast<T &>(*this), T::fields(), InRecord, record);
        readParts(record);
        return 0;
    }

    QJsonObject toJson() const override { return writeJson(self(), T::fields()); }
    void writeText(JsonText &out) const override { ::writeText(out, self(), T::fields()); }
    void fromJson(const QJsonObject &object) override { readJson(static_cast<T &>(*this), T::fields(), object); }

protected:
    /// Takes over what stands several times in a record.
    virtual void readParts(const Pieces &) {}

private:
    const T &self() const { return static_cast<const T &>(*this); }
};
