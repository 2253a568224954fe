// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/field.h"

#include <array>

Pieces pieces(const QByteArray &answer, const char *tag)
{
    QByteArray plain = answer;
    plain.replace(tag, "").replace('\n', "").replace('"', "");
    const QList<QByteArray> parts = plain.split(',');
    return Pieces(parts.cbegin(), parts.cend());
}

QString clockText(int seconds)
{
    return QString::asprintf("%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

QString wireText(const QByteArray &piece, Form form)
{
    const QString text = QString::fromLatin1(piece);
    switch (form) {
    case Form::Clock:
        return clockText(text.toInt());
    case Form::Degree:
        return QChar(0x00B0) + text;
    case Form::Plain:
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

QDateTime wireDate(const Pieces &pieces, int at)
{
    return AtDateTime::fromAtString(QString::fromLatin1(pieces.value(at) + ',' + pieces.value(at + 1)));
}
