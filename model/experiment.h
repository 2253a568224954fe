// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QList>
#include <QObject>

#include <memory>

class Log;
class Results;

/// One measurement, listed by an instrument, downloaded from it or read from a file.
/// Owns its logs and results. Experiments that were brought in together form a chain through next and prev.
class Experiment : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QDateTime dateTime READ dateTime WRITE setDateTime NOTIFY experimentDateTimeChanged)
    Q_PROPERTY(int size READ size WRITE setSize NOTIFY experimentSizeChanged)
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY experimentIndexChanged)

public:
    /// Where an experiment stands in its chain, as the pages know it.
    enum ChainPosition { UniqueItem = -3, FirstItem = -2, LastItem = -1, MiddleItem = 0 };

    /// How a line of an instrument's list must be, and what parseHeader() gives of one that is not.
    struct ListLine {
        int leastPieces;
        int refusal = -1;
    };
    Experiment(const QString &deviceName, ListLine listLine);
    ~Experiment() override;

    QDateTime dateTime() const { return m_dateTime; }
    void setDateTime(const QDateTime &dateTime);
    /// Number of records.
    int size() const { return m_size; }
    void setSize(int size);
    /// Number of the experiment in the instrument's memory.
    int index() const { return m_index; }
    void setIndex(int index);
    /// Product name.
    QString deviceName() const { return m_deviceName; }
    void setDeviceName(const QString &name) { m_deviceName = name; }

    QList<Log *> logs() const { return m_logs; }
    /// Takes ownership of \a logs and deletes those that were there.
    void setLogs(const QList<Log *> &logs);
    /// Null until set.
    Results *results() const { return m_results.get(); }
    void setResults(std::unique_ptr<Results> results);

    /// Copies what the list of an instrument tells: size, index and date.
    virtual void copyFrom(const Experiment *other);
    /// An empty record of the family, and empty results; the caller owns them.
    virtual Log *newLog() const = 0;
    virtual Results *newResults() const = 0;
    /// How many records \a lines are, or -1 when they do not come out even.
    int recordCount(const QList<QByteArray> &lines) const;
    /// Makes a log of each record, in order. 0, or 1 at the first line that is refused.
    [[nodiscard]] int parseLogs(const QList<QByteArray> &lines);
    /// The experiment as it stands in files and on the pages.
    QJsonObject toJson() const;
    /// Writes what toJson() gives.
    void writeText(JsonText &out) const;
    /// Reads one line of an instrument's list: 0, or the family's refusal (-1, or 1) with too few fields.
    [[nodiscard]] virtual int parseHeader(const QByteArray &line);
    /// Reads what toJson() wrote.
    virtual void fromJson(const QJsonObject &body);

    Experiment *next() const { return m_next; }
    Experiment *prev() const { return m_prev; }
    /// First member of the chain.
    Experiment *first();
    const Experiment *first() const;
    /// Links \a experiment behind the last member.
    void append(Experiment *experiment);
    int chainPosition() const;
    /// Place in the chain, from 1: the experiment's number in a report.
    int ordinal() const { return m_ordinal; }
    /// Deletes the whole chain, this member included. Called on the first member.
    void deleteChain();

signals:
    void experimentDateTimeChanged();
    void experimentSizeChanged();
    void experimentIndexChanged();

protected:
    /// What toJson() gives but for the logs: the base's date, size, device name, index, place in the chain and results,
    /// to which a family adds its own.
    virtual QJsonObject summary() const;
    /// Takes over a line of an instrument's list: here index, size and date.
    virtual void readListLine(const Pieces &line);
    /// How many lines belong to a record behind its first, which is \a line; negative when it is refused.
    virtual int furtherLines(const QByteArray &) const { return 0; }

private:
    int recordLength(const QList<QByteArray> &lines, int at) const;
    static const Fields<Experiment> &listFields();

    ListLine m_listLine;
    QDateTime m_dateTime;
    int m_size = 0;
    int m_index = 0;
    QString m_deviceName;
    QList<Log *> m_logs;
    std::unique_ptr<Results> m_results;
    Experiment *m_next = nullptr;
    Experiment *m_prev = nullptr;
    int m_ordinal = 1;
};

/// An experiment over \a Base whose records are of type \a L and whose results of type \a R.
template <class Base, class L, class R> class ExperimentOf : public Base
{
public:
    using Base::Base;

    Log *newLog() const override { return new L; }
    Results *newResults() const override { return new R; }
};

/// Lets a unique_ptr to the first member own the whole chain.
struct ChainDeleter {
    void operator()(Experiment *first) const { first->deleteChain(); }
};
using ExperimentChain = std::unique_ptr<Experiment, ChainDeleter>;
