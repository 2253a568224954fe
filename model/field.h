// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/atdatetime.h"
#include "model/jsontext.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <variant>
#include <vector>

// A record of an instrument is described once, by a table of rows that name a member, its key and its place on the
// wire. Parsing an answer, writing JSON and reading JSON all walk that table.

/// How a text member stands on the wire, where that is not simply the text itself.
enum class Form {
    Plain,        ///< as sent, ISO 8859-1
    Dashed,       ///< the same, "---" when it is empty or not there
    IfThere,      ///< the same; a place that is not there leaves the member as it is
    Clock,        ///< whole seconds on the wire, kept as "hh:mm:ss"
    ClockIfThere, ///< the same; an empty place leaves the member as it is
    Degree,       ///< a letter on the wire, kept behind a degree sign: "°C"
    DateOrEmpty,  ///< of a date: one that is not valid is an empty text in JSON
    DateIfThere,  ///< of a date: an empty place leaves the member as it is
};

constexpr int NotOnWire = 0; ///< header of a row that instruments do not send
constexpr int InRecord = -1; ///< header of a row that stands in a logged record or a line of the experiment list

/// What stands where an instrument has no value.
inline QString absentText()
{
    return QStringLiteral("---");
}

using Pieces = QVector<QByteArray>;

/// A member that is more than one plain value, or that stands in a part of the record: an object, a list of objects.
template <class T> struct Nested {
    virtual ~Nested() = default;
    virtual QJsonValue toJson(const T &owner) const = 0;
    virtual void writeText(const T &owner, JsonText &out) const = 0;
    virtual void fromJson(T &owner, const QJsonValue &value) const = 0;
    /// Reads it from the wire, where it stands in a single place.
    virtual void readPiece(T &, const Pieces &, int) const {}
};

template <class T> struct Field {
    QByteArray key; ///< key in files and on the pages
    int header;     ///< number of the header that carries it, or NotOnWire or InRecord
    int piece;      ///< place in that header or record, from 0; a date takes this place and the next
    std::variant<QString T::*, int T::*, double T::*, bool T::*, QDateTime T::*, AtMoment T::*, QStringList T::*,
                 std::shared_ptr<const Nested<T>>, QString (T::*)() const>
        member; ///< a function is a text that is worked out when it is written, and never read
    Form form = Form::Plain;
};
template <class T> using FieldRows = std::vector<Field<T>>;

/// The table of a record, made once and never copied.
template <class T> class Fields
{
public:
    Fields(std::initializer_list<Field<T>> rows) : Fields({FieldRows<T>(rows)}) {}
    /// Tables one behind the other; those of parts come from partRows().
    Fields(std::initializer_list<FieldRows<T>> tables)
    {
        for (const FieldRows<T> &table : tables)
            m_rows.insert(m_rows.end(), table.begin(), table.end());
        for (const Field<T> &row : m_rows)
            m_byKey.push_back(&row);
        std::sort(m_byKey.begin(), m_byKey.end(),
                  [](const Field<T> *a, const Field<T> *b) { return a->key < b->key; });
    }
    Fields(const Fields &) = delete;
    Fields &operator=(const Fields &) = delete;

    auto begin() const { return m_rows.begin(); }
    auto end() const { return m_rows.end(); }
    /// The rows in the order in which JSON text has them.
    const std::vector<const Field<T> *> &byKey() const { return m_byKey; }

private:
    FieldRows<T> m_rows;
    std::vector<const Field<T> *> m_byKey;
};

/// What becomes of a date and its time that stand in one pair of quotes.
enum class Dates { ComeApart, StayWhole };

/// The pieces of \a answer between its commas, without \a tag, line feeds and double quotes. Empty pieces count. A comma
/// between double quotes belongs to its text, except in a date that comes apart from its time.
Pieces pieces(const QByteArray &answer, const char *tag, Dates dates = Dates::ComeApart);

/// The pieces of each line of an answer of several lines.
QVector<Pieces> linesOf(const QByteArray &answer, const char *tag);

/// The text of \a piece as a member of form \a form keeps it.
QString wireText(const QByteArray &piece, Form form);

/// \a text, as the same object that was handed out for the last equal texts: the values of a measurement recur by the
/// thousand, and kept apart they are most of what an opened file takes of the memory.
QString sharedText(const QString &text);

/// The moment that stands in pieces \a at and \a at + 1.
AtMoment wireMoment(const Pieces &pieces, int at);
/// The same as a date.
inline QDateTime wireDate(const Pieces &pieces, int at)
{
    return wireMoment(pieces, at).dateTime();
}

/// What a line does that belongs to another header.
enum class ForeignLine { IsSkipped, EndsTheWalk };

/// The parts that a header tells of, one in each line.
template <class P> struct PartLines {
    QVector<P> parts;
    QString count; ///< their number as the last line tells it; empty without lines

    /// Whether all have come; an instrument that tells of none has none.
    bool isComplete() const { return parts.size() == count.toInt(); }
};

/// The texts in \a array.
QStringList textsOf(const QJsonArray &array);

/// \a key with \a word in place of its last "%"; at the key's beginning the word's first letter is a small one.
QByteArray keyWithWord(QByteArray key, QByteArray word);

template <class... Ts> struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <class... Ts> Overloaded(Ts...) -> Overloaded<Ts...>;

/// Fills the member of \a field from place \a at. A place that is not there reads as empty.
template <class T> void readPiece(T &record, const Field<T> &field, const Pieces &pieces, int at)
{
    if (field.form == Form::IfThere && at >= pieces.size())
        return;
    const QByteArray piece = pieces.value(at);
    if (piece.isEmpty() && (field.form == Form::ClockIfThere || field.form == Form::DateIfThere))
        return;
    std::visit(Overloaded{
                   [&](QString T::*text) { record.*text = sharedText(wireText(piece, field.form)); },
                   [&](int T::*number) { record.*number = piece.toInt(); },
                   [&](double T::*number) { record.*number = piece.toDouble(); },
                   [&](bool T::*flag) { record.*flag = piece == "1"; },
                   [&](QDateTime T::*date) { record.*date = wireDate(pieces, at); },
                   [&](AtMoment T::*moment) { record.*moment = wireMoment(pieces, at); },
                   [&](QStringList T::*) {},
                   [&](QString (T::*)() const) {},
                   [&](const std::shared_ptr<const Nested<T>> &part) { part->readPiece(record, pieces, at); },
               },
               field.member);
}

/// Fills the members of \a record that \a header carries.
template <class T> void readPieces(T &record, const Fields<T> &fields, int header, const Pieces &pieces, int offset = 0)
{
    for (const Field<T> &field : fields) {
        if (field.header == header)
            readPiece(record, field, pieces, field.piece + offset);
    }
}

/// Reads up to \a most parts that stand one behind the other, each of \a length pieces, from piece \a start on. A part
/// whose first piece is empty is absent, and so are those behind it.
template <class P> QVector<P> readBlocks(int header, const Pieces &pieces, int start, int length, int most)
{
    QVector<P> parts;
    for (int at = start; parts.size() < most && !pieces.value(at).isEmpty(); at += length) {
        P part;
        readPieces(part, P::fields(), header, pieces, at);
        parts.append(part);
    }
    return parts;
}

/// Reads the lines of header \a header, each of at least \a atLeast pieces, of which the third is the number of parts.
template <class P> PartLines<P> readLines(int header, const QByteArray &answer, int atLeast, ForeignLine foreign)
{
    PartLines<P> lines;
    const QVector<Pieces> all = linesOf(answer, "+VFXPHDR: ");
    for (const Pieces &line : all) {
        if (line.size() < atLeast || line.first() != QByteArray::number(header)) {
            if (foreign == ForeignLine::EndsTheWalk)
                break;
            continue;
        }
        P part;
        readPieces(part, P::fields(), InRecord, line);
        lines.parts.append(part);
        lines.count = wireText(line.value(2), Form::Plain);
    }
    return lines;
}

/// Reads header \a header: 0, or -1 with fewer than \a atLeast pieces or another number in front; nothing changes then.
template <class T>
[[nodiscard]] int parseHeader(T &record, const Fields<T> &fields, int header, const Pieces &pieces, int atLeast)
{
    if (pieces.size() < atLeast || pieces.first() != QByteArray::number(header))
        return -1;
    readPieces(record, fields, header, pieces);
    return 0;
}

inline QString dateText(const QDateTime &date, Form form)
{
    return form == Form::DateOrEmpty && !date.isValid() ? QString() : AtDateTime::toAtString(date);
}

template <class T> QJsonValue toJsonValue(const T &record, const Field<T> &field)
{
    return std::visit(Overloaded{
                          [&](QDateTime T::*date) { return QJsonValue(dateText(record.*date, field.form)); },
                          [&](AtMoment T::*moment) { return QJsonValue((record.*moment).text()); },
                          [&](QStringList T::*texts) { return QJsonValue(QJsonArray::fromStringList(record.*texts)); },
                          [&](QString (T::*text)() const) { return QJsonValue((record.*text)()); },
                          [&](const std::shared_ptr<const Nested<T>> &part) { return part->toJson(record); },
                          [&](auto member) { return QJsonValue(record.*member); },
                      },
                      field.member);
}

template <class T> void fromJsonValue(T &record, const Field<T> &field, const QJsonValue &value)
{
    std::visit(Overloaded{
                   [&](QString T::*text) { record.*text = sharedText(value.toString()); },
                   [&](int T::*number) { record.*number = value.toInt(); },
                   [&](double T::*number) { record.*number = value.toDouble(); },
                   [&](bool T::*flag) { record.*flag = value.toBool(); },
                   [&](QDateTime T::*date) { record.*date = AtDateTime::fromAtString(value.toString()); },
                   [&](AtMoment T::*moment) { record.*moment = AtMoment::fromText(value.toString()); },
                   [&](QStringList T::*texts) { record.*texts = textsOf(value.toArray()); },
                   [&](QString (T::*)() const) {},
                   [&](const std::shared_ptr<const Nested<T>> &part) { part->fromJson(record, value); },
               },
               field.member);
}

template <class T> void writeValue(JsonText &out, const T &record, const Field<T> &field)
{
    std::visit(Overloaded{
                   [&](QDateTime T::*date) { out.value(dateText(record.*date, field.form)); },
                   [&](AtMoment T::*moment) { out.value((record.*moment).text()); },
                   [&](const std::shared_ptr<const Nested<T>> &part) { part->writeText(record, out); },
                   [&](double T::*number) { out.value(QJsonValue(record.*number)); },
                   [&](bool T::*flag) { out.value(QJsonValue(record.*flag)); },
                   [&](QString (T::*text)() const) { out.value((record.*text)()); },
                   [&](auto member) { out.value(record.*member); },
               },
               field.member);
}

/// \a object with the members of \a record added under their keys.
template <class T> QJsonObject writeJson(const T &record, const Fields<T> &fields, QJsonObject object = {})
{
    for (const Field<T> &field : fields)
        object.insert(QLatin1String(field.key), toJsonValue(record, field));
    return object;
}

/// Fills \a record from the members of \a object; a key that is missing leaves its member as it is.
template <class T> void readJson(T &record, const Fields<T> &fields, const QJsonObject &object)
{
    for (const Field<T> &field : fields) {
        const QJsonValue value = object.value(QLatin1String(field.key));
        if (!value.isUndefined())
            fromJsonValue(record, field, value);
    }
}

/// Writes \a record as writeJson() would give it.
template <class T> void writeText(JsonText &out, const T &record, const Fields<T> &fields)
{
    out.beginObject();
    for (const Field<T> *field : fields.byKey()) {
        out.key(field->key);
        writeValue(out, record, *field);
    }
    out.endObject();
}

/// A row's member that is one object of type \a P.
template <class T, class P> std::shared_ptr<const Nested<T>> objectOf(P T::*member)
{
    struct Object final : Nested<T> {
        explicit Object(P T::*m) : member(m) {}
        QJsonValue toJson(const T &owner) const override { return writeJson(owner.*member, P::fields()); }
        void writeText(const T &owner, JsonText &out) const override { ::writeText(out, owner.*member, P::fields()); }
        void fromJson(T &owner, const QJsonValue &value) const override
        {
            readJson(owner.*member, P::fields(), value.toObject());
        }
        P T::*member;
    };
    return std::make_shared<Object>(member);
}

/// A row's member that is a list of objects of type \a P, in order.
template <class T, class P> std::shared_ptr<const Nested<T>> listOf(QVector<P> T::*member)
{
    struct List final : Nested<T> {
        explicit List(QVector<P> T::*m) : member(m) {}
        QJsonValue toJson(const T &owner) const override
        {
            QJsonArray array;
            for (const P &part : owner.*member)
                array.append(writeJson(part, P::fields()));
            return array;
        }
        void writeText(const T &owner, JsonText &out) const override
        {
            out.beginArray();
            for (const P &part : owner.*member) {
                out.element();
                ::writeText(out, part, P::fields());
            }
            out.endArray();
        }
        void fromJson(T &owner, const QJsonValue &value) const override
        {
            const QJsonArray array = value.toArray();
            (owner.*member).clear();
            (owner.*member).reserve(array.size());
            for (const QJsonValue &element : array) {
                P part;
                readJson(part, P::fields(), element.toObject());
                (owner.*member).append(part);
            }
        }
        QVector<P> T::*member;
    };
    return std::make_shared<List>(member);
}

/// A row's member that stands in the part \a part of the record, as \a row of the part's own table tells.
template <class T, class P> std::shared_ptr<const Nested<T>> within(P T::*part, const Field<P> &row)
{
    struct Within final : Nested<T> {
        Within(P T::*p, const Field<P> &r) : part(p), row(r) {}
        QJsonValue toJson(const T &owner) const override { return toJsonValue(owner.*part, row); }
        void writeText(const T &owner, JsonText &out) const override { writeValue(out, owner.*part, row); }
        void fromJson(T &owner, const QJsonValue &value) const override { fromJsonValue(owner.*part, row, value); }
        void readPiece(T &owner, const Pieces &pieces, int at) const override { ::readPiece(owner.*part, row, pieces, at); }
        P T::*part;
        Field<P> row;
    };
    return std::make_shared<Within>(part, row);
}

/// The rows of a part that stands several times in a record, once for each \a word: the record's keys are those of the
/// part's table with the word in place of their last "%", and with a small first letter where the key begins with it.
/// On the wire its places are those of the part's table from piece \a offset on.
template <class T, class P> FieldRows<T> partRows(P T::*part, const QByteArray &word, int offset = 0)
{
    FieldRows<T> rows;
    for (const Field<P> &row : P::fields())
        rows.push_back({keyWithWord(row.key, word), row.header, row.piece + offset, within(part, row), row.form});
    return rows;
}
