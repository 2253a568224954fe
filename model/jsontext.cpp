// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/jsontext.h"

#include <QJsonArray>

#include <algorithm>

namespace {

constexpr int Indent = 4;

/// Whether \a text stands between quotes as it is.
bool isPlain(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.unicode() >= ' ' && c.unicode() < 0x7F && c != QLatin1Char('"') && c != QLatin1Char('\\');
    });
}

} // namespace

std::optional<QJsonObject> objectOfText(const QString &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

void JsonText::open(char bracket)
{
    m_text += bracket;
    if (!m_compact)
        m_text += '\n';
    ++m_depth;
    m_first = true;
}

void JsonText::close(char bracket)
{
    --m_depth;
    if (!m_compact) {
        if (!m_first)
            m_text += '\n';
        m_text.append(Indent * m_depth, ' ');
    }
    m_text += bracket;
    m_first = false;
}

void JsonText::next()
{
    if (!m_first)
        m_text += m_compact ? "," : ",\n";
    m_first = false;
    if (!m_compact)
        m_text.append(Indent * m_depth, ' ');
}

void JsonText::key(const QByteArray &key)
{
    next();
    m_text.append('"').append(key).append(m_compact ? "\":" : "\": ");
}

void JsonText::value(const QString &text)
{
    if (!isPlain(text)) {
        value(QJsonValue(text));
        return;
    }
    m_text += '"';
    for (const QChar c : text)
        m_text += c.toLatin1();
    m_text += '"';
}

void JsonText::value(const QStringList &texts)
{
    beginArray();
    for (const QString &text : texts) {
        element();
        value(text);
    }
    endArray();
}

// As the only element of an array it is printed by the library; its lines then move to the depth where it stands here.
void JsonText::value(const QJsonValue &value)
{
    const QJsonDocument document(QJsonArray{value});
    if (m_compact) {
        const QByteArray text = document.toJson(QJsonDocument::Compact);
        m_text += text.mid(1, text.size() - 2);
        return;
    }
    QByteArray text = document.toJson();
    text = text.mid(2 + Indent, text.size() - (2 + Indent) - 3);
    m_text += text.replace('\n' + QByteArray(Indent, ' '), '\n' + QByteArray(Indent * m_depth, ' '));
}
