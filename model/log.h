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

    /// The moment of the record, in the instrument's zone.
    QDateTime registerDate() const { return m_registerDate; }
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
    QDateTime m_registerDate;
};

/// A record that is described by its table: \a T has `static const Fields<T> &fields()` for this base to use.
template <class T> class LogOf : public Log
{
public:
    using Log::Log;

    QJsonObject toJson() const override { return writeJson(self(), T::fields()); }
    void writeText(JsonText &out) const override { ::writeText(out, self(), T::fields()); }
    void fromJson(const QJsonObject &object) override { readJson(static_cast<T &>(*this), T::fields(), object); }

private:
    const T &self() const { return static_cast<const T &>(*this); }
};
