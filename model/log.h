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
