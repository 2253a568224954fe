// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/field.h"

#include "model/clocktext.h"

#include <array>

namespace {

/// Whether a date stands in the \a length bytes at \a text: "yy/MM/dd,hh:mm:ss" and what follows it.
bool isDateWithTime(const char *text, int length)
{
    return length >= 17 && text[2] == '/' && text[5] == '/' && text[8] == ',' && text[11] == ':' && text[14] == ':';
}

} // namespace

Pieces pieces(const QByteArray &answer, const char *tag, Dates dates)
{
    QByteArray plain = answer;
    plain.replace(tag, "").replace('\n', "");
    const bool quotes = plain.count('"') % 2 == 0; // of an odd number nobody can say what stands between them
    Pieces parts;
    QByteArray part;
    int quoted = -1; // where the text between quotes begins
    for (int at = 0; at < plain.size(); ++at) {
        const char c = plain[at];
        if (c == '"') {
            quoted = quoted < 0 && quotes ? at + 1 : -1;
        } else if (c == ','
                   && (quoted < 0
                       || (dates == Dates::ComeApart
                           && isDateWithTime(&plain.constData()[quoted], plain.indexOf('"', at) - quoted)))) {
            parts.append(part);
            part.clear();
        } else {
            part += c;
        }
    }
    parts.append(part);
    return parts;
}

QVector<Pieces> linesOf(const QByteArray &answer, const char *tag)
{
    QVector<Pieces> lines;
    const QList<QByteArray> texts = answer.split('\r');
    for (const QByteArray &text : texts)
        lines.append(pieces(text, tag));
    return lines;
}

QStringList textsOf(const QJsonArray &array)
{
    QStringList texts;
    texts.reserve(array.size());
    for (const QJsonValue &value : array)
        texts.append(sharedText(value.toString()));
    return texts;
}

QByteArray keyWithWord(QByteArray key, QByteArray word)
{
    const int at = key.lastIndexOf('%');
    if (at == 0)
        word.replace(0, 1, word.left(1).toLower());
    return at < 0 ? key : key.replace(at, 1, word);
}

QString wireText(const QByteArray &piece, Form form)
{
    const QString text = QString::fromLatin1(piece);
    switch (form) {
    case Form::Clock:
    case Form::ClockIfThere:
        return clockText(text.toInt());
    case Form::Dashed:
        return text.isEmpty() ? absentText() : text;
    case Form::Degree:
        return QChar(0x00B0) + text;
    case Form::Plain:
    case Form::IfThere:
    case Form::DateOrEmpty:
    case Form::DateIfThere:
        break;
    }
    return text;
}

QString sharedText(const QString &text)
{
    constexpr std::size_t Places = 4096;
    static std::array<QString, Places> texts; // each place keeps the last text of its kind: never more than these
    QString &place = texts[qHash(text) % Places];
    if (place != text)
        place = text;
    return place;
}

AtMoment wireMoment(const Pieces &pieces, int at)
{
    return AtMoment::fromText(QString::fromLatin1(pieces.value(at) + ',' + pieces.value(at + 1)));
}
